#include "ProgrammeDEssai.h"
#include "app/Filtre.h"

#include <QLineEdit>
#include <QScrollBar>

#include <gmock/gmock.h>

namespace {

using essais::Film;
using essais::ProgrammeDEssai;
using testing::ElementsAre;

// What is typed above the title tree.
struct Filtre : testing::Test {
    ProgrammeDEssai essai;

    void SetUp() override {
        essai.demarre();
        std::vector<Film> films{{"Cléo de 5 à 7", "Agnès Varda", "Drame", ""},
                                {"Le Cœur en hiver", "Claude Sautet", "Drame", ""},
                                {"L’Apollonide", "Bertrand Bonello", "Drame", ""},
                                {"Sans toit ni loi", "Agnès Varda", "Drame", ""},
                                {"Zazie dans le métro", "Louis Malle", "Comédie", ""}};
        for (int i = 10; i < 90; ++i)
            films.push_back({"Film " + std::to_string(i), "Quelqu'un", i % 2 ? "Comédie" : "Western", ""});
        essai.importe(films);
        essai.choisit("ChoixZone", 1);
        essai.choisit("ChoixTri", 4);  // Comédie, Drame, Western
        ASSERT_EQ(essai.arbre().model()->rowCount(), 3);
    }
    [[nodiscard]] QLineEdit& champ() { return essai.trouve<QLineEdit>("Filtre"); }
    void tape(const QString& texte) {
        champ().setFocus();
        champ().selectAll();
        QTest::keyClicks(&champ(), texte);
    }
    void touche(Qt::Key touche, Qt::KeyboardModifiers avec = {}) {
        QTest::keyClick(QApplication::focusWidget(), touche, avec);
    }
    // What can be seen of the tree: of a closed heading its text alone.
    [[nodiscard]] std::vector<std::string> montres() {
        std::vector<std::string> textes;
        const QAbstractItemModel& modele = *essai.arbre().model();
        for (int g = 0; g < modele.rowCount(); ++g) {
            const QModelIndex groupe = modele.index(g, 0);
            textes.push_back(groupe.data().toString().toStdString());
            for (int f = 0; essai.arbre().isExpanded(groupe) && f < modele.rowCount(groupe); ++f)
                textes.push_back(modele.index(f, 0, groupe).data().toString().toStdString());
        }
        return textes;
    }
    [[nodiscard]] std::string choisi() {
        const QModelIndexList choisis = essai.arbre().selectionModel()->selectedIndexes();
        return choisis.isEmpty() ? std::string() : choisis.first().data().toString().toStdString();
    }
    // The letters that a row of this title marks.
    [[nodiscard]] QStringList marquees(const std::string& titre) {
        const QPoint place = essai.place(titre);
        const QModelIndex ligne = essai.arbre().indexAt(place);
        QStringList textes;
        for (const auto& [debut, nombre] : ligne.data(ui::ModeleArbre::Lettres).value<ui::ModeleArbre::Plages>())
            textes << ligne.data().toString().mid(debut, nombre);
        return textes;
    }
};

TEST_F(Filtre, HidesWhileTypingAndLeavesTheListAsItWas) {
    essai.cliqueTitre("Film 80");
    QScrollBar& ascenseur = *essai.arbre().verticalScrollBar();
    const int avant = ascenseur.value();
    const int noeud = essai.etats().liste.TreeView1.SelectedItem;
    ASSERT_GT(avant, 0);
    touche(Qt::Key_K, Qt::ControlModifier);
    EXPECT_TRUE(champ().hasFocus());
    tape("COEUR hiv");
    EXPECT_THAT(montres(), ElementsAre("Drame", "Le Cœur En Hiver"));
    EXPECT_EQ(marquees("Le Cœur En Hiver"), QStringList({"Cœur", "Hiv"}));
    EXPECT_EQ(essai.texte("lblCompteFiltre"), "1 titre sur 85");
    tape("varda");
    EXPECT_THAT(montres(), ElementsAre("Drame", "Cléo De 5 À 7", "Sans Toit Ni Loi"));
    EXPECT_EQ(choisi(), "");
    essai.choisit("ChoixTri", 0);
    EXPECT_THAT(montres(), ElementsAre("C", "Cléo De 5 À 7", "S", "Sans Toit Ni Loi"))
        << "another sort keeps the words";
    essai.choisit("ChoixTri", 4);
    essai.cliqueTitre("Sans Toit Ni Loi");
    EXPECT_EQ(essai.texte("Label1_0"), "Sans Toit Ni Loi");
    EXPECT_EQ(choisi(), "Sans Toit Ni Loi");

    tape("film 4");
    EXPECT_EQ(choisi(), "") << "out of sight";
    essai.clique("cmdAutresInfos");
    EXPECT_EQ(essai.texte("Label1_0"), "Sans Toit Ni Loi") << "and still the one that commands are about";
    EXPECT_GT(essai.etats().liste.TreeView1.SelectedItem, 0);
    champ().setFocus();
    touche(Qt::Key_Escape);
    EXPECT_TRUE(essai.arbre().hasFocus() && champ().text().isEmpty());
    EXPECT_EQ(choisi(), "Sans Toit Ni Loi");
    EXPECT_FALSE(essai.trouve("lblCompteFiltre").isVisible());

    // Nothing chosen meanwhile: headings and scroll bar are as they were.
    essai.cliqueTitre("Film 80");
    const int place = ascenseur.value();
    const std::vector<std::string> ouverts = montres();
    tape("varda");
    touche(Qt::Key_Escape);
    EXPECT_EQ(montres(), ouverts);
    EXPECT_EQ(ascenseur.value(), place);
    EXPECT_EQ(choisi(), "Film 80");
    EXPECT_EQ(essai.etats().liste.TreeView1.SelectedItem, noeud);
}

TEST_F(Filtre, KeysGoInAndBack) {
    essai.arbre().setFocus();
    QTest::keyClicks(&essai.arbre(), "/");
    ASSERT_TRUE(champ().hasFocus());
    EXPECT_EQ(champ().text(), "");
    QTest::keyClicks(&champ(), "film 1");
    touche(Qt::Key_Return);
    EXPECT_EQ(essai.texte("Label1_0"), "Film 11");
    EXPECT_TRUE(champ().hasFocus()) << "typing goes on";
    QTest::keyClicks(&champ(), "2");
    touche(Qt::Key_Down);
    EXPECT_TRUE(essai.arbre().hasFocus());
    EXPECT_EQ(essai.texte("Label1_0"), "Film 12");
    EXPECT_EQ(choisi(), "Film 12");
    QTest::keyClicks(&essai.arbre(), "z");
    EXPECT_EQ(choisi(), "Film 12") << "Zazie is hidden";

    tape("xyz");
    EXPECT_TRUE(essai.trouve("lblFiltreVide").isVisible());
    EXPECT_NE(essai.texte("lblFiltreVide").find("« xyz »"), std::string::npos);
    touche(Qt::Key_Down);
    EXPECT_TRUE(champ().hasFocus()) << "there is nowhere to go";
    essai.clique("cmdToutAfficher");
    EXPECT_EQ(essai.arbre().model()->rowCount(), 3);
    EXPECT_FALSE(essai.trouve("lblFiltreVide").isVisible());
}

TEST_F(Filtre, TicksOutOfSightAreToldAndStay) {
    essai.clique("cmdConfigurer");
    essai.clique("cmdMultiSuppress");
    essai.clique("Option4_1");
    for (const char* titre : {"Film 12", "Film 14"}) {
        essai.cliqueTitre(titre);
        touche(Qt::Key_Space);
    }
    EXPECT_EQ(essai.texte("lblCoches"), "2 films cochés");
    tape("film 12");
    EXPECT_EQ(essai.texte("lblCoches"), "2 films cochés, dont 1 masqué par le filtre");
    essai.clique("cmdSupprTitresSelect");
    EXPECT_EQ(essai.boites.messages.back(), "2 titres supprimés.");
    EXPECT_EQ(essai.texte("Label9_0"), "83 titres");
    EXPECT_EQ(essai.arbre().model()->rowCount(), 0) << "the filter is still on";
}

TEST_F(Filtre, TheFilmsOfABarStayThoseThroughSortsAndFillings) {
    const browse::Arbre& arbre = essai.etats().liste.TreeView1.Nodes;
    std::vector<std::uint32_t> lignes;
    for (int i = 1; i <= arbre.Count(); ++i)
        if (arbre.Text(i) == "Film 13" || arbre.Text(i) == "Cléo De 5 À 7") lignes.push_back(arbre.position(i));
    essai.programme->session().execute(app::montreSeulement, lignes, std::string("Duo"));
    essai.choisit("ChoixTri", 0);
    EXPECT_THAT(montres(), ElementsAre("C", "Cléo De 5 À 7", "F", "Film 13"));
    EXPECT_EQ(essai.trouve<QAbstractButton>("cmdLeverLimite").text(), "Duo ✕");
    tape("13");
    EXPECT_THAT(montres(), ElementsAre("F", "Film 13"));
    essai.cliqueTitre("Film 13");
    essai.clique("cmdAutresInfos");
    essai.clique("Option1_1");
    QTest::keyClicks(&essai.trouve("Text10_3"), "Grenier");
    essai.clique("cmdValiderInfosPossessions");
    EXPECT_THAT(montres(), ElementsAre("F", "Film 13"));
    EXPECT_EQ(choisi(), "Film 13");
    essai.clique("cmdLeverLimite");
    EXPECT_FALSE(essai.trouve("cmdLeverLimite").isVisible());
    EXPECT_THAT(montres(), ElementsAre("F", "Film 13"));
    QTest::keyClick(&champ(), Qt::Key_Escape);
    EXPECT_EQ(essai.arbre().model()->rowCount(), 5);
}

TEST_F(Filtre, ASearchShowsAllThatItFinds) {
    const auto cherche = [this] {
        essai.cliqueTitre("Cléo De 5 À 7");
        essai.clique("lblRealisateur");
        EXPECT_THAT(montres(), ElementsAre("Cléo De 5 À 7", "Sans Toit Ni Loi"));
        EXPECT_EQ(champ().text(), "");
        EXPECT_FALSE(essai.trouve("cmdLeverLimite").isVisible());
    };
    tape("cleo");
    cherche();
    tape("cleo");  // the same search again, of which a bar shows one film
    essai.programme->session().execute(app::montreSeulement, std::vector<std::uint32_t>{1}, std::string("Un"));
    cherche();
    tape("toit");
    EXPECT_THAT(montres(), ElementsAre("Sans Toit Ni Loi"));
}

}  // namespace
