#pragma once

#include <cstddef>

// What the columns of the base hold at most, in characters: longer texts are cut when they are written.
namespace edit {

inline constexpr std::size_t kLongueurTitre = 100, kLongueurRealisateur = 100, kLongueurAnnee = 4,
                             kLongueurOrigine = 40, kLongueurDuree = 6, kLongueurGenre = 40, kLongueurActeurs = 200,
                             kLongueurProduction = 30;
inline constexpr std::size_t kLongueurSupport = 20, kLongueurDivers = 30;  // of a holding

}  // namespace edit
