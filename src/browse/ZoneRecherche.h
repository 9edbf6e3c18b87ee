#pragma once

#include "browse/EtatListe.h"

// The pseudo-zone "Recherche" of the zone list: there only while a search is shown.
namespace browse {

inline constexpr const char* kTexteZoneRecherche = "Recherche";

void choisitZoneRecherche(EtatListe& liste);  // adds it where it is missing
// Puts another zone in its place; nothing where "Recherche" is not the one selected.
void quitteZoneRecherche(EtatListe& liste, int zone);
// Lets the two lists name what the tree shows: after a choice that was refused, or not made in the end.
void nommeCeQuiEstMontre(EtatListe& liste);

}  // namespace browse
