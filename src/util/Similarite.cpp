#include "util/Similarite.h"

#include "util/Ascii.h"
#include "util/Nombres.h"
#include "util/Unicode.h"

#include <algorithm>
#include <limits>

namespace util {

namespace {

constexpr std::size_t kBlanc = 26, kChiffres = 27, kAucune = 39;  // kAucune: counted, then forgotten

std::size_t chercheCase(UChar32 point) {
    const UChar32 lettre = sansAccent(minusculeDe(point));
    if (estUneMinuscule(lettre)) return static_cast<std::size_t>(lettre - 'a');
    if (lettre == ' ') return kBlanc;
    if (estUnChiffre(lettre)) return kChiffres + static_cast<std::size_t>(lettre - '0');
    return kAucune;
}

// The letters of European languages are worked out once.
class Cases {
  public:
    [[nodiscard]] static const Cases& toutes() {
        static const Cases cases;
        return cases;
    }
    [[nodiscard]] std::size_t operator[](UChar32 point) const {
        if (point < 0) return kAucune;  // no letter at all
        const auto rang = static_cast<std::size_t>(point);
        return rang < m_cases.size() ? m_cases[rang] : chercheCase(point);
    }

  private:
    Cases() {
        for (std::size_t i = 0; i < m_cases.size(); ++i)
            m_cases[i] = static_cast<std::uint8_t>(chercheCase(static_cast<UChar32>(i)));
    }
    std::array<std::uint8_t, 0x250> m_cases{};
};

}  // namespace

EmpreinteLettres empreinteLettres(std::string_view texte) {
    constexpr std::size_t kGenres = 32;
    const Cases& cases = Cases::toutes();
    std::uint64_t vus = 0, revus = 0, total = 0;
    for (std::size_t i = 0; i < texte.size();) {
        const PointDeCode point = litPoint(texte, i);
        i += point.taille;
        const std::size_t lettre = cases[point.valeur];
        if (lettre == kAucune) continue;
        const std::uint64_t genre = std::uint64_t{1} << (lettre < kChiffres ? lettre : (lettre + kChiffres) / 2);
        revus |= vus & genre;
        vus |= genre;
        ++total;
    }
    constexpr auto kDenombrables = std::numeric_limits<std::uint16_t>::max();  // of one kind, in a CompteLettres
    return {revus << kGenres | vus,
            total > kDenombrables ? compteLettres(texte).total : static_cast<std::uint32_t>(total)};
}

CompteLettres compteLettres(std::string_view texte) {
    const Cases& cases = Cases::toutes();
    std::array<std::uint32_t, 40> exact{};
    for (std::size_t i = 0; i < texte.size();) {
        const PointDeCode point = litPoint(texte, i);
        ++exact[cases[point.valeur]];
        i += point.taille;
    }
    exact[kAucune] = 0;

    // A huge text stops counting at the type's limit, in the total too: it still equals itself at 100 %.
    CompteLettres compte;
    for (std::size_t i = 0; i < exact.size(); ++i) {
        compte.nombre[i] =
            static_cast<std::uint16_t>(std::min<std::uint32_t>(exact[i], std::numeric_limits<std::uint16_t>::max()));
        compte.total += compte.nombre[i];
    }
    return compte;
}

int similarite(const CompteLettres& gauche, const CompteLettres& droite) {
    std::uint32_t commun = 0;
    for (std::size_t i = 0; i < gauche.nombre.size(); ++i)
        commun += std::min(gauche.nombre[i], droite.nombre[i]);
    const std::uint32_t total = gauche.total + droite.total;
    return total == 0 ? 0 : arrondiPair(2.0 * commun / total * 100);
}

int similarite(std::string_view gauche, std::string_view droite) {
    return similarite(compteLettres(gauche), compteLettres(droite));
}

}  // namespace util
