#pragma once

#include "app/Session.h"
#include "db/Schema.h"
#include "doubles/DialoguesScript.h"
#include "doubles/DocumentsEnregistres.h"
#include "doubles/DossierTemporaire.h"
#include "doubles/EcranMuet.h"
#include "doubles/HorlogeFixe.h"
#include "doubles/ImagesSimulees.h"
#include "doubles/ProgrammesSimules.h"
#include "doubles/VolumesSimules.h"
#include "platform/dao/DBEngine.h"
#include "platform/systeme/FinDuProgramme.h"

#include <string>

namespace parcours {

// A program folder as the build leaves it, in a folder of its own.
class Installation : public doubles::DossierTemporaire {
  public:
    Installation() {
        ajouteModele();
        ecrit("Extensions.txt", "avi\n/usr/bin/mpv\nmkv\n/usr/bin/vidéo\n");
    }
    void ajouteModele() const { dao::DBEngine::CreateDatabase(chemin("Modele.dat"), db::schema()); }
};

// One run of the program in a folder, with the machine's doubles. Its destruction without Form_Unload is a crash.
struct Execution {
    // `vrais` really start programs.
    explicit Execution(const std::string& dossier, systeme::Programmes* vrais = nullptr)
        : Execution(dossier, boites, vrais) {}
    // The same with boxes that are not scripted.
    Execution(const std::string& dossier, dialogues::Dialogues& autres, systeme::Programmes* vrais = nullptr)
        : session({autres, ecran, images, horloge, documents, vrais ? *vrais : programmes, volumes, dossier}) {}

    doubles::DialoguesScript boites;
    doubles::EcranMuet ecran;
    doubles::ImagesSimulees images;
    doubles::HorlogeFixe horloge;
    doubles::DocumentsEnregistres documents;
    doubles::ProgrammesSimules programmes;
    doubles::VolumesSimules volumes;
    app::Session session;
    app::Etats& etats = session.etats;

    // Whether the start held; a refusal shows its box and ends the program.
    [[nodiscard]] bool demarre() {
        try {
            session.Form_Load();
            session.Form_Activate();
            return true;
        } catch (const systeme::FinDuProgramme&) {
            session.Form_Unload();  // what a window closed on its way out would ask for
            return false;
        }
    }
};

}  // namespace parcours
