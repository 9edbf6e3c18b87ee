#pragma once

#include "browse/Contexte.h"

#include <string_view>

namespace browse {

// Selects a film in the tree by its title and director, compared as the base compares them, and shows its sheet. Nothing
// happens where the listing does not have it. By value: showing a sheet changes the current film, which callers may pass.
void SelectionneTitre(const Contexte& c, db::CleFilm film);

// The film's node, 0 where the listing does not have it.
[[nodiscard]] int noeudDuFilm(const Contexte& c, const db::CleFilm& film);

// Opens and selects the heading of a value.
void SelectionneGroupe(const Contexte& c, std::string_view valeur);

}  // namespace browse
