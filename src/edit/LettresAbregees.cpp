#include "edit/LettresAbregees.h"

#include "edit/TitreDejaExistant_TestRessemblance.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdlib>

namespace edit {

namespace {

// A score above the threshold is one of at least half a point more: of all letters the differing ones then make at most
// this many, in two hundreds.
constexpr std::uint64_t kEcartPermis = 200 - (2 * kSeuilRessemblance + 1);

std::uint32_t ecart(const LettresAbregees& gauche, const LettresAbregees& droite) {
    std::uint32_t somme = 0;
    for (std::size_t i = 0; i < gauche.nombre.size(); ++i)
        somme += static_cast<std::uint32_t>(std::abs(gauche.nombre[i] - droite.nombre[i]));
    return somme;
}

// Two texts that resemble differ by so few letters: how many the one may have that the other has not, and the reverse.
struct Permis {
    Permis(std::int64_t gauche, std::int64_t droite) {
        const auto auPlus = static_cast<std::int64_t>(kEcartPermis) * (gauche + droite) / 200;
        possible = std::abs(gauche - droite) <= auPlus;
        aGauche = (auPlus + gauche - droite) / 2;
        aDroite = (auPlus + droite - gauche) / 2;
    }
    [[gnu::always_inline]] inline bool admet(std::uint64_t gauche, std::uint64_t droite) const {
        const bool peu = std::popcount(gauche & ~droite) <= aGauche,
                   autant = std::popcount(droite & ~gauche) <= aDroite;
        return peu & autant;  // one branch: which of both refuses cannot be foreseen
    }
    bool possible = false;
    std::int64_t aGauche = 0, aDroite = 0;
};

// Inlined in what uses an instruction that not every processor has, and in what does without.
[[gnu::always_inline]] inline void retient(const std::vector<std::uint64_t>& genres, std::uint64_t cherches,
                                           const Permis& permis, std::vector<std::uint32_t>& places) {
    for (std::size_t i = 0; i < genres.size(); ++i)
        if (permis.admet(cherches, genres[i])) places.push_back(static_cast<std::uint32_t>(i));
}

#if defined(__x86_64__) && defined(__GNUC__)
[[gnu::target("popcnt")]] void retientVite(const std::vector<std::uint64_t>& genres, std::uint64_t cherches,
                                           const Permis& permis, std::vector<std::uint32_t>& places) {
    retient(genres, cherches, permis, places);
}
#endif

}  // namespace

LettresAbregees abrege(const util::CompteLettres& compte) {
    LettresAbregees lettres;
    for (std::size_t i = 0; i < lettres.nombre.size(); ++i)
        lettres.nombre[i] = static_cast<std::uint8_t>(std::min<unsigned>(compte.nombre[i], UINT8_MAX));
    lettres.total = compte.total;
    return lettres;
}

bool peutRessembler(const LettresAbregees& gauche, const LettresAbregees& droite) {
    return 200 * std::uint64_t{ecart(gauche, droite)} <= kEcartPermis * (gauche.total + droite.total);
}

bool peutRessembler(const util::EmpreinteLettres& gauche, const util::EmpreinteLettres& droite) {
    const Permis permis(gauche.total, droite.total);
    return permis.possible && permis.admet(gauche.genres, droite.genres);
}

void retientPossibles(const std::vector<std::uint64_t>& genres, std::uint32_t total,
                      const util::EmpreinteLettres& cherchee, std::vector<std::uint32_t>& places) {
    const Permis permis(cherchee.total, total);
    if (!permis.possible) return;
#if defined(__x86_64__) && defined(__GNUC__)
    if (__builtin_cpu_supports("popcnt")) return retientVite(genres, cherchee.genres, permis, places);
#endif
    retient(genres, cherchee.genres, permis, places);
}

// The difference of both numbers alone is an ecart.
std::uint64_t totalAuPlus(std::uint64_t total) {
    return total * (200 + kEcartPermis) / (200 - kEcartPermis);
}

}  // namespace edit
