#include "edit/LettresAbregees.h"

#include "edit/TitreDejaExistant_TestRessemblance.h"

#include <algorithm>
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

// The difference of both numbers alone is an ecart.
std::uint64_t totalAuPlus(std::uint64_t total) {
    return total * (200 + kEcartPermis) / (200 - kEcartPermis);
}

}  // namespace edit
