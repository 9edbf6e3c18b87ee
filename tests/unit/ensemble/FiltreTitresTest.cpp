#include "ensemble/FiltreTitres.h"
#include "unit/edit/FenetreEdition.h"

#include <gmock/gmock.h>

namespace {

using ensemble::FiltreTitres;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::chrono_literals;

class FiltreTitresTest : public FenetreEdition {
  protected:
    FiltreTitres filtre;

    void SetUp() override {
        Fenetre::SetUp();
        ajouteFilm("Cléo de 5 à 7", {{"Realisateur", "Agnès Varda"}, {"Annee", "1962"}, {"Genre", "Drame"}});
        ajouteFilm("L'Apollonide", {{"Realisateur", "Bertrand Bonello"}, {"Acteurs", "Adèle Haenel;Céline Sallette"}});
        ajouteFilm("Le Cœur en hiver", {{"Realisateur", "Claude Sautet"}, {"Genre", "Drame"}});
        ajouteFilm("Sans toit ni loi", {{"Realisateur", "Agnès Varda"}, {"Annee", "1985"}});
        montre(browse::kZoneTous, browse::kTriTitre1);
    }
    std::vector<std::string> trouves(std::string_view saisie) {
        filtre.filtre(c, saisie);
        std::vector<std::string> textes;
        for (const int noeud : filtre.noeudsVus(liste.TreeView1.Nodes))
            textes.emplace_back(liste.TreeView1.Nodes.Text(noeud));
        return textes;
    }
};

TEST_F(FiltreTitresTest, EveryWordStandsSomewhereWhateverItsCaseAndAccents) {
    EXPECT_THAT(trouves("cleo varda"), ElementsAre("C", "Cléo de 5 à 7"));
    EXPECT_THAT(trouves("VARDA  1985"), ElementsAre("S", "Sans toit ni loi"));
    EXPECT_THAT(trouves("l apo"), ElementsAre("L", "L'Apollonide"));
    EXPECT_THAT(trouves("l’APO"), ElementsAre("L", "L'Apollonide"));
    EXPECT_THAT(trouves("coeur"), ElementsAre("L", "Le Cœur en hiver"));
    EXPECT_THAT(trouves("haenel adèle"), ElementsAre("L", "L'Apollonide"));
    EXPECT_EQ(filtre.texteDuCompte(), "1 titre sur 4");
    EXPECT_THAT(trouves("varda haenel"), IsEmpty());
    EXPECT_EQ(filtre.texteDuCompte(), "Aucun titre ne convient");
    EXPECT_THAT(trouves("7agnes"), IsEmpty()) << "no word spans two fields";
    EXPECT_EQ(trouves(" ' ").size(), 7U);
    EXPECT_EQ(filtre.texteDuCompte(), "");
}

TEST_F(FiltreTitresTest, AGrowingTextFindsWhatAFreshOneFinds) {
    const std::string saisie = "a dra ca 1 7 cleo";
    for (std::size_t n = 0; n <= saisie.size(); ++n) {
        FiltreTitres neuf;
        EXPECT_EQ(filtre.filtre(c, saisie.substr(0, n)), neuf.filtre(c, saisie.substr(0, n))) << n;
    }
    EXPECT_EQ(filtre.filtre(c, "a").nombre(), 4) << "and a shorter one finds again what was hidden";
}

TEST_F(FiltreTitresTest, ItsIndexFollowsTheListingAndOnlyThat) {
    EXPECT_FALSE(filtre.prepare(c, 0ms));
    EXPECT_TRUE(filtre.prepare(c, 1h));
    TreeView1_NodeClick(c, noeud("L'Apollonide"));
    base.films.MoveFirst();
    base.films.Delete();
    liste.TreeView1.Nodes.retire(noeud("Cléo de 5 à 7"));
    EXPECT_TRUE(filtre.prepare(c, 0ms)) << "a node that goes leaves the rows where they are";
    EXPECT_THAT(trouves("varda"), ElementsAre("S", "Sans toit ni loi"));
    filtre = FiltreTitres();
    EXPECT_THAT(trouves("varda"), ElementsAre("S", "Sans toit ni loi")) << "nor does a row that is gone stop it";
    ajouteFilm("Varda par Agnès");
    montre(browse::kZoneTous, browse::kTriTitre2);
    EXPECT_THAT(trouves("varda"), ElementsAre("Sans toit ni loi", "Varda par Agnès"));
    montre(browse::kZonePretes, browse::kTriTitre2);
    EXPECT_THAT(trouves("varda"), IsEmpty());
}

TEST_F(FiltreTitresTest, ALimitNarrowsToItsFilmsWhateverIsListedNext) {
    filtre.limite(c, {1, 4, 9, 0});
    EXPECT_THAT(trouves(""), ElementsAre("C", "Cléo de 5 à 7", "S", "Sans toit ni loi"));
    EXPECT_TRUE(filtre.actif());
    EXPECT_THAT(trouves("1962"), ElementsAre("C", "Cléo de 5 à 7"));
    filtre.leveLaLimite();
    EXPECT_EQ(filtre.filtre(c, "dra").nombre(), 2);
    filtre.limite(c, {3});
    ajouteFilm("Avant lui", {{"Genre", "Drame"}});
    AffichageApresModification(c);
    EXPECT_THAT(trouves("dra"), ElementsAre("L", "Le Cœur en hiver"));
    base.liste.MoveFirst();
    base.liste.Move(2);
    filtre = FiltreTitres();
    filtre.limite(c, {});
    EXPECT_EQ(filtre.filtre(c, "").nombre(), 0);
    EXPECT_EQ(base.liste.AbsolutePosition(), 2) << "a command may be walking there";
}

TEST_F(FiltreTitresTest, MarksTheLettersOfATitle) {
    filtre.filtre(c, "oeu HI e");
    const std::string titre = "Le Cœur en hiver";
    std::vector<std::string> marquees;
    for (const auto& [debut, fin] : filtre.marques(titre))
        marquees.push_back(titre.substr(debut, fin - debut));
    EXPECT_THAT(marquees, ElementsAre("œu", "hi"));
    filtre.filtre(c, "ete te x");
    EXPECT_THAT(filtre.marques("L'e\u0301te\u0301"), ElementsAre(FiltreTitres::Plage{2, 9}));
}

}  // namespace
