#pragma once

#include "browse/CreeRequeteAffichage.h"

namespace browse {

// Selects the pseudo-zone "Recherche", added to the zone list where it is missing, and shows the films of the saved
// search condition and zone.
class CreeEtAfficheRecherche {
  public:
    CreeEtAfficheRecherche(EtatListe& liste, CreeRequeteAffichage& creeRequeteAffichage)
        : m_liste(liste), m_creeRequeteAffichage(creeRequeteAffichage) {}

    void operator()();

  private:
    EtatListe& m_liste;
    CreeRequeteAffichage& m_creeRequeteAffichage;
};

}  // namespace browse
