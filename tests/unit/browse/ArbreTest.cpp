#include "browse/Arbre.h"

#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace {

// What the tree is to be: every node by itself.
struct Noeud {
    int groupe = 0;  // a heading's number, from 1
    int sous = 0;    // of a film: that of its heading, 0 at the root
    std::uint32_t position = 0;
    std::string texte;
};

std::vector<std::int32_t> enfants(const std::vector<Noeud>& noeuds, int groupe) {
    std::vector<std::int32_t> indices;
    for (std::size_t i = 0; i < noeuds.size(); ++i)
        if (noeuds[i].position == 0 ? groupe == 0 : noeuds[i].sous == groupe)
            indices.push_back(static_cast<std::int32_t>(i + 1));
    return indices;
}

int indiceDuGroupe(const std::vector<Noeud>& noeuds, int groupe) {
    const auto ou = std::ranges::find_if(noeuds, [&](const Noeud& n) { return n.groupe == groupe; });
    return groupe == 0 ? 0 : static_cast<int>(ou - noeuds.begin()) + 1;
}

void verifieEnfants(const browse::Arbre& arbre, const std::vector<Noeud>& noeuds, int groupe) {
    const auto siens = arbre.enfants(indiceDuGroupe(noeuds, groupe));
    const std::vector<std::int32_t> voulus = enfants(noeuds, groupe);
    ASSERT_EQ(std::vector<std::int32_t>(siens.begin(), siens.end()), voulus) << groupe;
    ASSERT_EQ(siens.size(), voulus.size());
    for (std::size_t rang = voulus.size(); rang-- > 0;) {
        EXPECT_EQ(siens[rang], voulus[rang]);
        EXPECT_EQ(arbre.rang(voulus[rang]), static_cast<int>(rang));
    }
}

void verifie(const browse::Arbre& arbre, const std::vector<Noeud>& noeuds) {
    ASSERT_EQ(arbre.Count(), static_cast<int>(noeuds.size()));
    verifieEnfants(arbre, noeuds, 0);
    for (int indice = arbre.Count(); indice >= 1; --indice) {
        const Noeud& voulu = noeuds[static_cast<std::size_t>(indice - 1)];
        EXPECT_EQ(arbre.Text(indice), voulu.texte);
        EXPECT_EQ(arbre.position(indice), voulu.position);
        EXPECT_EQ(arbre.Parent(indice), indiceDuGroupe(noeuds, voulu.sous));
        ASSERT_EQ(arbre.estGroupe(indice), voulu.groupe != 0);
        if (voulu.groupe == 0) {
            EXPECT_EQ(arbre.Key(indice), "K" + std::to_string(voulu.position));
            EXPECT_EQ(arbre.noeudDuFilm(voulu.position), indice);
        } else {
            EXPECT_EQ(arbre.Key(indice), (voulu.groupe % 3 == 0 ? "Tx" : "T") + std::to_string(voulu.groupe));
            EXPECT_EQ(arbre.texteDuGroupe(indice), voulu.texte);
            verifieEnfants(arbre, noeuds, voulu.groupe);
        }
    }
    EXPECT_EQ(arbre.noeudDuFilm(1000), 0);
}

// Flat lists, films right below their headings, films that go back to a heading of before: whatever is taken out, in
// whatever order, indexes, ranks and texts are those of plain nodes.
TEST(Arbre, AnswersAsANodeByNodeListDoesWhateverIsTakenOut) {
    std::mt19937 hasard(7);
    const auto unSur = [&](int n) { return std::uniform_int_distribution(0, n - 1)(hasard) == 0; };
    for (int essai = 0; essai < 60; ++essai) {
        browse::Arbre arbre;
        std::vector<Noeud> noeuds;
        int groupes = 0;
        for (std::uint32_t position = 1; position <= 25;) {
            if (essai % 3 != 0 && (groupes == 0 || unSur(4))) {
                ++groupes;
                noeuds.push_back({.groupe = groupes, .texte = std::string(static_cast<std::size_t>(groupes % 4), 'g')});
                arbre.ajouteGroupe((groupes % 3 == 0 ? "Tx" : "T") + std::to_string(groupes), noeuds.back().texte);
                continue;
            }
            const int sous =
                essai % 3 == 1 || groupes == 0 ? groupes : 1 + static_cast<int>(hasard() % unsigned(groupes));
            noeuds.push_back({.sous = sous, .position = position, .texte = std::string(position % 5, 't')});
            arbre.ajouteFilm(indiceDuGroupe(noeuds, sous), position, noeuds.back().texte);
            position += unSur(6) ? 2 : 1;
        }
        verifie(arbre, noeuds);
        while (std::ranges::any_of(noeuds, [](const Noeud& n) { return n.position != 0; })) {
            const std::size_t parti = hasard() % noeuds.size();
            if (noeuds[parti].position == 0) continue;
            const int generation = arbre.generation();
            arbre.retire(static_cast<int>(parti) + 1);
            noeuds.erase(noeuds.begin() + static_cast<std::ptrdiff_t>(parti));
            EXPECT_GT(arbre.generation(), generation);
            verifie(arbre, noeuds);
            if (testing::Test::HasFailure()) return;
        }
    }
}

}  // namespace
