#include "platform/jet/Textes.h"

#include "util/Texte.h"
#include "util/Unicode.h"

#include <array>
#include <limits>
#include <string_view>

namespace jet::interne {

namespace {

constexpr std::string_view kDebutAffiche = "STO";
constexpr const char* kCoupe = "un texte finit au milieu d'un caractère";

bool estComprime(Octets texte) {
    return texte.size() >= 2 && texte[0] == 0xFF && texte[1] == 0xFE;
}

char16_t unite(Octets texte, std::size_t place) {
    return static_cast<char16_t>(texte[place] | texte[place + 1] << 8);
}

std::u16string developpe(Octets texte) {
    std::u16string unites;
    unites.reserve(texte.size());
    bool comprime = true;
    for (std::size_t i = 2; i < texte.size();) {
        if (texte[i] == 0) {
            comprime = !comprime;
            ++i;
        } else if (comprime) {
            unites += texte[i++];
        } else if (i + 1 < texte.size()) {
            unites += unite(texte, i);
            i += 2;
        } else {
            throw Dommage(kCoupe);
        }
    }
    return unites;
}

// How many units an uncompressed text has.
std::size_t nombreUnites(Octets texte) {
    if (texte.size() % 2 != 0) throw Dommage(kCoupe);
    return texte.size() / 2;
}

std::u16string unites(Octets texte) {
    if (estComprime(texte)) return developpe(texte);
    std::u16string lues(nombreUnites(texte), u'\0');
    for (std::size_t i = 0; i < lues.size(); ++i)
        lues[i] = unite(texte, 2 * i);
    return lues;
}

std::string_view brut(Octets texte) {
    return {reinterpret_cast<const char*>(texte.data()), texte.size()};
}

// The byte of each UTF-16 unit in code page 1252; "?" where there is none.
using OctetsDesUnites = std::array<std::uint8_t, std::numeric_limits<char16_t>::max() + std::size_t{1}>;

OctetsDesUnites construitOctetsDesUnites() {
    OctetsDesUnites octets;
    octets.fill('?');
    for (unsigned octet = 0; octet < 256; ++octet)
        octets[static_cast<std::size_t>(util::pointDepuis1252(static_cast<unsigned char>(octet)))] =
            static_cast<std::uint8_t>(octet);
    return octets;
}

}  // namespace

std::string enUtf8(Octets texte, bool jet4) {
    return jet4 ? util::depuisUtf16(unites(texte)) : util::depuis1252(brut(texte));
}

bool estUneAffiche(Octets texte, bool jet4) {
    if (!jet4) return brut(texte).starts_with(kDebutAffiche);
    if (estComprime(texte)) return brut(texte.subspan(2)).starts_with(kDebutAffiche);
    return brut(texte).starts_with(std::string_view("S\0T\0O\0", 6));
}

Affiche enOctets(Octets texte, bool jet4) {
    if (!jet4) return {std::string(brut(texte)), false};
    static const OctetsDesUnites octetsDesUnites = construitOctetsDesUnites();
    Affiche affiche;
    const auto traduit = [&affiche](std::size_t nombre, auto uniteA) {
        affiche.octets.resize(nombre);
        char* const octets = affiche.octets.data();  // a char may alias anything: its place is kept at hand
        bool alteree = false;
        for (std::size_t i = 0; i < nombre; ++i) {
            const std::uint8_t octet = octetsDesUnites[uniteA(i)];
            octets[i] = static_cast<char>(octet);
            alteree |= octet == '?' && uniteA(i) != u'?';
        }
        affiche.alteree = alteree;
    };
    // Posters are long, and seldom compressed: their units are taken where they stand.
    if (estComprime(texte)) {
        const std::u16string source = developpe(texte);
        traduit(source.size(), [&source](std::size_t i) { return source[i]; });
    } else {
        traduit(nombreUnites(texte), [texte](std::size_t i) { return unite(texte, 2 * i); });
    }
    return affiche;
}

}  // namespace jet::interne
