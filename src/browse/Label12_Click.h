#pragma once

#include "browse/Contexte.h"

#include <string>

namespace browse {

// Gives the film of the sheet the poster that the user chooses, where new posters go, and shows the sheet again. Does
// nothing when the film has one, and replaces none that it has got since. A poster that cannot be stored is told to the
// user, and leaves base and files as they were. Throws what AfficheFiche throws.
void Label12_Click(const Contexte& c);

// The same with a file that was chosen otherwise, for a film that has no poster.
void attacheAffiche(const Contexte& c, const std::string& image);

}  // namespace browse
