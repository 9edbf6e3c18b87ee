#include "platform/dao/IndexDeCles.h"

#include "platform/dao/CleJet.h"
#include "platform/dao/TriParMorceaux.h"

#include <algorithm>
#include <functional>
#include <string>

namespace dao::interne {

std::uint64_t hache(std::string_view octets, std::uint64_t depart) {
    const std::uint64_t produit = (depart ^ std::hash<std::string_view>{}(octets)) * 0x9e3779b97f4a7c15ULL;
    return produit ^ (produit >> 32);
}

std::uint64_t hacheCle(std::string_view premiere, std::string_view seconde) {
    thread_local std::string cle;
    cle.clear();
    ajouteCleJet(premiere, cle);
    const std::uint64_t hachage = hache(cle);
    cle.clear();
    ajouteCleJet(seconde, cle);
    return hache(cle, hachage);
}

void IndexDeCles::acheve(const Souffle& souffle) {
    m_lignes.serre();
    trieParMorceaux(m_lignes.begin(), m_lignes.end(), std::less<>(), souffle);
    m_construit = true;
}

void IndexDeCles::oublie() {
    *this = {};
}

void IndexDeCles::rends(Cadence& cadence) {
    for (auto* places : {&m_ajoutees, &m_retirees})
        for (; !places->empty(); cadence())
            places->erase(places->begin());
    oublie();
}

void IndexDeCles::retire(std::uint64_t hachage, long long ligne) {
    const auto [debut, fin] = m_ajoutees.equal_range(hachage);
    const auto trouvee = std::find_if(debut, fin, [ligne](const auto& place) { return place.second == ligne; });
    if (trouvee != fin) {
        m_ajoutees.erase(trouvee);
    } else if (std::binary_search(m_lignes.begin(), m_lignes.end(), Place{hachage, ligne})) {
        m_retirees.emplace(hachage, ligne);
    }
}

std::vector<long long> IndexDeCles::candidats(std::uint64_t hachage) const {
    std::vector<long long> lignes;
    const auto premiere = std::lower_bound(m_lignes.begin(), m_lignes.end(), hachage,
                                           [](const Place& place, std::uint64_t h) { return place.hachage < h; });
    for (auto place = premiere; place != m_lignes.end() && place->hachage == hachage; ++place)
        lignes.push_back(place->ligne);
    const auto [retiree, finRetirees] = m_retirees.equal_range(hachage);
    std::for_each(retiree, finRetirees, [&lignes](const auto& place) { std::erase(lignes, place.second); });
    const auto [ajoutee, finAjoutees] = m_ajoutees.equal_range(hachage);
    std::for_each(ajoutee, finAjoutees, [&lignes](const auto& place) { lignes.push_back(place.second); });
    std::sort(lignes.begin(), lignes.end());
    return lignes;
}

}  // namespace dao::interne
