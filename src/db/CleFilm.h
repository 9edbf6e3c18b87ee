#pragma once

#include <string>

namespace db {

// What tells a film from the others: its title and its director, as the base holds them or will hold them.
struct CleFilm {
    std::string titre;
    std::string realisateur;

    friend bool operator==(const CleFilm&, const CleFilm&) = default;  // the very same texts
};

// The base holds them for the same film: Jet's equality of both texts.
[[nodiscard]] bool memeFilm(const CleFilm& gauche, const CleFilm& droite);

}  // namespace db
