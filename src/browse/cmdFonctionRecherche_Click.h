#pragma once

#include "browse/Contexte.h"

namespace browse {

// Opens the search panel, ready to type.
void cmdFonctionRecherche_Click(const Contexte& c);

}  // namespace browse
