#include "browse/ListesDeChoix.h"

#include <algorithm>
#include <vector>

namespace browse {

void choisitZoneRecherche(EtatListe& liste) {
    ecran::Liste& zones = liste.ChoixZone;
    const auto recherche = std::find(zones.Items.begin(), zones.Items.end(), kTexteZoneRecherche);
    const auto rang = static_cast<int>(recherche - zones.Items.begin());
    if (recherche == zones.Items.end()) zones.AddItem(kTexteZoneRecherche);
    zones.selectionne(rang);
}

void quitteZoneRecherche(EtatListe& liste, int zone) {
    ecran::Liste& zones = liste.ChoixZone;
    if (zones.Text != kTexteZoneRecherche) return;
    const Occupe occupe(liste);
    std::erase(zones.Items, kTexteZoneRecherche);
    zones.selectionne(zone);
}

void nommeCeQuiEstMontre(EtatListe& liste) {
    if (liste.zoneDeLArbre < 0) return;
    const Occupe occupe(liste);
    liste.ChoixTri.selectionne(liste.triDeLArbre);
    if (liste.zoneDeLArbre == kZoneRecherche) return choisitZoneRecherche(liste);
    quitteZoneRecherche(liste, liste.zoneDeLArbre);
    liste.ChoixZone.selectionne(liste.zoneDeLArbre);
}

}  // namespace browse
