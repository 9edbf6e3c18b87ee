#pragma once

#include "app/BaseAbsente.h"
#include "app/Etats.h"
#include "app/Extensions.h"
#include "app/Reglages.h"
#include "browse/ChoixTri.h"
#include "browse/ChoixZone.h"
#include "db/Chemins.h"
#include "db/Option3_Click.h"
#include "db/OuvertureBase.h"
#include "db/OuvertureJet.h"
#include "db/Rafraichissement.h"
#include "db/cmdChargeOuvreBase_Click.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/systeme/InstanceUnique.h"

#include <functional>
#include <string>

namespace app {

// The start-up: checks the program folder, reads the settings, opens the base and fills the window.
class Demarrage {
  public:
    // What the sequence calls out to.
    struct Suites {
        db::Option3_Click& option3;
        db::OuvertureBase& ouvertureBase;
        db::OuvertureJet& ouvertureJet;
        db::cmdChargeOuvreBase_Click& cmdChargeOuvreBase;
        BaseAbsente& baseAbsente;
        ecran::Avis& avis;
        browse::ChoixTri& choixTri;
        browse::ChoixZone& choixZone;
        db::Rafraichissement& rafraichissement;
    };

    Demarrage(Etats& etats, db::Chemins& chemins, TableExtensions& extensions, systeme::InstanceUnique& instance,
              dialogues::Dialogues& dialogues, const Suites& suites)
        : m_etats(etats),
          m_chemins(chemins),
          m_extensions(extensions),
          m_instance(instance),
          m_dialogues(dialogues),
          m_suites(suites) {}

    // Throws systeme::FinDuProgramme at the first check that fails, after its message if it has one.
    void execute();
    // What no page shows before the window is there, and takes its time: the drop-down lists of the holdings.
    void acheve();
    // False when the settings file stands there and could not be read.
    [[nodiscard]] bool reglagesLus() const { return m_reglagesLus; }

  private:
    void prendsInstance();
    void verifieDossier();
    void verifieModele();
    void litReglages();
    void applique(const Reglages& reglages);
    void activeStockage();
    void ouvreLaBase();
    void ouvreCelleDesReglages();
    void ditLaquelleEstOuverte();
    void choisitTriEtZone();
    void litExtensions();
    // A base that opens and cannot be listed does not end the program: another one can be opened.
    void poursuit(const std::function<void()>& etape);
    [[noreturn]] void refuse(const std::string& message);

    Etats& m_etats;
    db::Chemins& m_chemins;
    TableExtensions& m_extensions;
    systeme::InstanceUnique& m_instance;
    dialogues::Dialogues& m_dialogues;
    Suites m_suites;
    int m_triEnregistre = 0;
    bool m_reglagesLus = false;
    bool m_baseNommee = false;  // by the settings
    bool m_baseCreee = false;
};

}  // namespace app
