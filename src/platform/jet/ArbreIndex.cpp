#include "platform/jet/ArbreIndex.h"

#include "platform/jet/OctetsEcrits.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

namespace jet::interne {

namespace {

constexpr std::uint8_t kNoeud = 0x03, kFeuille = 0x04;
constexpr std::size_t kMasque = 27;  // a bit for each place where an entry ends
constexpr std::size_t kDebut = 480;
constexpr std::size_t kPlace = kTaillePage - kDebut;

struct Voisines {
    std::uint32_t avant = 0, apres = 0;
};

std::string page(std::uint8_t genre, std::uint32_t proprietaire, Voisines voisines,
                 std::span<const std::string> entrees) {
    std::string octets(kTaillePage, '\0');
    octets[0] = static_cast<char>(genre);
    octets[1] = 1;
    pose(octets, 4, proprietaire, 4);
    pose(octets, 12, voisines.avant, 4);
    pose(octets, 16, voisines.apres, 4);
    std::size_t fin = 0;
    for (const std::string& entree : entrees) {
        pose(octets, kDebut + fin, entree);
        fin += entree.size();
        char& marques = octets[kMasque + fin / 8];
        marques = static_cast<char>(marques | 1 << fin % 8);
    }
    pose(octets, 2, kPlace - fin, 2);
    return octets;
}

// How many of the first entries fill a page.
std::size_t nombreParPage(std::span<const std::string> entrees) {
    std::size_t octets = 0, nombre = 0;
    while (nombre < entrees.size() && octets + entrees[nombre].size() <= kPlace)
        octets += entrees[nombre++].size();
    return nombre;
}

// A key and its row, without the page below that a node's entry names.
std::string_view feuilleDe(std::string_view entree, std::uint8_t genre) {
    return genre == kNoeud ? entree.substr(0, entree.size() - 4) : entree;
}

}  // namespace

void ArbreIndex::ajoute(std::string cle, Pointeur ligne) {
    m_entrees.push_back(std::move(cle) + grand(ligne.page, 3) + grand(ligne.rang, 1));
}

// Level by level from the leaves up: an entry of the level above is the last one of its page, and that page.
std::uint32_t ArbreIndex::ecrit(FichierDePages& fichier, std::uint32_t proprietaire) {
    std::ranges::sort(m_entrees);
    std::vector<std::string> niveau = std::exchange(m_entrees, {});
    for (std::uint8_t genre = kFeuille;; genre = kNoeud) {
        std::vector<std::string> dessus;
        std::span<const std::string> reste(niveau);
        Voisines voisines;
        std::uint32_t ici = fichier.nouvelle();
        for (;;) {
            const std::size_t nombre = nombreParPage(reste);
            const bool derniere = nombre == reste.size();
            voisines.apres = derniere ? 0 : fichier.nouvelle();
            fichier.ecrit(ici, page(genre, proprietaire, voisines, reste.first(nombre)));
            m_pages.push_back(ici);
            if (nombre > 0) dessus.push_back(std::string(feuilleDe(reste[nombre - 1], genre)) + grand(ici, 4));
            if (derniere) break;
            voisines.avant = std::exchange(ici, voisines.apres);
            reste = reste.subspan(nombre);
        }
        if (dessus.size() <= 1) return ici;
        niveau = std::move(dessus);
    }
}

}  // namespace jet::interne
