#pragma once

#include <string>
#include <string_view>

// The statements that find one film by its title and its director.
namespace db {

// The film's row in the catalogue.
[[nodiscard]] std::string enonceFilm(std::string_view titre, std::string_view realisateur);
// The same rows, in the text that ratings use.
[[nodiscard]] std::string enonceFilmNote(std::string_view titre, std::string_view realisateur);
// The same rows, in the text that deletion and renaming use.
[[nodiscard]] std::string enonceFilmModifie(std::string_view titre, std::string_view realisateur);
// The film's row in the holdings.
[[nodiscard]] std::string enoncePossession(std::string_view titre, std::string_view realisateur);

}  // namespace db
