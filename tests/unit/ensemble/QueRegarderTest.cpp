#include "ensemble/QueRegarder.h"
#include "unit/edit/FenetreEdition.h"

#include <set>

#include <gmock/gmock.h>

namespace {

using namespace ensemble;
using testing::ElementsAre;

class QueRegarderTest : public FenetreEdition {
  protected:
    void SetUp() override {
        Fenetre::SetUp();
        const auto range = [this](const char* titre, const char* genre, const char* duree, dao::Valeur note) {
            ajouteFilm(titre, {{"Realisateur", "R"}, {"Genre", genre}, {"Duree", duree}, {"Note", note}});
            possede(titre, "R", {{"Pret", ""}, {"Support", "DVD"}});
        };
        range("Alien", "Horreur/Science-fiction", "1H57", 9);
        range("Brazil", "Science-fiction", "2H22", 8);
        range("Cube", "Thriller", "", {});
        range("Dune", "Science-fiction", "2H17", 5);
        range("Prêté", "Drame", "1H00", 10);
        ajouteFilm("Non possédé", {{"Realisateur", "R"}, {"Duree", "1H00"}, {"Note", 10}});
        base.base.Execute("UPDATE Personnel SET Pret='Zoé' WHERE Titre2='Prêté'");
        base.base.Execute("UPDATE Personnel SET Pret=NULL WHERE Titre2='Dune'");
        possede("Cube", "R", {{"Pret", ""}});
    }
    std::vector<std::string> tous(const Envies& envies) {
        QueRegarder tirage(c, envies, [](std::size_t) { return 0; });
        std::vector<std::string> titres;
        for (std::size_t i = 0; i < tirage.nombre(); ++i)
            titres.push_back(tirage.prochain()->film.titre);
        std::sort(titres.begin(), titres.end());
        return titres;
    }
};

TEST_F(QueRegarderTest, OnlyWhatIsOwnedAtHomeAndSuits) {
    EXPECT_THAT(tous({}), ElementsAre("Alien", "Brazil", "Cube", "Dune"));
    EXPECT_THAT(tous({.minutesAuPlus = 120}), ElementsAre("Alien"));
    EXPECT_THAT(tous({.genre = "science-fiction"}), ElementsAre("Alien", "Brazil", "Dune"));
    EXPECT_THAT(tous({.noteAuMoins = 8}), ElementsAre("Alien", "Brazil"));
    EXPECT_THAT(tous({.minutesAuPlus = 140, .genre = "Science-fiction", .noteAuMoins = 5}),
                ElementsAre("Alien", "Dune"));
    EXPECT_THAT(genresPossedes(c), ElementsAre("Drame", "Horreur", "Science-fiction", "Thriller"));
    QueRegarder aucun(c, {.genre = "Western"}, [](std::size_t) { return 0; });
    EXPECT_EQ(aucun.prochain(), std::nullopt);
    EXPECT_EQ(aucun.texteDuNombre(), "Aucun film possédé et non prêté ne convient.");
}

TEST_F(QueRegarderTest, NoneComesAgainBeforeAllWereShownNorTwiceInARow) {
    for (std::size_t graine = 0; graine < 7; ++graine) {
        QueRegarder tirage(c, {}, [graine](std::size_t combien) { return (graine * 5 + combien * 3) % combien; });
        std::string precedent;
        for (int tour = 0; tour < 4; ++tour) {
            std::set<std::string> montres;
            for (std::size_t i = 0; i < tirage.nombre(); ++i) {
                const std::string titre = tirage.prochain()->film.titre;
                EXPECT_NE(titre, precedent);
                montres.insert(precedent = titre);
            }
            EXPECT_EQ(montres.size(), 4U);
        }
    }
    QueRegarder seul(c, {.genre = "Thriller"}, [](std::size_t combien) { return combien - 1; });
    EXPECT_EQ(seul.texteDuNombre(), "Un seul film convient.");
    EXPECT_EQ(seul.prochain()->texte(), "« Cube » de R, DVD");
    EXPECT_EQ(seul.prochain()->texte(), "« Cube » de R, DVD");
    QueRegarder bon(c, {.noteAuMoins = 9}, [](std::size_t) { return 0; });
    EXPECT_EQ(bon.prochain()->texte(), "« Alien » de R, 1 h 57, noté 9/10, DVD");
}

}  // namespace
