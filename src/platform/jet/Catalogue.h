#pragma once

#include "platform/jet/LecteurJet.h"
#include "platform/jet/Pages.h"

#include <vector>

namespace jet::interne {

// The user's tables, as the file's own table of its objects lists them. One whose definition is damaged has no fields.
[[nodiscard]] std::vector<Table> litCatalogue(Pages& pages);

// As much of that list as can be read, then the tables that it does not name, and which have no name here: whatever looks
// like a definition in the file.
[[nodiscard]] std::vector<Table> chercheLesTables(Pages& pages);

}  // namespace jet::interne
