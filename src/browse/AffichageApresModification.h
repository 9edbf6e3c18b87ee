#pragma once

#include "browse/AfficheAccueil.h"
#include "browse/CreeRequeteAffichage.h"

namespace browse {

// The common refresh: the presentation, then the listing of the current zone and sort, narrowed by the search while
// "Recherche" is selected.
class AffichageApresModification {
  public:
    AffichageApresModification(EtatListe& liste, AfficheAccueil& afficheAccueil,
                               CreeRequeteAffichage& creeRequeteAffichage)
        : m_liste(liste), m_afficheAccueil(afficheAccueil), m_creeRequeteAffichage(creeRequeteAffichage) {}

    void operator()();

  private:
    EtatListe& m_liste;
    AfficheAccueil& m_afficheAccueil;
    CreeRequeteAffichage& m_creeRequeteAffichage;
};

}  // namespace browse
