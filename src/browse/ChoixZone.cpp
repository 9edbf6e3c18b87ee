#include "browse/ChoixZone.h"

#include "browse/CreeEtAfficheRecherche.h"
#include "browse/Occupe.h"

#include <vector>

namespace browse {

void ChoixZone::Click() {
    if (!m_liste.occupe) m_affichageApresModification();
}

void ChoixZone::DropDown() {
    ecran::Liste& zones = m_liste.ChoixZone;
    if (zones.Text != kTexteZoneRecherche) return;
    const Occupe occupe(m_liste);
    std::erase(zones.Items, kTexteZoneRecherche);
    zones.selectionne(kZoneMesFilms);
}

}  // namespace browse
