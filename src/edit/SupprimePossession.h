#pragma once

#include "platform/dao/Database.h"

#include <string>

namespace edit {

// Deletes the holding of a film. False when it has none, and when it cannot be deleted: that error is passed over.
bool supprimePossession(dao::Database& base, const std::string& titre, const std::string& realisateur);

}  // namespace edit
