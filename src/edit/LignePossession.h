#pragma once

#include "db/CleFilm.h"
#include "platform/dao/Database.h"

#include <string>

// The row of a film's holding, as the film comes, changes its name and goes.
namespace edit {

// Adds the holding of a film that was just stored: its title and director, cut as the film's are, its support, and
// nothing else yet. Throws dao::ErreurDao.
void ajoutePossession(dao::Recordset& personnel, const db::CleFilm& film, const std::string& support = "");

// Names another film in the holding that is being added or edited, cut in the same way.
void nommeFilmPossede(dao::Recordset& possession, const db::CleFilm& film);

// Deletes the holding of a film. False when it has none, were it since a moment ago. Throws dao::ErreurDao: the film
// itself must not go then either.
bool supprimePossession(dao::Database& base, const db::CleFilm& film);

}  // namespace edit
