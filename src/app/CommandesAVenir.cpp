#include "app/CommandesAVenir.h"

#include "app/Etats.h"

namespace app {

namespace {

template <typename... Controles>
void grise(Controles&... controles) {
    ((controles.Enabled = false), ...);
}

void griseFiche(browse::EtatFiche& fiche) {
    grise(fiche.cmdFichiersFilm);
}

void griseAjout(edit::EtatAjout& ajout) {
    grise(ajout.cmdTelecharge);
}

}  // namespace

void griseCommandesAVenir(Etats& etats) {
    griseFiche(etats.fiche);
    griseAjout(etats.ajout);
}

}  // namespace app
