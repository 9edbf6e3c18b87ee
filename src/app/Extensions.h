#pragma once

#include "app/Contexte.h"

#include <cstddef>
#include <string>
#include <vector>

namespace app {

inline constexpr const char* kFichierExtensions = "Extensions.txt";
using view::kLogicielParDefaut;
using view::TableExtensions;

// Fills the table from the file's lines; returns how many rows. The last extension of an odd file gets an empty program.
// A line that is longer than any path counts as empty.
[[nodiscard]] std::size_t litExtensions(const std::vector<std::string>& lignesDuFichier, TableExtensions& table);

// The file's text for the first `nombre` rows; the table has no row beyond its sixteenth.
[[nodiscard]] std::string texteExtensions(const TableExtensions& table, std::size_t nombre);

// Replaces the file by the table's rows, as many as there are extensions to choose; tells the user when it cannot be.
void enregistreExtensions(const Contexte& c);

}  // namespace app
