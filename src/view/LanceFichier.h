#pragma once

#include "platform/dialogues/Dialogues.h"
#include "platform/ecran/Ecran.h"
#include "platform/systeme/Documents.h"
#include "platform/systeme/Programmes.h"

#include <string>

namespace view {

// Runs a program (EXE, COM and PIF files) or opens a document, any other file, with the application associated to it.
// Whatever fails is told to the user.
class LanceFichier {
  public:
    LanceFichier(systeme::Programmes& programmes, systeme::Documents& documents, dialogues::Dialogues& dialogues,
                 ecran::Ecran& ecran)
        : m_programmes(programmes), m_documents(documents), m_dialogues(dialogues), m_ecran(ecran) {}

    // True when the program or the application was started and, with `attente`, the program ended by itself: the user may
    // ask to stop, which ends it.
    // fichier: may stand in double quotes; what follows the closing one serves as `parametres` where these are empty.
    // existence: a missing file is told before anything is tried.
    // verbe, mode: "open" is the only verb here, and the desktop places the windows itself.
    // parametres: of a program, separated and quoted as a shell would read them.
    // dossier: where it starts; empty, the folder of the file.
    bool operator()(const std::string& fichier, bool existence, const std::string& verbe, const std::string& parametres,
                    const std::string& dossier, const std::string& mode, bool attente);

  private:
    bool ouvreDocument(const std::string& chemin, const std::string& dossier, bool attente);
    bool lanceProgramme(const systeme::Commande& commande, bool attente);
    bool attendsFin(systeme::ProgrammeEnCours& programme);
    bool refuse(const std::string& texte, int style);

    systeme::Programmes& m_programmes;
    systeme::Documents& m_documents;
    dialogues::Dialogues& m_dialogues;
    ecran::Ecran& m_ecran;
};

}  // namespace view
