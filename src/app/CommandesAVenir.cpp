#include "app/CommandesAVenir.h"

#include "app/Etats.h"

namespace app {

namespace {

template <typename... Controles>
void grise(Controles&... controles) {
    ((controles.Enabled = false), ...);
}

}  // namespace

void griseCommandesAVenir(Etats& etats) {
    grise(etats.fiche.cmdFichiersFilm);
}

}  // namespace app
