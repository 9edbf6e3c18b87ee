#include "ensemble/Suites.h"

#include "browse/AfficheNbTitres.h"
#include "browse/RaffraichitBoitesDeroulantes.h"
#include "edit/RemontreFilm.h"

namespace ensemble {

void rafraichit(const Contexte& c, bool possessions) {
    const browse::EtatPanneaux panneaux = c.panneaux;
    if (c.film.estUnFilm())
        edit::remontreFilm(c);
    else
        browse::AffichageApresModification(c);
    if (!panneaux.frameFiche.Visible) c.panneaux = panneaux;
    browse::AfficheNbTitres(c);
    if (possessions) browse::RaffraichitBoitesDeroulantes(c);
}

}  // namespace ensemble
