#include "app/CommandesAVenir.h"

#include "app/Etats.h"

namespace app {

namespace {

template <typename... Controles>
void grise(Controles&... controles) {
    ((controles.Enabled = false), ...);
}

void griseFiche(browse::EtatFiche& fiche) {
    grise(fiche.cmdCreeFichierTxt);
    grise(fiche.cmdFichiersFilm);
}

void griseFonctions(EtatFonctions& fonctions) {
    grise(fonctions.cmdCreerListe);
}

void griseAjout(edit::EtatAjout& ajout) {
    grise(ajout.cmdTelecharge);
}

}  // namespace

void griseCommandesAVenir(Etats& etats) {
    griseFiche(etats.fiche);
    griseFonctions(etats.fonctions);
    griseAjout(etats.ajout);
}

}  // namespace app
