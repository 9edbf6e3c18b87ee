#include "platform/dao/IndexDesFilms.h"

#include "platform/dao/CleJet.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace dao::interne {

namespace {

constexpr std::uint64_t kLibre = 0;
constexpr std::uint64_t kRendue = 1;
std::uint64_t marque(std::uint64_t hachage) {
    return hachage | 2;
}  // apart from both

std::uint64_t melange(std::uint64_t a, std::uint64_t b) {
    const std::uint64_t produit = (a ^ b) * 0x9e3779b97f4a7c15ULL;
    return produit ^ (produit >> 29);
}

}  // namespace

std::uint64_t hache(std::string_view octets, std::uint64_t depart) {
    std::uint64_t resultat = melange(depart, octets.size() + 0x2545f4914f6cdd1dULL);
    for (; octets.size() >= 8; octets.remove_prefix(8)) {
        std::uint64_t bloc = 0;
        std::memcpy(&bloc, octets.data(), 8);
        resultat = melange(std::rotl(resultat, 23), bloc);
    }
    std::uint64_t bloc = 0;
    if (!octets.empty()) std::memcpy(&bloc, octets.data(), octets.size());
    resultat = melange(std::rotl(resultat, 23), bloc);
    return resultat ^ (resultat >> 32);
}

std::uint64_t hacheFilm(std::string_view titre, std::string_view realisateur) {
    thread_local std::string cle;
    cle.clear();
    ajouteCleJet(titre, cle);
    const std::uint64_t hachage = hache(cle);
    cle.clear();
    ajouteCleJet(realisateur, cle);
    return hache(cle, hachage);
}

void IndexDesFilms::commence(std::size_t lignes) {
    m_places.assign(std::bit_ceil(std::max<std::size_t>(64, lignes * 2)), {});
    m_occupees = 0;
    m_construit = true;
}

void IndexDesFilms::oublie() {
    m_places = {};
    m_occupees = 0;
    m_construit = false;
}

void IndexDesFilms::pose(std::uint64_t hachage, long long ligne) {
    const std::size_t masque = m_places.size() - 1;
    std::size_t rang = hachage & masque;
    while (m_places[rang].hachage != kLibre)
        rang = (rang + 1) & masque;
    m_places[rang] = {hachage, ligne};
    ++m_occupees;
}

void IndexDesFilms::agrandit() {
    std::vector<Place> anciennes(m_places.size() * 2);
    anciennes.swap(m_places);
    m_occupees = 0;
    for (const Place& place : anciennes) {
        if (place.hachage > kRendue) pose(place.hachage, place.ligne);
    }
}

void IndexDesFilms::ajoute(std::uint64_t hachage, long long ligne) {
    if ((m_occupees + 1) * 4 > m_places.size() * 3) agrandit();
    pose(marque(hachage), ligne);
}

void IndexDesFilms::retire(std::uint64_t hachage, long long ligne) {
    const std::uint64_t cherche = marque(hachage);
    const std::size_t masque = m_places.size() - 1;
    for (std::size_t rang = cherche & masque; m_places[rang].hachage != kLibre; rang = (rang + 1) & masque) {
        if (m_places[rang].hachage != cherche || m_places[rang].ligne != ligne) continue;
        m_places[rang].hachage = kRendue;
        return;
    }
}

std::vector<long long> IndexDesFilms::candidats(std::uint64_t hachage) const {
    std::vector<long long> lignes;
    const std::uint64_t cherche = marque(hachage);
    const std::size_t masque = m_places.size() - 1;
    for (std::size_t rang = cherche & masque; m_places[rang].hachage != kLibre; rang = (rang + 1) & masque) {
        if (m_places[rang].hachage == cherche) lignes.push_back(m_places[rang].ligne);
    }
    std::sort(lignes.begin(), lignes.end());
    return lignes;
}

}  // namespace dao::interne
