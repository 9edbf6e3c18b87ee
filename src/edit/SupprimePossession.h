#pragma once

#include "db/CleFilm.h"
#include "platform/dao/Database.h"

namespace edit {

// Deletes the holding of a film. False when it has none, were it since a moment ago. Throws dao::ErreurDao: the film
// itself must not go then either.
bool supprimePossession(dao::Database& base, const db::CleFilm& film);

}  // namespace edit
