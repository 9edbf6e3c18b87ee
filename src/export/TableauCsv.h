#pragma once

#include "export/FilmExporte.h"

#include <string>

// The films as a table of spreadsheets: UTF-8 with its mark, ";" between values, lines ended by CR LF. A film has one line
// for each of its holdings, and one without any.
namespace exportation {

[[nodiscard]] std::string enteteDuTableau(const Champs& champs);
void ajouteLignes(std::string& tableau, const FilmExporte& film, const Champs& champs);

}  // namespace exportation
