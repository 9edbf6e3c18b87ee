#include "app/Depot.h"

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

}  // namespace app
