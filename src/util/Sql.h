#pragma once

#include "util/Texte.h"

#include <string>
#include <string_view>

namespace util {

// Each double quote doubled: what stands between the quotes of a literal.
[[nodiscard]] inline std::string doubleGuillemets(std::string_view valeur) {
    return remplace(valeur, "\"", "\"\"");
}
// A literal of the program's statements, or a name in them: the value between double quotes, each one inside it doubled.
[[nodiscard]] inline std::string entreGuillemets(std::string_view valeur) {
    return '"' + doubleGuillemets(valeur) + '"';
}

}  // namespace util
