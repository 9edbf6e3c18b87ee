#pragma once

#include "edit/Contexte.h"

namespace edit {

// Fills the three lists of the manual page (genre, origin, production) with what the catalogue knows of each; nothing
// that was typed in them stays. Throws db::RequeteEchouee after its message.
void remplitListesDeSaisie(const Contexte& c);

}  // namespace edit
