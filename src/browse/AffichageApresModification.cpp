#include "browse/AffichageApresModification.h"

#include "browse/ZoneRecherche.h"

namespace browse {

void AffichageApresModification::operator()() {
    m_afficheAccueil();
    const bool recherche = !m_liste.critereRecherche.empty() && m_liste.ChoixZone.Text == kTexteZoneRecherche;
    m_creeRequeteAffichage(m_liste.ChoixZone.ListIndex, m_liste.ChoixTri.ListIndex,
                           recherche ? m_liste.critereRecherche : "");
}

}  // namespace browse
