#pragma once

#include "db/Chemins.h"
#include "platform/ecran/Avis.h"

#include <functional>
#include <string>

namespace app {

// The base that the settings name was not there at the start (its disk is unplugged, say), and another one is open in its
// place. The notice line names it, opens it once it is back, and the settings go on naming it until the user opens a base
// himself.
class BaseAbsente {
  public:
    // `ouvre` opens that base instead of the open one.
    BaseAbsente(db::Chemins& chemins, ecran::Avis& avis, const ecran::EtatAvis& etat,
                std::function<void(const std::string&)> ouvre)
        : m_chemins(chemins), m_avis(avis), m_etat(etat), m_ouvre(std::move(ouvre)) {}

    void annonce();
    // The user may have opened a base: a notice that is not true any more goes.
    void suisLaBase();

  private:
    void montre(const std::string& texte);
    void reessaie();

    db::Chemins& m_chemins;
    ecran::Avis& m_avis;
    const ecran::EtatAvis& m_etat;
    std::function<void(const std::string&)> m_ouvre;
    int m_numero = 0;  // of the last notice shown here
};

}  // namespace app
