#pragma once

#include "db/CleFilm.h"
#include "platform/dao/Recordset.h"

#include <string>

namespace edit {

// Adds the holding of a film that was just stored: its title and director, cut as the film's are, its support, and
// nothing else yet. Throws dao::ErreurDao.
void ajoutePossession(dao::Recordset& personnel, const db::CleFilm& film, const std::string& support = "");

// Names another film in the holding that is being added or edited, cut in the same way.
void nommeFilmPossede(dao::Recordset& possession, const db::CleFilm& film);

}  // namespace edit
