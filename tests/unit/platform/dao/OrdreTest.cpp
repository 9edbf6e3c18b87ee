#include "platform/dao/CleJet.h"
#include "platform/dao/Groupes.h"
#include "platform/dao/PresqueEnOrdre.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <tuple>

#include <gtest/gtest.h>

using namespace dao::interne;

namespace {

struct Ligne {
    std::string cle;
    int id;
};

// What comes out is held against a stable sort of the whole keys.
void exigeLOrdre(const std::vector<Ligne>& lignes, const char* quoi) {
    const auto precede = [&](std::uint32_t a, std::uint32_t b) {
        return std::tie(lignes[a].cle, lignes[a].id) < std::tie(lignes[b].cle, lignes[b].id);
    };
    PresqueEnOrdre presque(precede, [&](std::uint32_t rang, Ordre& ordre) { ordre.ajoute(lignes[rang].cle); });
    std::vector<std::uint32_t> voulus(lignes.size());
    std::iota(voulus.begin(), voulus.end(), 0U);
    for (const std::uint32_t rang : voulus)
        presque.ajoute(rang, lignes[rang].cle);
    std::sort(voulus.begin(), voulus.end(), precede);
    EXPECT_EQ(presque.rangs([] {}), voulus) << quoi;
    EXPECT_TRUE(presque.rangs({}).empty()) << quoi;
}

std::vector<Ligne> lignesDe(std::size_t nombre, const auto& texte) {
    std::vector<Ligne> lignes;
    for (std::size_t i = 0; i < nombre; ++i)
        lignes.push_back({texte(i).empty() ? "" : cleJet(texte(i)), static_cast<int>(nombre - i)});
    return lignes;
}

}  // namespace

TEST(PresqueEnOrdre, IsTheOrderOfTheKeysHoweverRowsCome) {
    std::mt19937 hasard(7);
    const auto nombre = [](std::size_t n) { return std::to_string(1000000 + n); };
    constexpr std::size_t kLignes = 30000;
    exigeLOrdre(lignesDe(kLignes, nombre), "in order");
    exigeLOrdre(lignesDe(kLignes, [&](std::size_t i) { return nombre(kLignes - i); }), "reversed");
    exigeLOrdre(lignesDe(kLignes, [&](std::size_t) { return nombre(hasard() % 100000); }), "in no order");
    exigeLOrdre(lignesDe(kLignes, [&](std::size_t i) { return nombre(i + hasard() % 200); }), "nearly in order");
    exigeLOrdre(lignesDe(kLignes, [&](std::size_t i) { return nombre(i + hasard() % 6000); }), "far from it");
    exigeLOrdre(lignesDe(kLignes, [&](std::size_t i) { return nombre(i / 900); }), "many equal keys");
    exigeLOrdre(lignesDe(kLignes, [&](std::size_t i) { return i % 3 == 0 ? "" : nombre(i); }), "many Null");
    exigeLOrdre(lignesDe(kLignes, [&](std::size_t i) { return nombre(i < 9 ? kLignes - i : i); }), "late ones first");
    exigeLOrdre(lignesDe(kLignes, [&](std::size_t i) { return nombre(i % 12 * 2500 + i / 12); }), "twelve suites");
    exigeLOrdre(lignesDe(kLignes, [&](std::size_t i) { return nombre(i < kLignes / 2 ? i : hasard() % kLignes); }),
                "in order, then in none");
}

namespace {

// Rows in the order that their places give them.
std::vector<std::uint32_t> parPlaces(Groupes& groupes, std::vector<std::uint32_t>& fins) {
    const std::vector<std::uint32_t> places = groupes.places(fins);
    std::vector<std::uint32_t> rangs(places.size());
    for (std::uint32_t rang = 0; rang < places.size(); ++rang)
        rangs.at(places[rang]) = rang;
    return rangs;
}

}  // namespace

TEST(Groupes, StandAsTheirValuesDoAndKeepTheirRowsAsTheyWere) {
    std::mt19937 hasard(3);
    for (const std::size_t valeurs : {1, 20, 5000}) {
        Groupes groupes;
        std::vector<std::string> cles;
        std::vector<std::uint32_t> voulus(6000), fins;
        for (std::size_t i = 0; i < voulus.size(); ++i) {
            const std::size_t valeur = hasard() % valeurs;
            // Jet holds the two spellings for equal.
            const std::string texte = (hasard() % 2 == 0 ? "Cœur " : "COEUR ") + std::to_string(valeur);
            cles.push_back(valeur == 7 ? "" : cleJet(texte));
            if (valeur == 7) {
                groupes.ajouteNul();
            } else {
                groupes.ajouteTexte(texte);
            }
        }
        std::iota(voulus.begin(), voulus.end(), 0U);
        std::stable_sort(voulus.begin(), voulus.end(),
                         [&](std::uint32_t a, std::uint32_t b) { return cles[a] < cles[b]; });
        ASSERT_EQ(parPlaces(groupes, fins), voulus);
        std::uint32_t debut = 0;
        for (const std::uint32_t fin : fins) {
            if (fin == debut) continue;  // no row is Null
            ASSERT_EQ(cles[voulus[debut]], cles[voulus[fin - 1]]);
            ASSERT_TRUE(debut == 0 || cles[voulus[debut]] != cles[voulus[debut - 1]]);
            debut = fin;
        }
        EXPECT_EQ(debut, voulus.size());
    }
    Groupes nombres;
    for (const double nombre : {10.0, -2.5, 9.0, 0.0, -0.0, -30.0})
        nombres.ajouteNombre(nombre);
    std::vector<std::uint32_t> fins;
    EXPECT_EQ(parPlaces(nombres, fins), (std::vector<std::uint32_t>{5, 1, 3, 4, 2, 0}));
    EXPECT_EQ(fins.size(), 6U);  // no Null: its group is empty
}
