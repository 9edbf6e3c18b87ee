#pragma once

#include <algorithm>
#include <string_view>

// The digits and letters of ASCII, whatever the machine's language; any other character is none, and stays as it is.
namespace util {

template <typename Caractere>
[[nodiscard]] constexpr bool estUnChiffre(Caractere c) {
    return c >= '0' && c <= '9';
}

template <typename Caractere>
[[nodiscard]] constexpr bool estUneMinuscule(Caractere c) {
    return c >= 'a' && c <= 'z';
}

template <typename Caractere>
[[nodiscard]] constexpr bool estUneMajuscule(Caractere c) {
    return c >= 'A' && c <= 'Z';
}

template <typename Caractere>
[[nodiscard]] constexpr bool estUneLettre(Caractere c) {
    return estUneMinuscule(c) || estUneMajuscule(c);
}

template <typename Caractere>
[[nodiscard]] constexpr Caractere enMinuscule(Caractere c) {
    return estUneMajuscule(c) ? static_cast<Caractere>(c + ('a' - 'A')) : c;
}

template <typename Caractere>
[[nodiscard]] constexpr Caractere enMajuscule(Caractere c) {
    return estUneMinuscule(c) ? static_cast<Caractere>(c - ('a' - 'A')) : c;
}

[[nodiscard]] inline bool egalSansCasseAscii(std::string_view gauche, std::string_view droite) {
    return std::equal(gauche.begin(), gauche.end(), droite.begin(), droite.end(),
                      [](char g, char d) { return enMinuscule(g) == enMinuscule(d); });
}

}  // namespace util
