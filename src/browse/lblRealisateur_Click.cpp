#include "browse/lblRealisateur_Click.h"

namespace browse {

void lblRealisateur_Click::operator()() {
    m_cmdFonctionRecherche();
    m_recherche.Text2.Text = m_film.realisateur;
    for (ecran::CaseACocher& champ : m_recherche.ZoneRecherche)
        champ.Value = 0;
    m_recherche.ZoneRecherche[1].Value = 1;
    m_cmdRecherche();
}

}  // namespace browse
