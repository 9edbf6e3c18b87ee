#include "platform/jet/TextesEcrits.h"

#include "util/Unicode.h"

#include <algorithm>

namespace jet::interne {

namespace {

constexpr char16_t kMarque = 0xFEFF;  // at its head the bytes of a compressed text begin so

bool seComprime(std::u16string_view unites) {
    constexpr std::size_t kLongueurMin = 3;  // below, it would not be shorter
    return unites.size() >= kLongueurMin &&
           std::ranges::all_of(unites, [](char16_t unite) { return unite > 0 && unite < 0x100; });
}

}  // namespace

Unites enUnites(std::string_view utf8) {
    Unites texte;
    texte.unites.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const util::PointDeCode point = util::litPoint(utf8, i);
        if (point.valeur < 0) texte.fidele = false;
        util::ajoutePoint(texte.unites,
                          point.valeur < 0 ? util::pointDepuis1252(static_cast<unsigned char>(utf8[i])) : point.valeur);
        i += point.taille;
    }
    while (texte.unites.starts_with(kMarque)) {
        texte.unites.erase(0, 1);
        texte.fidele = false;
    }
    return texte;
}

std::string texteJet(std::u16string_view unites, bool comprime) {
    const bool court = comprime && seComprime(unites);
    std::string octets = court ? "\xFF\xFE" : "";
    octets.reserve(octets.size() + (court ? 1 : 2) * unites.size());
    for (const char16_t unite : unites) {
        octets += static_cast<char>(unite & 0xFF);
        if (!court) octets += static_cast<char>(unite >> 8);
    }
    return octets;
}

}  // namespace jet::interne
