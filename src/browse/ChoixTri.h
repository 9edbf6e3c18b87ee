#pragma once

#include "browse/Contexte.h"

namespace browse {

// The event of the sort list: an entry was selected, by the user or by the program.
void ChoixTri_Click(const Contexte& c);

}  // namespace browse
