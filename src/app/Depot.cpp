#include "app/Depot.h"

#include "acquire/FichesDeposees.h"
#include "app/Saisies.h"
#include "browse/AfficheAccueil.h"
#include "browse/ChargeAffiche.h"
#include "browse/Label12_Click.h"
#include "view/cmdRemplacerImage_Click.h"

namespace app {

void deposeAffiche(const Contexte& c, const std::string& image) {
    if (!c.film.estUnFilm()) return;
    if (c.fiche.Image1.Visible || c.fiche.Label12.Caption == browse::kImageIllisible)
        view::remplaceAffiche(c, image);
    else
        browse::attacheAffiche(c, image);
}

void importeFichesDeposees(const Contexte& c, const std::vector<std::string>& chemins) {
    const browse::Arbre& arbre = c.liste.TreeView1.Nodes;
    const int avant = arbre.generation();
    const bool saisie = c.saisies.pageMontree();
    acquire::importeFichesDeposees(c, chemins);
    if (saisie && arbre.generation() != avant) browse::AfficheAccueil(c);
}

}  // namespace app
