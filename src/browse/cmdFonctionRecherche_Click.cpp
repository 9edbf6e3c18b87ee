#include "browse/cmdFonctionRecherche_Click.h"

#include "browse/AfficheAccueil.h"

namespace browse {

void cmdFonctionRecherche_Click(const Contexte& c) {
    AfficheAccueil(c);
    c.panneaux.montre(c.panneaux.frameRecherche);
    c.demandes.focus = "Text2";
    c.demandes.boutonParDefaut = "cmdRecherche";
}

}  // namespace browse
