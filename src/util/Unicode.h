#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <unicode/utf16.h>
#include <unicode/utf8.h>

// Text as code points.
namespace util {

inline constexpr UChar32 kRemplacement = 0xFFFD;  // for what is no character, or may not stand where it does

[[nodiscard]] constexpr bool estUnSigneDeCommande(UChar32 point) {
    return (point >= 0 && point < 0x20) || (point >= 0x7F && point < 0xA0);
}
// What follows it is shown from its end.
[[nodiscard]] constexpr bool retourneLesLettres(UChar32 point) {
    return (point >= 0x202A && point <= 0x202E) || (point >= 0x2066 && point <= 0x2069);
}

struct PointDeCode {
    UChar32 valeur = -1;     // -1: a byte that is no UTF-8
    std::size_t taille = 1;  // in bytes; always 1 for such a byte
};

[[nodiscard]] inline PointDeCode litPoint(std::string_view texte, std::size_t position) {
    const auto premier = static_cast<unsigned char>(texte[position]);
    if (premier < 0x80) return {premier, 1};
    const auto* octets = reinterpret_cast<const unsigned char*>(texte.data());
    std::size_t fin = position;
    UChar32 valeur = -1;
    U8_NEXT(octets, fin, texte.size(), valeur);
    return valeur < 0 ? PointDeCode{} : PointDeCode{valeur, fin - position};
}

inline void ajoutePoint(std::string& texte, UChar32 valeur) {
    char octets[U8_MAX_LENGTH];
    std::size_t taille = 0;
    U8_APPEND_UNSAFE(octets, taille, valeur);
    texte.append(octets, taille);
}

inline void ajoutePoint(std::u16string& texte, UChar32 valeur) {
    char16_t unites[U16_MAX_LENGTH];
    std::size_t taille = 0;
    U16_APPEND_UNSAFE(unites, taille, valeur);
    texte.append(unites, taille);
}

// `change` gets each code point; bytes that are no UTF-8 pass as they are.
template <typename Change>
[[nodiscard]] std::string transforme(std::string_view texte, Change change) {
    std::string resultat;
    resultat.reserve(texte.size());
    for (std::size_t i = 0; i < texte.size();) {
        const PointDeCode point = litPoint(texte, i);
        if (point.valeur < 0)
            resultat += texte[i];
        else
            ajoutePoint(resultat, change(point.valeur));
        i += point.taille;
    }
    return resultat;
}

// What a byte is in code page 1252, as Texte.h reads it.
[[nodiscard]] UChar32 pointDepuis1252(unsigned char octet);

// One to one, so that no letter ever becomes two.
[[nodiscard]] UChar32 minusculeDe(UChar32 point);
[[nodiscard]] UChar32 majusculeDe(UChar32 point);
// The same for two points that differ by case only.
[[nodiscard]] UChar32 casseRepliee(UChar32 point);
[[nodiscard]] UChar32 sansAccent(UChar32 point);

// Where `attendu` ends in `texte` when it stands at `position`, whatever its letter case; npos when it does not.
[[nodiscard]] std::size_t finSansCasse(std::string_view texte, std::size_t position, std::string_view attendu);

}  // namespace util
