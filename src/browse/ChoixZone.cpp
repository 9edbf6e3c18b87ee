#include "browse/ChoixZone.h"

#include "browse/AffichageApresModification.h"
#include "browse/ListesDeChoix.h"

namespace browse {

void ChoixZone_Click(const Contexte& c) {
    if (!c.liste.occupe) AffichageApresModification(c);
}

void ChoixZone_DropDown(const Contexte& c) {
    quitteZoneRecherche(c.liste, kZoneMesFilms);
}

void ChoixZone_CloseUp(const Contexte& c) {
    nommeCeQuiEstMontre(c.liste);
}

}  // namespace browse
