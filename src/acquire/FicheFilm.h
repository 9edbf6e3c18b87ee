#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace acquire {

inline constexpr const char* kNonDefini = "Non défini";

// What a .FILM sheet says: its first nine lines, by position, each cut to its column except the summary, so that a line
// of any length does no harm.
struct FicheFilm {
    std::string premiereLigne;  // the title as the sheet writes it
    std::string titre;          // in the house capitals; never empty
    std::string realisateur;    // never empty
    std::string annee, origine, genre, duree, acteurs, resume, production;
};

// Reads the text of a sheet: UTF-8 or Windows-1252, lines ended by CR LF, LF or CR. Missing lines are empty, later ones
// ignored; NULs, which no column can hold, are dropped.
[[nodiscard]] FicheFilm analyseFiche(std::string_view octets);

// Nothing when the file cannot be read, or is too large to be a sheet.
[[nodiscard]] std::optional<FicheFilm> litFiche(const std::string& chemin);

}  // namespace acquire
