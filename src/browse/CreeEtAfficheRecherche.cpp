#include "browse/CreeEtAfficheRecherche.h"

#include "browse/Occupe.h"

#include <algorithm>

namespace browse {

void CreeEtAfficheRecherche::operator()() {
    const Occupe occupe(m_liste);
    m_liste.ChoixTri.selectionne(kTriTitre2);
    ecran::Liste& zones = m_liste.ChoixZone;
    const auto recherche = std::find(zones.Items.begin(), zones.Items.end(), kTexteZoneRecherche);
    if (recherche != zones.Items.end()) {
        zones.selectionne(static_cast<int>(recherche - zones.Items.begin()));
    } else {
        zones.AddItem(kTexteZoneRecherche);
        zones.selectionne(kZoneRecherche);
    }
    m_creeRequeteAffichage(m_liste.zoneRecherche, m_liste.ChoixTri.ListIndex, m_liste.critereRecherche);
}

}  // namespace browse
