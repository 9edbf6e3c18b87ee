#pragma once

#include "browse/Contexte.h"

namespace browse {

// Searches the collection for the current film's director.
void lblRealisateur_Click(const Contexte& c);

}  // namespace browse
