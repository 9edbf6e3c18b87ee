#pragma once

#include <string>
#include <string_view>

namespace util {

// Each double quote doubled: what stands between the quotes of a literal.
[[nodiscard]] std::string doubleGuillemets(std::string_view valeur);
// A literal of the program's statements: the value between double quotes, each double quote inside it doubled.
[[nodiscard]] std::string entreGuillemets(std::string_view valeur);

}  // namespace util
