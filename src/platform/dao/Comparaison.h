#pragma once

#include <string_view>

namespace dao {

// Whether the base's text comparison holds two texts for equal: case, trailing blanks and ligatures make no difference.
[[nodiscard]] bool egalJet(std::string_view gauche, std::string_view droite);

}  // namespace dao
