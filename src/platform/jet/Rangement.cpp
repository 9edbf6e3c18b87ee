#include "platform/jet/Rangement.h"

#include "platform/jet/OctetsEcrits.h"

#include <algorithm>
#include <stdexcept>

namespace jet::interne {

namespace {

constexpr std::size_t kEntete = 14, kParRang = 2;
constexpr std::size_t kRangsMax = 255;
constexpr std::size_t kLigneLongueMax = kTaillePage - kEntete - kParRang - 4;  // of a long value
constexpr std::size_t kPointeur = 4;
constexpr std::size_t kMorceau = kLigneLongueMax - kPointeur;
constexpr std::size_t kDansLaLigne = 64, kTete = 12;

constexpr std::size_t kOctetsDeCarte = 64;
constexpr std::uint32_t kPagesEnLigne = 8 * kOctetsDeCarte;
constexpr std::size_t kEnteteCarte = 4;
constexpr std::uint32_t kPagesParCarte = 8 * (kTaillePage - kEnteteCarte);

// The head of a page of rows.
std::string pageDeLignes(std::uint32_t proprietaire) {
    std::string page(kTaillePage, '\0');
    pose(page, 0, 0x0101, 2);
    pose(page, 4, proprietaire, 4);
    return page;
}

void coche(std::string& bits, std::size_t premier, std::uint32_t rang) {
    char& octet = bits[premier + rang / 8];
    octet = static_cast<char>(octet | 1 << rang % 8);
}

std::string pageDeCarte() {
    std::string page(kTaillePage, '\0');
    pose(page, 0, 0x0105, 2);
    return page;
}

std::string carteEnLigne(std::uint32_t premiere) {
    return std::string(1, '\0') + petit(premiere, 4) + std::string(kOctetsDeCarte, '\0');
}

std::string carteDeRenvois() {
    std::string ligne(carteEnLigne(0).size(), '\0');
    ligne[0] = 1;
    return ligne;
}

void renvoie(std::string& ligne, std::size_t rang, std::uint32_t page) {
    pose(ligne, 1 + kPointeur * rang, page, kPointeur);
}

}  // namespace

std::string enOctets(Pointeur pointeur) {
    return petit(std::uint64_t{pointeur.page} << 8 | pointeur.rang, kPointeur);
}

void Rangement::commence() {
    acheve();
    m_page = pageDeLignes(m_proprietaire);
    m_pages.push_back(m_fichier.nouvelle());
    m_rangs = 0;
    m_debut = kTaillePage;
}

bool Rangement::aLaPlace(std::size_t octets) const {
    return !m_page.empty() && m_rangs < kRangsMax && kEntete + kParRang * (m_rangs + 1) + octets <= m_debut;
}

Pointeur Rangement::ajoute(std::string_view ligne) {
    if (ligne.size() > kTaillePage - kEntete - kParRang) throw std::length_error("ligne");
    if (!aLaPlace(ligne.size())) commence();
    m_debut -= ligne.size();
    pose(m_page, m_debut, ligne);
    pose(m_page, kEntete + kParRang * m_rangs, m_debut, kParRang);
    pose(m_page, 12, ++m_rangs, 2);
    pose(m_page, 2, m_debut - kEntete - kParRang * m_rangs, 2);
    ++m_lignes;
    return {m_pages.back(), static_cast<std::uint8_t>(m_rangs - 1)};
}

void Rangement::acheve() {
    if (!m_page.empty()) m_fichier.ecrit(m_pages.back(), m_page);
    m_page.clear();
}

std::size_t ValeursLongues::dansLaLigne(std::size_t octets) {
    return kTete + (octets <= kDansLaLigne ? octets : 0);
}

// At most: pieces of pages that several values share are counted as if each had its own end of a page.
std::uint64_t ValeursLongues::ailleurs(std::size_t octets) {
    if (octets <= kDansLaLigne) return 0;
    if (octets <= kLigneLongueMax) return octets + kParRang;
    return (octets / kMorceau) * kTaillePage + octets % kMorceau + kPointeur + kParRang;
}

std::string ValeursLongues::champ(std::string_view octets) {
    constexpr std::uint64_t kIci = 0x80000000, kUneLigne = 0x40000000;
    if (octets.size() <= kDansLaLigne) return petit(kIci | octets.size(), 4) + petit(0, 8) + std::string(octets);
    if (octets.size() <= kLigneLongueMax)
        return petit(kUneLigne | octets.size(), 4) + enOctets(m_petites.ajoute(octets)) + petit(0, 4);
    return petit(octets.size(), 4) + enOctets(enchaine(octets)) + petit(0, 4);
}

// All pieces but the last fill a page each, one page after the other.
Pointeur ValeursLongues::enchaine(std::string_view octets) {
    const std::size_t pleins = (octets.size() - 1) / kMorceau;
    const Pointeur dernier = m_petites.ajoute(petit(0, kPointeur) + std::string(octets.substr(pleins * kMorceau)));
    Pointeur premier{m_fichier.nouvelle(), 0};
    std::uint32_t page = premier.page;
    for (std::size_t i = 0; i < pleins; ++i) {
        const Pointeur suite = i + 1 < pleins ? Pointeur{m_fichier.nouvelle(), 0} : dernier;
        std::string entiere = pageDeLignes(kValeursLongues);
        constexpr std::size_t kDebut = kTaillePage - kLigneLongueMax;
        pose(entiere, 2, kDebut - kEntete - kParRang, 2);
        pose(entiere, 12, 1, 2);
        pose(entiere, kEntete, kDebut, kParRang);
        pose(entiere, kDebut, enOctets(suite));
        pose(entiere, kDebut + kPointeur, octets.substr(i * kMorceau, kMorceau));
        m_fichier.ecrit(page, entiere);
        m_chaines.push_back(page);
        page = suite.page;
    }
    return premier;
}

void ValeursLongues::acheve() {
    m_petites.acheve();
}

std::vector<std::uint32_t> ValeursLongues::pages() const {
    std::vector<std::uint32_t> toutes;
    std::ranges::merge(m_chaines, m_petites.pages(), std::back_inserter(toutes));
    return toutes;
}

std::vector<std::uint32_t> ValeursLongues::pagesLibres() const {
    if (m_petites.pages().empty()) return {};
    return {m_petites.pages().back()};
}

Pointeur ecritCarte(FichierDePages& fichier, Rangement& cartes, const std::vector<std::uint32_t>& pages) {
    const std::uint32_t premiere = pages.empty() ? 0 : pages.front() / 8 * 8;
    if (pages.empty() || pages.back() - premiere < kPagesEnLigne) {
        std::string ligne = carteEnLigne(premiere);
        for (const std::uint32_t page : pages)
            coche(ligne, 1 + kPointeur, page - premiere);
        return cartes.ajoute(ligne);
    }
    std::string ligne = carteDeRenvois();
    for (std::size_t i = 0; i < pages.size();) {
        const std::uint32_t bloc = pages[i] / kPagesParCarte;
        std::string page = pageDeCarte();
        for (; i < pages.size() && pages[i] / kPagesParCarte == bloc; ++i)
            coche(page, kEnteteCarte, pages[i] % kPagesParCarte);
        const std::uint32_t numero = fichier.nouvelle();
        fichier.ecrit(numero, page);
        renvoie(ligne, bloc, numero);
    }
    return cartes.ajoute(ligne);
}

std::string carteDesPagesLibres(FichierDePages& fichier) {
    if (fichier.nombre() <= kPagesEnLigne) {
        std::string ligne = carteEnLigne(0);
        for (std::uint32_t page = fichier.nombre(); page < kPagesEnLigne; ++page)
            coche(ligne, 1 + kPointeur, page);
        return ligne;
    }
    std::vector<std::uint32_t> cartes;
    while (cartes.size() * kPagesParCarte < fichier.nombre())
        cartes.push_back(fichier.nouvelle());
    std::string ligne = carteDeRenvois();
    for (std::uint32_t bloc = 0; bloc < cartes.size(); ++bloc) {
        std::string page = pageDeCarte();
        for (std::uint32_t rang = 0; rang < kPagesParCarte; ++rang)
            if (bloc * kPagesParCarte + rang >= fichier.nombre()) coche(page, kEnteteCarte, rang);
        fichier.ecrit(cartes[bloc], page);
        renvoie(ligne, bloc, cartes[bloc]);
    }
    return ligne;
}

}  // namespace jet::interne
