#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace app {

inline constexpr const char* kFichierExtensions = "Extensions.txt";
// In the place of a program: the one of the desktop.
inline constexpr const char* kLogicielParDefaut = " Logiciel par défaut";

// The programs that open attached files: column 0 a list of extensions, column 1 the program.
// "Extensions.txt" holds them as pairs of lines.
struct TableExtensions {
    static constexpr std::size_t kLignes = 16;
    static constexpr std::size_t kLignesLues = 15;  // at start-up: one less than there is room for

    std::array<std::array<std::string, 2>, kLignes> lignes;
};

// Fills the table from the file's lines; returns how many rows. The last extension of an odd file gets an empty program.
[[nodiscard]] std::size_t litExtensions(const std::vector<std::string>& lignesDuFichier, TableExtensions& table);

// The file's text for the first `nombre` rows; the table has no row beyond its sixteenth.
[[nodiscard]] std::string texteExtensions(const TableExtensions& table, std::size_t nombre);

}  // namespace app
