#include "platform/jet/Valeurs.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace jet::interne {

namespace {

template <typename Nombre>
std::string ecrit(Nombre nombre) {
    std::array<char, 40> tampon{};
    const auto fin = std::to_chars(tampon.data(), tampon.data() + tampon.size(), nombre);
    return {tampon.data(), fin.ptr};
}

// "12345" with four digits after the point: "1.2345"; "1.2000" is "1.2".
std::string avecVirgule(bool negatif, std::string chiffres, std::size_t echelle) {
    if (chiffres.size() <= echelle) chiffres.insert(0, echelle + 1 - chiffres.size(), '0');
    if (echelle > 0) {
        chiffres.insert(chiffres.size() - echelle, ".");
        chiffres.erase(chiffres.find_last_not_of('0') + 1);
        if (chiffres.back() == '.') chiffres.pop_back();
    }
    return negatif && chiffres != "0" ? "-" + chiffres : chiffres;
}

// In ten-thousandths.
std::string monetaire(Octets octets) {
    const auto valeur = std::bit_cast<std::int64_t>(entier(octets, 0, 8));
    const auto grandeur = static_cast<std::uint64_t>(valeur);
    return avecVirgule(valeur < 0, ecrit(valeur < 0 ? 0 - grandeur : grandeur), 4);
}

// The sign, then four words, the most significant first.
std::string decimal(Octets octets, std::size_t echelle) {
    constexpr std::uint8_t kNegatif = 0x80;
    std::array<std::uint64_t, 4> mots{};
    for (std::size_t i = 0; i < mots.size(); ++i)
        mots[i] = u32(octets, 1 + 4 * i);
    std::string chiffres;
    while (std::ranges::any_of(mots, [](std::uint64_t mot) { return mot != 0; })) {
        std::uint64_t reste = 0;
        for (std::uint64_t& mot : mots) {
            mot |= reste << 32;
            reste = mot % 10;
            mot /= 10;
        }
        chiffres.insert(chiffres.begin(), static_cast<char>('0' + reste));
    }
    return avecVirgule((u8(octets, 0) & kNegatif) != 0, chiffres.empty() ? "0" : chiffres, echelle);
}

// Days since 30 December 1899; their fraction is the time of the day, also in negative numbers.
std::string date(double valeur) {
    constexpr double kPremierJour = -657434, kDernierJour = 2958466;  // the years 100 to 9999
    constexpr long kSecondesParJour = 86400;
    if (!(valeur >= kPremierJour && valeur < kDernierJour)) return ecrit(valeur);
    using namespace std::chrono;
    auto jours = static_cast<int>(valeur);
    long secondes = std::lround(std::abs(valeur - jours) * kSecondesParJour);
    if (secondes == kSecondesParJour) {
        secondes = 0;
        ++jours;
    }
    const year_month_day jour = sys_days(1899y / December / 30) + days(jours);
    std::array<char, 80> tampon{};
    std::snprintf(tampon.data(), tampon.size(), "%02u/%02u/%04d", static_cast<unsigned>(jour.day()),
                  static_cast<unsigned>(jour.month()), static_cast<int>(jour.year()));
    std::string texte = tampon.data();
    if (secondes == 0) return texte;
    std::snprintf(tampon.data(), tampon.size(), " %02ld:%02ld:%02ld", secondes / 3600, secondes / 60 % 60,
                  secondes % 60);
    return texte + tampon.data();
}

std::string identifiant(Octets octets) {
    const auto moitie = [octets](std::size_t place) { return static_cast<unsigned>(entier(octets, place, 2)); };
    std::array<char, 48> tampon{};
    std::snprintf(tampon.data(), tampon.size(), "{%08X-%04X-%04X-%02X%02X-", static_cast<unsigned>(u32(octets, 0)),
                  moitie(4), moitie(6), u8(octets, 8), u8(octets, 9));
    std::string texte = tampon.data();
    for (std::size_t i = 10; i < 16; ++i) {
        std::snprintf(tampon.data(), tampon.size(), "%02X", u8(octets, i));
        texte += tampon.data();
    }
    return texte + "}";
}

}  // namespace

std::string valeurEnTexte(const Colonne& colonne, Octets octets) {
    switch (colonne.type) {
        case Type::Octet:
            return ecrit(u8(octets, 0));
        case Type::Entier16:
            return ecrit(std::bit_cast<std::int16_t>(u16(octets, 0)));
        case Type::Entier32:
            return ecrit(std::bit_cast<std::int32_t>(u32(octets, 0)));
        case Type::Monetaire:
            return monetaire(octets);
        case Type::Reel32:
            return ecrit(std::bit_cast<float>(u32(octets, 0)));
        case Type::Reel64:
            return ecrit(reel64(octets, 0));
        case Type::Date:
            return date(reel64(octets, 0));
        case Type::Identifiant:
            return identifiant(octets);
        case Type::Decimal:
            return decimal(octets, colonne.echelle);
        default:
            return {octets.begin(), octets.end()};
    }
}

}  // namespace jet::interne
