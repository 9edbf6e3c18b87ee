#pragma once

#include "edit/Contexte.h"

#include <cstddef>
#include <string>

namespace edit {

// Deletion of the films ticked in the tree.

void cmdMultiSuppress_Click(const Contexte& c);  // shows the panel
void rangeMultiSuppression(const Contexte& c);   // the panel was left: no boxes any more
void Option4_Click(const Contexte& c);           // the check boxes come or go; ticks out of sight are kept

// How many films are ticked, of which so many are out of sight.
void montreCoches(const Contexte& c, std::ptrdiff_t masques);

// Holdings go with their films when the sheet shows its own film as owned, whatever is true of each. Stopped by the user
// or by a failure of the base, it reports what was deleted until then.
void cmdSupprTitresSelect_Click(const Contexte& c);

[[nodiscard]] std::string questionSuppression(std::size_t nombre);

}  // namespace edit
