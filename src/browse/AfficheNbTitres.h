#pragma once

#include "browse/Contexte.h"

namespace browse {

// Shows how many films the catalogue and the holdings have.
void AfficheNbTitres(const Contexte& c);

}  // namespace browse
