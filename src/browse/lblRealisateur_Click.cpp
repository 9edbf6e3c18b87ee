#include "browse/lblRealisateur_Click.h"

#include "browse/cmdFonctionRecherche_Click.h"
#include "browse/cmdRecherche_Click.h"

namespace browse {

void lblRealisateur_Click(const Contexte& c) {
    cmdFonctionRecherche_Click(c);
    c.recherche.Text2.Text = c.film.realisateur;
    for (ecran::CaseACocher& champ : c.recherche.ZoneRecherche)
        champ.Value = 0;
    c.recherche.ZoneRecherche[1].Value = 1;
    cmdRecherche_Click(c);
}

}  // namespace browse
