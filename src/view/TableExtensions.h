#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace view {

// In the place of a program: the one of the desktop.
inline constexpr const char* kLogicielParDefaut = " Logiciel par défaut";

// The programs that open attached files: column 0 a list of extensions, column 1 the program.
// "Extensions.txt" holds them as pairs of lines.
struct TableExtensions {
    static constexpr std::size_t kLignes = 16;
    static constexpr std::size_t kLignesLues = 15;  // at start-up: one less than there is room for

    std::array<std::array<std::string, 2>, kLignes> lignes;

    // The first row whose list yields that extension, in any letter case; kLignes when there is none.
    [[nodiscard]] std::size_t ligneDe(std::string_view extension) const;
    // Its program; kLogicielParDefaut where there is no such row, or where it names none.
    [[nodiscard]] std::string logiciel(std::string_view extension) const;
};

}  // namespace view
