#include "platform/dao/IndexDeCles.h"

#include "platform/dao/CleJet.h"

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

void IndexDeCles::commence(std::size_t lignes) {
    m_lignes.clear();
    m_lignes.reserve(lignes);
    m_construit = true;
}

void IndexDeCles::oublie() {
    m_lignes = {};
    m_construit = false;
}

void IndexDeCles::retire(std::uint64_t hachage, long long ligne) {
    const auto [debut, fin] = m_lignes.equal_range(hachage);
    const auto trouvee = std::find_if(debut, fin, [ligne](const auto& place) { return place.second == ligne; });
    if (trouvee != fin) m_lignes.erase(trouvee);
}

std::vector<long long> IndexDeCles::candidats(std::uint64_t hachage) const {
    std::vector<long long> lignes;
    const auto [debut, fin] = m_lignes.equal_range(hachage);
    std::for_each(debut, fin, [&lignes](const auto& place) { lignes.push_back(place.second); });
    std::sort(lignes.begin(), lignes.end());
    return lignes;
}

}  // namespace dao::interne
