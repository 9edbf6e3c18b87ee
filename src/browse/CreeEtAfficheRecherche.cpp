#include "browse/CreeEtAfficheRecherche.h"

#include "browse/AfficheAccueil.h"
#include "browse/CreeRequeteAffichage.h"
#include "browse/ListesDeChoix.h"

namespace browse {

void CreeEtAfficheRecherche(const Contexte& c) {
    EtatListe& liste = c.liste;
    const Occupe occupe(liste);
    liste.ChoixTri.selectionne(kTriTitre2);
    choisitZoneRecherche(liste);
    CreeRequeteAffichage(c, liste.zoneRecherche, liste.ChoixTri.ListIndex, liste.critereRecherche);
    ++liste.recherches;
}

void montreAjoutsDuJour(const Contexte& c, const std::string& date) {
    if (c.panneaux.frameFiche.Visible) AfficheAccueil(c);  // its film is forgotten with the listing
    c.liste.critereRecherche = "DateAjout = \"" + date + "\"";
    c.liste.zoneRecherche = kZoneTous;
    CreeEtAfficheRecherche(c);
}

}  // namespace browse
