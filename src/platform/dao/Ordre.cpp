#include "platform/dao/Ordre.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace dao::interne {

namespace {

constexpr char kFinDeColonne = 0x00;  // in no key; alone it is Null
constexpr char kMarqueDeNombre = 0x02;

std::uint64_t premiersOctets(std::string_view cle) {
    std::uint64_t prefixe = 0;
    std::memcpy(&prefixe, cle.data(), std::min<std::size_t>(8, cle.size()));
    if constexpr (std::endian::native == std::endian::little) prefixe = __builtin_bswap64(prefixe);
    return prefixe;
}

}  // namespace

void Ordre::inverseDepuis(std::size_t debut) {
    for (std::size_t i = debut; i < m_cles.size(); ++i)
        m_cles[i] = static_cast<char>(~m_cles[i]);
}

void Ordre::ajouteTexte(std::string_view cleJet, bool decroissant) {
    const std::size_t debut = m_cles.size();
    m_cles += cleJet;
    m_cles.push_back(kFinDeColonne);
    if (decroissant) inverseDepuis(debut);
}

void Ordre::ajouteNombre(double nombre, bool decroissant) {
    const std::size_t debut = m_cles.size();
    auto bits = std::bit_cast<std::uint64_t>(nombre == 0 ? 0.0 : nombre);
    constexpr std::uint64_t kSigne = 1ULL << 63;
    bits = (bits & kSigne) != 0 ? ~bits : bits | kSigne;
    m_cles.push_back(kMarqueDeNombre);
    for (int decalage = 56; decalage >= 0; decalage -= 8)
        m_cles.push_back(static_cast<char>((bits >> decalage) & 0xff));
    if (decroissant) inverseDepuis(debut);
}

void Ordre::ajouteNul(bool decroissant) {
    ajouteTexte({}, decroissant);
}

void Ordre::finit(long long premier, long long second) {
    const std::string_view cle = std::string_view(m_cles).substr(m_debut);
    m_entrees.push_back({premiersOctets(cle), m_debut, static_cast<std::uint32_t>(cle.size()),
                         static_cast<std::uint32_t>(m_entrees.size())});
    m_suites.emplace_back(premier, second);
    m_debut = m_cles.size();
}

std::vector<std::uint32_t> Ordre::rangs(bool sansDoublons) {
    std::sort(m_entrees.begin(), m_entrees.end(), [this](const Entree& gauche, const Entree& droite) {
        if (gauche.prefixe != droite.prefixe) return gauche.prefixe < droite.prefixe;
        const int ordre = cle(gauche).compare(cle(droite));
        if (ordre != 0) return ordre < 0;
        return m_suites[gauche.rang] < m_suites[droite.rang];
    });
    if (sansDoublons) {
        const auto egales = [this](const Entree& gauche, const Entree& droite) { return cle(gauche) == cle(droite); };
        m_entrees.erase(std::unique(m_entrees.begin(), m_entrees.end(), egales), m_entrees.end());
    }
    std::vector<std::uint32_t> resultat;
    resultat.reserve(m_entrees.size());
    for (const Entree& entree : m_entrees)
        resultat.push_back(entree.rang);
    return resultat;
}

}  // namespace dao::interne
