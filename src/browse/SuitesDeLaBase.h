#pragma once

#include "browse/Contexte.h"

namespace browse {

// What the window shows after a change of the base that is not one film's: its listing, counts, lists and selection.
class SuitesDeLaBase final : public db::Rafraichissement {
  public:
    // `c` outlives it.
    explicit SuitesDeLaBase(const Contexte& c) : m_c(c) {}

    void AfficheAccueil() override;
    void reconstruitListe() override;
    void RaffraichitBoitesDeroulantes() override;
    void AfficheNbTitres() override;
    void AffichageApresModification() override;

  private:
    const Contexte& m_c;
};

}  // namespace browse
