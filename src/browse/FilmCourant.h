#pragma once

#include "browse/ChampsPossession.h"

#include <array>
#include <string>

namespace browse {

// The film whose sheet is shown: every later edit finds its rows by these two values.
struct FilmCourant {
    [[nodiscard]] bool estUnFilm() const { return cle.starts_with('K'); }  // false after a heading, or nothing

    std::string cle;  // key of the tree's selected node
    std::string titre;
    std::string realisateur;
    bool fichiersPresents = false;        // one of its attached files is set
    std::array<std::string, 3> fichiers;  // the attached files, for the launcher
    ChampsPossession possession;          // as it was read
    std::string affiche;  // "" none, "JPG" + file name, or "STO" alone: the bytes are in the temporary file
};

}  // namespace browse
