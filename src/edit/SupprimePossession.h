#pragma once

#include "platform/dao/Database.h"

#include <string>

namespace edit {

// Deletes the holding of a film. False when it has none, were it since a moment ago. Throws dao::ErreurDao: the film
// itself must not go then either.
bool supprimePossession(dao::Database& base, const std::string& titre, const std::string& realisateur);

}  // namespace edit
