#pragma once

#include "edit/FilmExamine.h"

#include <optional>
#include <string>
#include <string_view>

namespace acquire {

inline constexpr const char* kNonDefini = "Non défini";

// What a .FILM sheet says: its first nine lines, by position, each cut to its column except the summary, so that a line
// of any length does no harm. Its title, in the house capitals, and its director are never empty.
struct FicheFilm : edit::FilmLu {
    std::string premiereLigne;  // the title as the sheet writes it
};

// Reads the text of a sheet: UTF-8, UTF-16, UTF-32 or Windows-1252, lines ended by CR LF, LF or CR. Missing lines are
// empty, later ones ignored; NULs, which no column can hold, are dropped. Nothing when the bytes are no text.
[[nodiscard]] std::optional<FicheFilm> analyseFiche(std::string_view octets);

// Nothing when the file cannot be read, is no text, or is too large to be a sheet.
[[nodiscard]] std::optional<FicheFilm> litFiche(const std::string& chemin);

}  // namespace acquire
