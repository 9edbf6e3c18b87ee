#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace util {

// A title in the house form: lower case, a capital at the start of each word, Roman numerals from I to C in capitals.
// Only letter case changes.
[[nodiscard]] std::string metEnCapitales(std::string_view titre);
// 1 to 3999 in Roman numerals ("IV"); "" outside.
[[nodiscard]] std::string chiffresRomains(int nombre);
// The 1-based position, in characters, of a whole word (bounded by a blank, a comma, a full stop or the text's ends),
// compared without regard to case; 0 when absent.
[[nodiscard]] std::size_t chercheMotEntier(std::string_view texte, std::string_view mot);

}  // namespace util
