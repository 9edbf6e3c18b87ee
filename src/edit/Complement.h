#pragma once

#include "edit/FilmExamine.h"
#include "platform/dao/Database.h"

#include <string>
#include <vector>

// What a film that is read can add to the one of its name in the base: what is empty there, or Null, and nothing else.
namespace edit {

inline constexpr const char* kChampAffiche = "Affiche";

// The columns of the current row that `lu` can fill, in the order of the sheet; the poster is no part of it.
[[nodiscard]] std::vector<std::string> champsACompleter(const dao::Recordset& film, const FilmLu& lu);
// Writes these into the row, which is being edited.
void complete(dao::Recordset& film, const FilmLu& lu);

// "année, durée, affiche".
[[nodiscard]] std::string legendes(const std::vector<std::string>& champs);

}  // namespace edit
