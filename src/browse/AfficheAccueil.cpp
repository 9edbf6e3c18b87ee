#include "browse/AfficheAccueil.h"

#include "browse/CacheFiche.h"

namespace browse {

void AfficheAccueil(const Contexte& c) {
    const bool dejaLa = c.panneaux.framePresentation.Visible;
    CacheFiche(c.panneaux);
    c.panneaux.montre(c.panneaux.framePresentation);
    if (!dejaLa) c.ecran.rafraichit();
}

}  // namespace browse
