#pragma once

#include "browse/ChampsPossession.h"
#include "db/CleFilm.h"

#include <array>
#include <string>

namespace browse {

// The film whose sheet is shown: every later edit finds its rows by these two values.
struct FilmCourant : db::CleFilm {
    [[nodiscard]] bool estUnFilm() const { return cle.starts_with('K'); }  // false after a heading, or nothing

    std::string cle;                      // key of the tree's selected node
    bool fichiersPresents = false;        // one of its attached files is set
    std::array<std::string, 3> fichiers;  // the attached files, for the launcher
    ChampsPossession possession;          // as it was read
    std::string affiche;           // "" none, "JPG" + file name, or "STO" alone: the bytes are in the temporary file
    bool afficheAttendue = false;  // it has one that ought to be in the temporary file
};

}  // namespace browse
