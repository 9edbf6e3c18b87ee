#include "ProgrammeDEssai.h"
#include "edit/ModifieGroupe.h"

#include <QLineEdit>
#include <QRadioButton>

namespace {

using essais::octetsDImage;
using essais::ProgrammeDEssai;

struct Focus : testing::Test {
    ProgrammeDEssai essai;

    void SetUp() override { essai.demarre(); }
    void importe() {
        essai.importe({{"Avatar", "James Cameron", "Aventures", octetsDImage(Qt::red)},
                       {"Playtime", "Jacques Tati", "Humour", ""}});
    }
    [[nodiscard]] std::string focus() { return essai.fenetre().focusWidget()->objectName().toStdString(); }
};

TEST_F(Focus, IsInTheListAtTheStartAndWhereTheListChanged) {
    EXPECT_TRUE(essai.arbre().hasFocus());
    essai.trouve("cmdAjoutAuto").setFocus();
    importe();
    EXPECT_TRUE(essai.arbre().hasFocus()) << "after an import";

    essai.cliqueTitre("Avatar");
    essai.clique("cmdAutresInfos");
    essai.trouve("Text10_3").setFocus();
    QTest::keyClicks(&essai.trouve("Text10_3"), "Grenier");
    EXPECT_EQ(focus(), "Text10_3") << "typing is a command that keeps it";
    essai.clique("cmdValiderInfosPossessions");
    EXPECT_TRUE(essai.arbre().hasFocus()) << "after \"Valider\"";

    essai.choisit("ChoixTri", 4);
    essai.boites.reponse = "Comédie";
    essai.cliqueTitre("Humour");
    essai.trouve("cmdConfigurer").setFocus();
    essai.programme->commande().execute([&] { essai.programme->session().execute(edit::RenommerGenreFilms_Click); });
    EXPECT_TRUE(essai.arbre().hasFocus()) << "after a renaming";

    essai.clique("cmdFonctionRecherche");
    QTest::keyClick(&essai.trouve("Text2"), Qt::Key_Escape);
    EXPECT_TRUE(essai.arbre().hasFocus()) << "after a panel";
}

TEST_F(Focus, NeverLiesOnWhatIsHiddenOrDisabled) {
    importe();
    essai.clique("cmdConfigurer");
    essai.trouve("cmdMultiSuppress").setFocus();
    essai.clique("cmdMultiSuppress");
    EXPECT_EQ(focus(), "Option4_0") << "its page is hidden";

    essai.clique("cmdConfigurer");
    essai.clique("cmdConfig_1");
    essai.clique("Option3_1");
    essai.trouve("Text4").setFocus();
    essai.programme->commande().execute([&] { essai.etats().stockage.Text4.Enabled = false; });
    EXPECT_TRUE(essai.arbre().hasFocus());

    essai.trouve("cmdMajBase").setFocus();
    essai.clique("cmdMajBase");  // work that shows "Annuler" and takes it away again
    EXPECT_EQ(focus(), "cmdMajBase");
}

TEST_F(Focus, TabEntersAGroupAtItsCheckedOption) {
    essai.clique("cmdFonctionRecherche");
    const auto entre = [&] {
        essai.trouve("ZoneRecherche_3").setFocus();
        QTest::keyClick(&essai.trouve("ZoneRecherche_3"), Qt::Key_Tab);
        const std::string nom = focus();
        QTest::keyClick(essai.fenetre().focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(focus(), "cmdRecherche") << "and leaves it";
        return nom;
    };
    EXPECT_EQ(entre(), "TypeFilm_0");
    essai.programme->commande().execute([&] { ecran::choisit(essai.etats().recherche.TypeFilm, 2); });
    EXPECT_EQ(entre(), "TypeFilm_2");
    essai.clique("TypeFilm_1");
    EXPECT_EQ(entre(), "TypeFilm_1");
}

}  // namespace
