#pragma once

#include <string_view>
#include <vector>

namespace ensemble {

// The values that one field names: "France/Italie", "Drame, Policier". Without blanks around them, none empty.
[[nodiscard]] std::vector<std::string_view> valeursDe(std::string_view champ);
// The same of people, whom "et" and "&" join, and whose names a comma may part: "Jeunet et Caro".
[[nodiscard]] std::vector<std::string_view> personnesDe(std::string_view champ);

}  // namespace ensemble
