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
constexpr std::ptrdiff_t kMorceau = 1 << 15;  // entries that are ordered in one go

// Eight bytes of a key, the missing ones as zeros.
std::uint64_t octets(std::string_view cle, std::size_t debut) {
    std::uint64_t lus = 0;
    if (debut < cle.size()) std::memcpy(&lus, cle.data() + debut, std::min<std::size_t>(8, cle.size() - debut));
    if constexpr (std::endian::native == std::endian::little) lus = __builtin_bswap64(lus);
    return lus;
}

// As std::sort, with a breath between parts of a few milliseconds.
void trie(auto* debut, auto* fin, const auto& avant, const Souffle& souffle) {
    while (souffle && fin - debut > kMorceau) {
        auto* const milieu = debut + (fin - debut) / 2;
        std::nth_element(debut, milieu, fin, avant);
        souffle();
        trie(debut, milieu, avant, souffle);
        debut = milieu;
    }
    std::sort(debut, fin, avant);
    if (souffle) souffle();
}

}  // namespace

void Ordre::finitColonne(std::size_t debut) {
    if (debut == debutDeLigne()) m_finPremiere = m_cles.size();
}

void Ordre::ajouteTexte(std::string_view cleJet) {
    const std::size_t debut = m_cles.size();
    m_cles.ajoute(cleJet);
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

void Ordre::finit() {
    const std::size_t debut = debutDeLigne();
    if (m_parGroupes) {
        const std::size_t taille = std::max(m_finPremiere, debut) - debut;
        m_numeros.push_back(groupe({m_cles.begin() + debut, taille}));
    }
    m_fins.push_back(m_cles.size());
}

void Ordre::prefixeParGroupes() {
    std::vector<std::pair<std::string_view, Groupe>> groupes(m_groupes.begin(), m_groupes.end());
    std::sort(groupes.begin(), groupes.end(),
              [](const auto& gauche, const auto& droite) { return gauche.first < droite.first; });
    std::vector<Groupe> rangs(groupes.size());  // by number: the group's rank, and how long its column is
    for (std::size_t i = 0; i < groupes.size(); ++i) {
        rangs[groupes[i].second.numero] = {static_cast<std::uint32_t>(i), groupes[i].second.taille};
    }
    constexpr std::size_t kOctetsDuGroupe = kBitsDuGroupe / 8;
    for (std::uint32_t rang = 0; rang < m_fins.size(); ++rang) {
        const Groupe& groupe = rangs[m_numeros[rang]];
        const std::string_view reste = cle(rang).substr(groupe.taille);
        const std::uint64_t prefixe =
            static_cast<std::uint64_t>(groupe.numero) << (64 - kBitsDuGroupe) | octets(reste, 0) >> kBitsDuGroupe;
        m_entrees.push_back({prefixe, octets(reste, sizeof prefixe - kOctetsDuGroupe), rang, groupe.taille});
    }
}

void Ordre::prefixeParOctets() {
    for (std::uint32_t rang = 0; rang < m_fins.size(); ++rang)
        m_entrees.push_back({octets(cle(rang), 0), octets(cle(rang), sizeof(std::uint64_t)), rang, 0});
}

std::vector<std::uint32_t> Ordre::rangs(bool sansDoublons, const Precede& precede, const Souffle& souffle) {
    if (m_parGroupes) {
        prefixeParGroupes();
    } else {
        prefixeParOctets();
    }
    m_numeros = {};
    const auto avant = [this, &precede](const Entree& gauche, const Entree& droite) {
        if (gauche.prefixe != droite.prefixe) return gauche.prefixe < droite.prefixe;
        if (gauche.suite != droite.suite) return gauche.suite < droite.suite;
        const int ordre = cle(gauche).compare(cle(droite));
        if (ordre != 0) return ordre < 0;
        return precede(gauche.rang, droite.rang);
    };
    trie(m_entrees.begin(), m_entrees.end(), avant, souffle);
    if (sansDoublons) {
        const auto memeCle = [this](const Entree& gauche, const Entree& droite) {
            return ontLaMemeCle(gauche, droite);
        };
        const auto* fin = std::unique(m_entrees.begin(), m_entrees.end(), memeCle);
        m_entrees.retireLaFin(static_cast<std::size_t>(fin - m_entrees.begin()));
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
