#pragma once

#include "db/CleFilm.h"

#include <string>

namespace db {

// The statements that find one film by its title and its director.

// The film's row in the catalogue.
[[nodiscard]] std::string enonceFilm(const CleFilm& film);

// The same rows, in the text that ratings use.
[[nodiscard]] std::string enonceFilmNote(const CleFilm& film);

// The same rows, in the text that deletion and renaming use.
[[nodiscard]] std::string enonceFilmModifie(const CleFilm& film);

// The film's row in the holdings.
[[nodiscard]] std::string enoncePossession(const CleFilm& film);

}  // namespace db
