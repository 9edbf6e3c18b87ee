#pragma once

#include "edit/Contexte.h"

#include <cstddef>
#include <string>

namespace edit {

// Deletion of the films ticked in the tree.

void cmdMultiSuppress_Click(const Contexte& c);  // shows the panel
void rangeMultiSuppression(const Contexte& c);   // the panel was left: no boxes any more
void Option4_Click(const Contexte& c);           // the check boxes come or go; ticks out of sight are kept

void montreCoches(const Contexte& c);  // how many films are ticked

// Holdings go with their films when the sheet shows its own film as owned, whatever is true of each. Stopped by the user
// or by a failure of the base, it reports what was deleted until then.
void cmdSupprTitresSelect_Click(const Contexte& c);

[[nodiscard]] std::string questionSuppression(std::size_t nombre);

}  // namespace edit
