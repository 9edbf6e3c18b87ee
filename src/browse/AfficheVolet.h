#pragma once

#include "browse/ChargeAffiche.h"

namespace browse {

inline constexpr int kVoletGeneralites = 0, kVoletAutresInfos = 1, kVoletLesDeux = 2;

// Shows a page of the sheet, or both where the layout has room for both (the page buttons are hidden then).
class AfficheVolet {
  public:
    AfficheVolet(EtatFiche& fiche, ecran::Demandes& demandes, ChargeAffiche& chargeAffiche)
        : m_fiche(fiche), m_demandes(demandes), m_chargeAffiche(chargeAffiche) {}

    void operator()(int mode);

  private:
    EtatFiche& m_fiche;
    ecran::Demandes& m_demandes;
    ChargeAffiche& m_chargeAffiche;
};

}  // namespace browse
