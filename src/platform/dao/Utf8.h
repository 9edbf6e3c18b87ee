#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace dao::interne {

struct CaractereLu {
    char32_t point;
    std::size_t octets;
    bool valide;  // false: a byte that is no UTF-8, read as the Latin-1 character of that value
};

// The character at the start of a text that is not empty.
[[nodiscard]] CaractereLu litCaractere(std::string_view texte);
void ecritCaractere(char32_t point, std::string& resultat);
void ecritCaractere(char32_t point, std::u16string& resultat);

}  // namespace dao::interne
