#pragma once

#include "browse/Contexte.h"

namespace browse {

// Runs the search that the panel describes; its three refusals leave the listing as it was.
void cmdRecherche_Click(const Contexte& c);

}  // namespace browse
