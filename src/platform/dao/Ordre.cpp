#include "platform/dao/Ordre.h"

#include "platform/dao/TriParMorceaux.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace dao::interne {

namespace {

constexpr char kMarqueDeNombre = 0x02;

// Eight bytes of a key, the missing ones as zeros.
std::uint64_t octets(std::string_view cle, std::size_t debut) {
    std::uint64_t lus = 0;
    if (debut < cle.size()) std::memcpy(&lus, cle.data() + debut, std::min<std::size_t>(8, cle.size() - debut));
    if constexpr (std::endian::native == std::endian::little) lus = __builtin_bswap64(lus);
    return lus;
}

}  // namespace

std::string_view cleDeNombre(double nombre, std::array<char, kTailleDeNombre>& octets) {
    auto bits = std::bit_cast<std::uint64_t>(nombre == 0 ? 0.0 : nombre);
    constexpr std::uint64_t kSigne = 1ULL << 63;
    bits = (bits & kSigne) != 0 ? ~bits : bits | kSigne;
    octets[0] = kMarqueDeNombre;
    for (std::size_t i = 1; i < octets.size(); ++i)
        octets[i] = static_cast<char>((bits >> (64 - 8 * i)) & 0xff);
    return {octets.data(), octets.size()};
}

void Ordre::ajoute(std::string_view cle) {
    m_cles.ajoute(cle);
    m_fins.push_back(m_cles.size());
}

void Ordre::vide() {
    m_cles.retireLaFin(0);
    m_fins.retireLaFin(0);
}

std::vector<std::uint32_t> Ordre::rangs(const Precede& precede, const Souffle& souffle) {
    Tampon<Entree> entrees;
    for (std::uint32_t rang = 0; rang < m_fins.size(); ++rang)
        entrees.push_back({octets(cle(rang), 0), octets(cle(rang), sizeof(std::uint64_t)), rang});
    const auto avant = [this, &precede](const Entree& gauche, const Entree& droite) {
        if (gauche.prefixe != droite.prefixe) return gauche.prefixe < droite.prefixe;
        if (gauche.suite != droite.suite) return gauche.suite < droite.suite;
        const int ordre = cle(gauche.rang).compare(cle(droite.rang));
        return ordre != 0 ? ordre < 0 : precede(gauche.rang, droite.rang);
    };
    trieParMorceaux(entrees.begin(), entrees.end(), avant, souffle);
    std::vector<std::uint32_t> resultat;
    resultat.reserve(entrees.size());
    for (const Entree& entree : entrees)
        resultat.push_back(entree.rang);
    return resultat;
}

}  // namespace dao::interne
