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

// Inlined in what uses an instruction that not every processor has, and in what does without.
[[gnu::always_inline]] inline void retient(const std::vector<std::uint64_t>& genres, std::uint64_t cherches,
                                           std::uint64_t auPlus, std::vector<std::uint32_t>& places) {
    for (std::size_t i = 0; i < genres.size(); ++i)
        if (static_cast<std::uint64_t>(std::popcount(genres[i] ^ cherches)) <= auPlus)
            places.push_back(static_cast<std::uint32_t>(i));
}

#if defined(__x86_64__) && defined(__GNUC__)
[[gnu::target("popcnt")]] void retientVite(const std::vector<std::uint64_t>& genres, std::uint64_t cherches,
                                           std::uint64_t auPlus, std::vector<std::uint32_t>& places) {
    retient(genres, cherches, auPlus, places);
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
    const std::uint64_t auPlus = kEcartPermis * (std::uint64_t{gauche.total} + droite.total) / 200;
    const std::uint64_t longueurs = std::max(gauche.total, droite.total) - std::min(gauche.total, droite.total);
    return longueurs <= auPlus && static_cast<std::uint64_t>(std::popcount(gauche.genres ^ droite.genres)) <= auPlus;
}

void retientPossibles(const std::vector<std::uint64_t>& genres, std::uint32_t total,
                      const util::EmpreinteLettres& cherchee, std::vector<std::uint32_t>& places) {
    const std::uint64_t auPlus = kEcartPermis * (std::uint64_t{total} + cherchee.total) / 200;
#if defined(__x86_64__) && defined(__GNUC__)
    if (__builtin_cpu_supports("popcnt")) return retientVite(genres, cherchee.genres, auPlus, places);
#endif
    retient(genres, cherchee.genres, auPlus, places);
}

// The difference of both numbers alone is an ecart.
std::uint64_t totalAuPlus(std::uint64_t total) {
    return total * (200 + kEcartPermis) / (200 - kEcartPermis);
}

}  // namespace edit
