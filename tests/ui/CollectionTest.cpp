#include "ProgrammeDEssai.h"

namespace {

using essais::ProgrammeDEssai;

struct Collection : testing::Test {
    ProgrammeDEssai essai;

    void SetUp() override {
        essai.demarre();
        essai.importe({{"L'Été", "Agnès Varda", "Drame", essais::octetsDImage(Qt::red)},
                       {"Alien", "Ridley Scott", "Science-fiction", ""},
                       {"Le \"Corniaud\"", "Gérard Oury", "Comédie", ""}});
        essai.choisit("ChoixZone", 1);
    }
    [[nodiscard]] bool visible(const char* nom) { return essai.trouve(nom).isVisible(); }
};

TEST_F(Collection, APageStaysWithAnotherListingAndComesBackAfterAFilm) {
    QTest::keyClick(&essai.arbre(), Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(visible("frameCollection") && visible("framePageGroupe"));
    essai.clique("OngletCeSoir");
    EXPECT_TRUE(visible("PageCeSoir") && !visible("framePageGroupe") && !visible("framePresentation"));
    essai.choisit("ChoixTri", 2);
    EXPECT_TRUE(visible("PageCeSoir"));
    essai.cliqueTitre("Alien");
    EXPECT_TRUE(visible("frameFiche") && !visible("frameCollection"));
    essai.clique("cmdCollection");
    EXPECT_TRUE(visible("PageCeSoir") && !visible("frameFiche"));
    QTest::keyClick(&essai.trouve("cmdCollection"), Qt::Key_Escape);
    EXPECT_TRUE(visible("frameFiche") && !visible("frameCollection"));
    EXPECT_EQ(essai.texte("Label1_0"), "Alien");
}

TEST_F(Collection, TonightIsAmongWhatIsOwnedAndFollowsTheHoldings) {
    essai.clique("cmdCollection");
    essai.clique("OngletCeSoir");
    ASSERT_TRUE(essais::attends([&] { return essai.texte("lblNombreCeSoir") == "Parmi 3 films."; }));
    essai.cliqueTitre("Alien");
    essai.clique("cmdAutresInfos");
    essai.clique("Option1_0");
    essai.clique("cmdValiderInfosPossessions");
    essai.choisit("ChoixZone", 5);  // lists neither of the others
    essai.clique("cmdCollection");
    ASSERT_TRUE(essais::attends([&] { return essai.texte("lblNombreCeSoir") == "Parmi 2 films."; }));
    const std::string premier = essai.texte("lblFilmCeSoir");
    essai.clique("cmdUnAutre");
    const std::string second = essai.texte("lblFilmCeSoir");
    EXPECT_EQ((std::set{premier, second}), (std::set<std::string>{"L'Été", "Le \"Corniaud\""}));
    essai.clique("cmdFicheCeSoir");
    EXPECT_EQ(essai.texte("Label1_0"), second);
    EXPECT_TRUE(visible("frameFiche"));
}

}  // namespace
