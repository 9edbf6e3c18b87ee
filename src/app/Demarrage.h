#pragma once

#include "app/BaseAbsente.h"
#include "app/Contexte.h"
#include "app/Reglages.h"
#include "platform/systeme/InstanceUnique.h"

#include <functional>
#include <string>

namespace app {

// The start-up: checks the program folder, reads the settings, opens the base and fills the window.
class Demarrage {
  public:
    // All of it outlives the start.
    Demarrage(const Contexte& c, systeme::InstanceUnique& instance, BaseAbsente& baseAbsente)
        : m_c(c), m_instance(instance), m_baseAbsente(baseAbsente) {}

    // Throws systeme::FinDuProgramme at the first check that fails, after its message if it has one.
    void execute();
    // What no page shows before the window is there, and takes its time: the drop-down lists of the holdings, and the
    // removal of what killed runs left of files that they were writing.
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
    void effaceRestes();
    [[noreturn]] void refuse(const std::string& message);

    const Contexte& m_c;
    systeme::InstanceUnique& m_instance;
    BaseAbsente& m_baseAbsente;
    int m_triEnregistre = 0;
    bool m_reglagesLus = false;
    bool m_baseNommee = false;  // by the settings
    bool m_baseCreee = false;
};

}  // namespace app
