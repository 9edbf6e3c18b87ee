#pragma once

#include "platform/jet/LecteurJet.h"
#include "platform/jet/Pages.h"

#include <vector>

namespace jet::interne {

// The user's tables, as the file's own table of its objects lists them. One whose definition is damaged has no fields.
[[nodiscard]] std::vector<Table> litCatalogue(Pages& pages);

}  // namespace jet::interne
