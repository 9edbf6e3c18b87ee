#pragma once

#include <string>
#include <string_view>

namespace dao {

// Whether the base's text comparison holds two texts for equal: case, trailing blanks and ligatures make no difference.
[[nodiscard]] bool egalJet(std::string_view gauche, std::string_view droite);

// A text's bytes for sets and maps: two texts have the same ones exactly where egalJet holds. Never empty, no zero byte.
[[nodiscard]] std::string cleDeComparaison(std::string_view texte);

}  // namespace dao
