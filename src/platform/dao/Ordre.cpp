#include "platform/dao/Ordre.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace dao::interne {

namespace {

constexpr char kFinDeColonne = 0x00;  // in no key; alone it is Null
constexpr char kMarqueDeNombre = 0x02;

constexpr std::size_t kGroupesMax = 1024;
constexpr int kBitsDuGroupe = 16;

std::uint64_t premiersOctets(std::string_view cle) {
    std::uint64_t prefixe = 0;
    std::memcpy(&prefixe, cle.data(), std::min<std::size_t>(8, cle.size()));
    if constexpr (std::endian::native == std::endian::little) prefixe = __builtin_bswap64(prefixe);
    return prefixe;
}

}  // namespace

void Ordre::finitColonne(std::size_t debut) {
    if (debut == m_debut) m_finPremiere = m_cles.size();
}

void Ordre::ajouteTexte(std::string_view cleJet) {
    const std::size_t debut = m_cles.size();
    m_cles += cleJet;
    m_cles.push_back(kFinDeColonne);
    finitColonne(debut);
}

void Ordre::ajouteNombre(double nombre) {
    const std::size_t debut = m_cles.size();
    auto bits = std::bit_cast<std::uint64_t>(nombre == 0 ? 0.0 : nombre);
    constexpr std::uint64_t kSigne = 1ULL << 63;
    bits = (bits & kSigne) != 0 ? ~bits : bits | kSigne;
    m_cles.push_back(kMarqueDeNombre);
    for (int decalage = 56; decalage >= 0; decalage -= 8)
        m_cles.push_back(static_cast<char>((bits >> decalage) & 0xff));
    finitColonne(debut);
}

std::uint32_t Ordre::groupe(std::string_view premiereColonne) {
    const auto connu = m_groupes.find(premiereColonne);
    if (connu != m_groupes.end()) return connu->second.numero;
    if (m_groupes.size() == kGroupesMax) {
        m_parGroupes = false;
        m_groupes = {};
        return 0;
    }
    const auto numero = static_cast<std::uint32_t>(m_groupes.size());
    m_groupes.emplace(premiereColonne, Groupe{numero, static_cast<std::uint32_t>(premiereColonne.size())});
    return numero;
}

void Ordre::finit(long long premier, long long second) {
    const std::string_view cle = std::string_view(m_cles).substr(m_debut);
    const std::uint64_t numero = m_parGroupes ? groupe(cle.substr(0, std::max(m_finPremiere, m_debut) - m_debut)) : 0;
    m_entrees.push_back(
        {numero, m_debut, static_cast<std::uint32_t>(cle.size()), static_cast<std::uint32_t>(m_entrees.size())});
    m_suites.emplace_back(premier, second);
    m_debut = m_cles.size();
}

// Until now the prefix of each row was the number of its group.
void Ordre::prefixeParGroupes() {
    std::vector<std::pair<std::string_view, Groupe>> groupes(m_groupes.begin(), m_groupes.end());
    std::sort(groupes.begin(), groupes.end(),
              [](const auto& gauche, const auto& droite) { return gauche.first < droite.first; });
    std::vector<Groupe> rangs(groupes.size());  // by number: the group's rank, and how long its column is
    for (std::size_t i = 0; i < groupes.size(); ++i) {
        rangs[groupes[i].second.numero] = {static_cast<std::uint32_t>(i), groupes[i].second.taille};
    }
    for (Entree& entree : m_entrees) {
        const Groupe& groupe = rangs[entree.prefixe];
        entree.debut += groupe.taille;
        entree.taille -= groupe.taille;
        entree.prefixe = static_cast<std::uint64_t>(groupe.numero) << (64 - kBitsDuGroupe) |
                         premiersOctets(cle(entree)) >> kBitsDuGroupe;
    }
}

void Ordre::prefixeParOctets() {
    for (Entree& entree : m_entrees)
        entree.prefixe = premiersOctets(cle(entree));
}

std::vector<std::uint32_t> Ordre::rangs(bool sansDoublons) {
    if (m_parGroupes) {
        prefixeParGroupes();
    } else {
        prefixeParOctets();
    }
    std::sort(m_entrees.begin(), m_entrees.end(), [this](const Entree& gauche, const Entree& droite) {
        if (gauche.prefixe != droite.prefixe) return gauche.prefixe < droite.prefixe;
        const int ordre = cle(gauche).compare(cle(droite));
        if (ordre != 0) return ordre < 0;
        return m_suites[gauche.rang] < m_suites[droite.rang];
    });
    if (sansDoublons) {
        const auto memeCle = [this](const Entree& gauche, const Entree& droite) {
            return ontLaMemeCle(gauche, droite);
        };
        m_entrees.erase(std::unique(m_entrees.begin(), m_entrees.end(), memeCle), m_entrees.end());
    }
    std::vector<std::uint32_t> resultat;
    resultat.reserve(m_entrees.size());
    for (const Entree& entree : m_entrees)
        resultat.push_back(entree.rang);
    return resultat;
}

std::vector<std::pair<std::size_t, std::size_t>> Ordre::egales() const {
    std::vector<std::pair<std::size_t, std::size_t>> suites;
    for (std::size_t debut = 0, fin = 0; debut < m_entrees.size(); debut = fin) {
        for (fin = debut + 1; fin < m_entrees.size() && ontLaMemeCle(m_entrees[debut], m_entrees[fin]);)
            ++fin;
        if (fin - debut > 1) suites.emplace_back(debut, fin);
    }
    return suites;
}

}  // namespace dao::interne
