#pragma once

#include "browse/Contexte.h"

namespace browse {

// Resets the film-sheet area: the presentation takes the place of whatever the right side showed.
void AfficheAccueil(const Contexte& c);

}  // namespace browse
