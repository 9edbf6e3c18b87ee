#pragma once

#include "edit/Contexte.h"

namespace edit {

// Opens the manual page in modify mode, filled from the current film; nothing where no film is current. Throws
// db::RequeteEchouee after its message.
void cmdModifierTitre_Click(const Contexte& c);

}  // namespace edit
