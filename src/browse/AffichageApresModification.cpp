#include "browse/AffichageApresModification.h"

#include "browse/AfficheAccueil.h"
#include "browse/CreeRequeteAffichage.h"
#include "browse/ListesDeChoix.h"

namespace browse {

void AffichageApresModification(const Contexte& c) {
    AfficheAccueil(c);
    const EtatListe& liste = c.liste;
    const bool recherche = !liste.critereRecherche.empty() && liste.ChoixZone.Text == kTexteZoneRecherche;
    CreeRequeteAffichage(c, liste.ChoixZone.ListIndex, liste.ChoixTri.ListIndex,
                         recherche ? liste.critereRecherche : "");
}

void listeTousLesFilms(const Contexte& c) {
    c.liste.ChoixZone.selectionne(kZoneTous);
    const int tri = c.liste.ChoixTri.ListIndex;
    if (estUnTri(tri) && !seTrie(kZoneTous, tri)) c.liste.ChoixTri.selectionne(kTriTitre1);
    AffichageApresModification(c);
}

}  // namespace browse
