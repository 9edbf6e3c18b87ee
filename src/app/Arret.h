#pragma once

#include "app/Contexte.h"

namespace app {

// The shut-down: closes the base, writes the settings and the program table, empties "Tmp". A step that fails is told to
// the user and keeps none of the others from being done. `ecritReglages` is false when the settings file could not be
// read at start-up: it is then left as it is.
void arrete(const Contexte& c, bool ecritReglages);

}  // namespace app
