#include "browse/ChoixZone.h"

#include "browse/ZoneRecherche.h"

namespace browse {

void ChoixZone::Click() {
    if (!m_liste.occupe) m_affichageApresModification();
}

void ChoixZone::DropDown() {
    quitteZoneRecherche(m_liste, kZoneMesFilms);
}

void ChoixZone::CloseUp() {
    nommeCeQuiEstMontre(m_liste);
}

}  // namespace browse
