#include "platform/dao/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include <unicode/utf16.h>
#include <unicode/utf8.h>

namespace dao::interne {

CaractereLu litCaractere(std::string_view texte) {
    const auto* octets = reinterpret_cast<const std::uint8_t*>(texte.data());
    const auto longueur = static_cast<std::int32_t>(std::min<std::size_t>(texte.size(), 4));
    std::int32_t rang = 0;
    UChar32 point = 0;
    U8_NEXT(octets, rang, longueur, point);
    if (point < 0) return {octets[0], 1, false};
    return {static_cast<char32_t>(point), static_cast<std::size_t>(rang), true};
}

void ecritCaractere(char32_t point, std::string& resultat) {
    std::array<std::uint8_t, 4> octets{};
    std::size_t taille = 0;
    U8_APPEND_UNSAFE(octets, taille, point);
    resultat.append(reinterpret_cast<const char*>(octets.data()), taille);
}

void ecritCaractere(char32_t point, std::u16string& resultat) {
    std::array<char16_t, 2> unites{};
    std::size_t taille = 0;
    U16_APPEND_UNSAFE(unites, taille, point);
    resultat.append(unites.data(), taille);
}

}  // namespace dao::interne
