#pragma once

#include "browse/EtatPanneaux.h"
#include "db/Base.h"
#include "edit/SuitesModification.h"
#include "edit/TravailParLots.h"

#include <string>
#include <string_view>

namespace edit {

// Puts every title of the catalogue and of the holdings in the house form.
//
// Stopped anywhere, owned films still match their holdings: the base holds a title and its corrected form for equal,
// and where a rare letter makes them differ, the films and the holdings of that title are corrected together.
class CorrectionTitres {
  public:
    CorrectionTitres(db::Base& base, browse::EtatPanneaux& panneaux, const OutilsTravail& outils,
                     const SuitesModification& suites)
        : m_base(base), m_panneaux(panneaux), m_outils(outils), m_suites(suites) {}

    // Reports the films whose title was changed, also when it was stopped.
    void cmdPonctuation_Click();

  private:
    [[nodiscard]] long corrigeTout();
    void rafraichit();

    db::Base& m_base;
    browse::EtatPanneaux& m_panneaux;
    OutilsTravail m_outils;
    SuitesModification m_suites;
};

[[nodiscard]] std::string rapportTitresModifies(long nombre);

}  // namespace edit
