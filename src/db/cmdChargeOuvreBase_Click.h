#pragma once

#include "db/Contexte.h"

#include <string>

namespace db {

// The open/create button: another base instead of the open one. A file that cannot be opened, made or converted is told
// to the user before anything is closed, and the open base stays.
void cmdChargeOuvreBase_Click(const Contexte& c);

// The same for a base that was chosen already.
void changeDeBase(const Contexte& c, const std::string& nom);

// For a start whose base cannot be opened, its message shown: offers to choose another one until one opens. False when
// the user does not want to.
[[nodiscard]] bool ouvreUneAutreBase(const Contexte& c);

}  // namespace db
