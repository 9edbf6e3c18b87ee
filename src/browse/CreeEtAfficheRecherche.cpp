#include "browse/CreeEtAfficheRecherche.h"

#include "browse/Occupe.h"
#include "browse/ZoneRecherche.h"

namespace browse {

void CreeEtAfficheRecherche::operator()() {
    const Occupe occupe(m_liste);
    m_liste.ChoixTri.selectionne(kTriTitre2);
    choisitZoneRecherche(m_liste);
    m_creeRequeteAffichage(m_liste.zoneRecherche, m_liste.ChoixTri.ListIndex, m_liste.critereRecherche);
}

}  // namespace browse
