#pragma once

#include <array>
#include <string>
#include <string_view>

// The texts of the listing's statements, to the last blank.
namespace browse {

// The listing of a zone (an index of ChoixZone) in the order of a sort (an index of ChoixTri, 0 to 8), narrowed by a
// condition that may be empty. A zone beyond the list has no table: its statement is one that fails.
[[nodiscard]] std::string construitRequete(int zone, int tri, std::string_view condition);

// The condition "the text stands in one of these fields": title, director, year, cast.
[[nodiscard]] std::string construitConditionRecherche(std::string_view texte, const std::array<bool, 4>& champs);

}  // namespace browse
