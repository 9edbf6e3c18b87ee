#pragma once

#include "app/Session.h"
#include "platform/systeme/Documents.h"
#include "platform/systeme/Horloge.h"
#include "platform/systeme/Montre.h"
#include "platform/systeme/Programmes.h"
#include "platform/systeme/Volumes.h"
#include "ui/Commande.h"
#include "ui/DialoguesQt.h"
#include "ui/EcranQt.h"
#include "ui/FenetrePrincipale.h"
#include "ui/FenetreTravail.h"
#include "ui/ImagesQt.h"
#include "ui/Liaison.h"

#include <memory>

namespace ui {

// One run of the program in its window: the session, the doors it is given, and the window that shows it.
class Programme {
  public:
    // What a test puts in the place of the real services; the others are Qt's and the system's.
    struct Services {
        dialogues::Dialogues* dialogues = nullptr;
        systeme::Horloge* horloge = nullptr;
        systeme::Documents* documents = nullptr;
        systeme::Programmes* programmes = nullptr;
        systeme::Volumes* volumes = nullptr;
        systeme::Montre montre = std::chrono::steady_clock::now;
    };

    explicit Programme(const std::string& dossier) : Programme(dossier, Services{}) {}
    Programme(const std::string& dossier, const Services& services);

    // Loads the program and shows its window; false when it must end before, its message shown.
    [[nodiscard]] bool demarre();
    // The shut-down as soon as may be and without a question: a box that is open is left, work under way stops between
    // two items, and then the event loop ends. For those who end the program from outside.
    void termine();

    [[nodiscard]] FenetrePrincipale& fenetre() { return m_fenetre; }
    [[nodiscard]] app::Session& session() { return m_session; }
    [[nodiscard]] Commande& commande() { return m_commande; }
    [[nodiscard]] EcranQt& ecran() { return m_ecran; }

  private:
    void montreTravail();
    void finis();

    Liaison m_liaison;
    DialoguesQt m_boites;
    EcranQt m_ecran;
    ImagesQt m_images;
    systeme::HorlogeSysteme m_horloge;
    systeme::DocumentsSysteme m_documents;
    systeme::ProgrammesSysteme m_programmes;
    systeme::VolumesSysteme m_volumes;
    app::Session m_session;
    Commande m_commande;
    FenetrePrincipale m_fenetre;
    std::unique_ptr<FenetreTravail> m_fenetreTravail;  // when work was under way before the window was shown
    bool m_termine = false;
};

}  // namespace ui
