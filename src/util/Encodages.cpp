#include "util/Texte.h"
#include "util/Unicode.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>

namespace util {

namespace {

constexpr std::string_view kMarqueUtf8 = "\xEF\xBB\xBF";
constexpr std::string_view kMarqueUtf16Petit = "\xFF\xFE";
constexpr std::string_view kMarqueUtf16Grand = "\xFE\xFF";
constexpr std::string_view kMarqueUtf32Petit("\xFF\xFE\0\0", 4);
constexpr std::string_view kMarqueUtf32Grand("\0\0\xFE\xFF", 4);

// Windows-1252 from 80 to 9F; the five bytes it leaves unused stand for themselves.
constexpr std::array<char16_t, 32> k1252 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char octet1252(UChar32 point) {
    if (point >= 0 && (point < 0x80 || point >= 0xA0) && point <= 0xFF) return static_cast<char>(point);
    const auto* trouve = std::find(k1252.begin(), k1252.end(), point);
    return trouve == k1252.end() ? '?' : static_cast<char>(0x80 + (trouve - k1252.begin()));
}

// A letter written as base and accent becomes one code point where there is one; else -1.
UChar32 pointUnique(std::string_view caractere) {
    UErrorCode etat = U_ZERO_ERROR;
    const icu::Normalizer2* composition = icu::Normalizer2::getNFCInstance(etat);
    if (U_FAILURE(etat)) return -1;
    const auto compose = composition->normalize(
        icu::UnicodeString::fromUTF8(icu::StringPiece(caractere.data(), static_cast<int>(caractere.size()))), etat);
    return U_SUCCESS(etat) && compose.countChar32() == 1 ? compose.char32At(0) : -1;
}

bool estAscii(std::string_view octets) {
    return std::all_of(octets.begin(), octets.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string depuisUtf16(std::string_view octets, bool petitDabord) {
    const auto octet = [&](std::size_t i) { return static_cast<unsigned char>(octets[i]); };
    const auto unite = [&](std::size_t i) -> char16_t {
        const unsigned fort = octet(petitDabord ? i + 1 : i), faible = octet(petitDabord ? i : i + 1);
        return static_cast<char16_t>(fort << 8 | faible);
    };
    std::u16string unites;
    unites.reserve(octets.size() / 2);
    for (std::size_t i = 0; i + 1 < octets.size(); i += 2)
        unites += unite(i);
    return util::depuisUtf16(unites) + depuis1252(octets.substr(2 * unites.size()));  // an odd last byte is not lost
}

std::string depuisUtf32(std::string_view octets, bool petitDabord) {
    std::string texte;
    for (std::size_t i = 0; i + 3 < octets.size(); i += 4) {
        std::uint32_t point = 0;
        for (std::size_t rang = 0; rang < 4; ++rang)
            point = point << 8 | static_cast<unsigned char>(octets[i + (petitDabord ? 3 - rang : rang)]);
        const bool existe = point <= 0x10FFFF && !U_IS_SURROGATE(point);
        ajoutePoint(texte, existe ? static_cast<UChar32>(point) : kRemplacement);
    }
    return texte;
}

std::optional<std::string> decodeSelonLaMarque(std::string_view octets) {
    if (octets.starts_with(kMarqueUtf32Petit)) return depuisUtf32(octets.substr(4), true);
    if (octets.starts_with(kMarqueUtf32Grand)) return depuisUtf32(octets.substr(4), false);
    if (octets.starts_with(kMarqueUtf16Petit)) return depuisUtf16(octets.substr(2), true);
    if (octets.starts_with(kMarqueUtf16Grand)) return depuisUtf16(octets.substr(2), false);
    return std::nullopt;
}

// Marks are dropped as often as they stand there: what is written of the text must not begin with one again.
std::string_view sansMarque(std::string_view texte) {
    while (texte.starts_with(kMarqueUtf8))
        texte.remove_prefix(kMarqueUtf8.size());
    return texte;
}

// Of bytes that call themselves UTF-8, those that are none are taken for Windows-1252.
std::string enUtf8(std::string_view octets) {
    std::string texte;
    texte.reserve(octets.size());
    for (std::size_t i = 0; i < octets.size();) {
        const PointDeCode point = litPoint(octets, i);
        ajoutePoint(texte, point.valeur < 0 ? pointDepuis1252(static_cast<unsigned char>(octets[i])) : point.valeur);
        i += point.taille;
    }
    return texte;
}

// Of a text without a mark: the alphabets of Europe leave one byte of nearly every pair at zero.
std::optional<bool> petitDabordSansMarque(std::string_view octets) {
    const std::string_view debut = octets.substr(0, std::min<std::size_t>(octets.size() & ~std::size_t{1}, 4096));
    std::array<std::size_t, 2> nuls{};
    for (std::size_t i = 0; i < debut.size(); ++i)
        nuls[i % 2] += debut[i] == 0 ? 1 : 0;
    const auto [premiers, seconds] = nuls;
    if (seconds * 4 > debut.size() && premiers * 20 < debut.size()) return true;
    if (premiers * 4 > debut.size() && seconds * 20 < debut.size()) return false;
    return std::nullopt;
}

}  // namespace

bool estUtf8(std::string_view octets) {
    for (std::size_t i = 0; i < octets.size();) {
        const PointDeCode point = litPoint(octets, i);
        if (point.valeur < 0) return false;
        i += point.taille;
    }
    return true;
}

UChar32 pointDepuis1252(unsigned char octet) {
    return octet >= 0x80 && octet < 0xA0 ? k1252[octet - 0x80u] : octet;
}

std::string depuis1252(std::string_view octets) {
    std::string texte;
    texte.reserve(octets.size());
    for (const char c : octets)
        ajoutePoint(texte, pointDepuis1252(static_cast<unsigned char>(c)));
    return texte;
}

std::string vers1252(std::string_view texte) {
    if (estAscii(texte)) return std::string(texte);
    std::string octets;
    octets.reserve(texte.size());
    for (const std::string_view caractere : caracteres(texte)) {
        const PointDeCode point = litPoint(caractere, 0);
        if (point.valeur < 0)
            octets += caractere;
        else
            octets += octet1252(point.taille == caractere.size() ? point.valeur : pointUnique(caractere));
    }
    return octets;
}

// By lots: ICU counts in 32 bits.
std::string depuisUtf16(std::u16string_view unites) {
    constexpr std::size_t kLot = 1 << 20, kOctetsParUnite = 3;
    std::string texte;
    while (!unites.empty()) {
        std::size_t nombre = std::min(unites.size(), kLot);
        if (nombre < unites.size() && U16_IS_LEAD(unites[nombre - 1])) --nombre;  // its other half follows
        const std::size_t debut = texte.size();
        texte.resize(debut + nombre * kOctetsParUnite);
        std::int32_t longueur = 0;
        UErrorCode etat = U_ZERO_ERROR;
        u_strToUTF8WithSub(texte.data() + debut, static_cast<std::int32_t>(nombre * kOctetsParUnite), &longueur,
                           unites.data(), static_cast<std::int32_t>(nombre), kRemplacement, nullptr, &etat);
        texte.resize(debut + static_cast<std::size_t>(longueur));
        unites.remove_prefix(nombre);
    }
    return texte;
}

std::string decodeTexteExterne(std::string_view octets) {
    if (const auto large = decodeSelonLaMarque(octets)) return std::string(sansMarque(*large));
    if (octets.starts_with(kMarqueUtf8)) return enUtf8(sansMarque(octets));
    return estUtf8(octets) ? std::string(octets) : depuis1252(octets);
}

std::optional<std::string> decodeTexteLarge(std::string_view octets) {
    if (auto marque = decodeSelonLaMarque(octets)) return marque;
    if (const auto petitDabord = petitDabordSansMarque(octets)) return depuisUtf16(octets, *petitDabord);
    return std::nullopt;
}

}  // namespace util
