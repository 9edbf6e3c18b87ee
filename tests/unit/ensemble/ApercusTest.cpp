#include "edit/ModifieGroupe.h"
#include "edit/cmdPonctuation_Click.h"
#include "ensemble/Apercus.h"
#include "unit/edit/FenetreEdition.h"

#include <gmock/gmock.h>

namespace {

using namespace ensemble;
using testing::ElementsAre;
using testing::IsEmpty;

class ApercusTest : public FenetreEdition {
  protected:
    static std::vector<std::string> enTexte(const Apercu& apercu) {
        std::vector<std::string> textes;
        for (const auto& [film, avant, apres] : apercu.changements)
            textes.push_back(film.titre + ": " + avant + " -> " + apres);
        return textes;
    }
    void films(std::initializer_list<const char*> titres, Ligne autres) {
        autres.insert(autres.begin(), {"Realisateur", "R"});
        for (const char* titre : titres)
            ajouteFilm(titre, autres);
    }
};

TEST_F(ApercusTest, TitlesAreShownAsTheCorrectionWillLeaveThem) {
    films({"le parrain ii", "Alien", "l'été"}, {});
    const Apercu apercu = apercuDesTitres(c);
    EXPECT_EQ(apercu.texte, "2 titres changeront.");
    EXPECT_THAT(enTexte(apercu), ElementsAre("le parrain ii: le parrain ii -> Le Parrain II", "l'été: l'été -> L'Été"));
    EXPECT_THAT(apercu.collisions, IsEmpty());
    EXPECT_THAT(colonne("Films", "Titre"), ElementsAre("le parrain ii", "Alien", "l'été")) << "looking changes nothing";
    EXPECT_EQ(edit::corrigeTousLesTitres(c), 2);
    EXPECT_THAT(colonne("Films", "Titre"), ElementsAre("Le Parrain II", "Alien", "L'Été"));
    EXPECT_EQ(apercuDesTitres(c).texte, "Aucun titre ne changera.");
}

// The dotless i has a capital that the base does not hold for equal to it.
TEST_F(ApercusTest, TitlesThatBecomeOneForTheBaseAreTold) {
    films({"Le ısle", "Le Isle", "le isle"}, {});
    ajouteFilm("Le Isle", {{"Realisateur", "un autre"}});
    const Apercu apercu = apercuDesTitres(c);
    ASSERT_EQ(apercu.collisions.size(), 1U);
    EXPECT_EQ(apercu.collisions[0].films.size(), 3U);
    EXPECT_EQ(apercu.texte, "2 titres changeront. Plusieurs films porteront alors le même nom : « Le Isle ».");
    base.base.Execute("DELETE FROM Films WHERE Titre='Le ısle'");
    EXPECT_THAT(apercuDesTitres(c).collisions, IsEmpty()) << "what is one already does not become one";
}

TEST_F(ApercusTest, AGroupIsShownAsTheRenamingWillLeaveIt) {
    films({"Alien", "Brazil"}, {{"Genre", "SF"}});
    films({"Cube"}, {{"Genre", "sf "}});
    films({"Dune", "Ed Wood"}, {{"Genre", "Science-fiction"}});
    montre(browse::kZoneTous, browse::kTriGenre);
    clique("SF");
    const Apercu apercu = apercuDuGroupe(c, "Genre", "science-fiction", false);
    EXPECT_EQ(apercu.texte,
              "3 films changeront. 2 autres films portent déjà ce nom : les deux groupes n'en feront qu'un.");
    EXPECT_EQ(enTexte(apercu)[2], "Cube: sf  -> science-fiction");
    EXPECT_THAT(enTexte(apercuDuGroupe(c, "Genre", "SF", false)), ElementsAre("Cube: sf  -> SF"));
    EXPECT_EQ(apercuDuGroupe(c, "Genre", "", false).texte, "Aucun film ne changera.");
    EXPECT_EQ(apercuDuGroupe(c, "Genre", std::string(45, 'x'), false).texte,
              "3 films changeront. Le nom sera coupé : « " + std::string(40, 'x') + " ».");
    clique("Alien");
    EXPECT_THAT(apercuDuGroupe(c, "Genre", "X", false).changements, IsEmpty()) << "a film is no group";
    clique("SF");
    possede("Alien", "R", {{"Support", "DVD"}});
    EXPECT_EQ(apercuDuGroupe(c, "Support", "K7", true).texte,
              "1 film changera. Le changement s'arrêtera à « Brazil », qui n'a pas de ligne dans la base.");
}

}  // namespace
