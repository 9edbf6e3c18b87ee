#include "ProgrammeDEssai.h"

#include <QMenu>
#include <QScrollBar>

namespace {

using essais::Film;
using essais::ProgrammeDEssai;

struct Liste : testing::Test {
    ProgrammeDEssai essai;

    void SetUp() override {
        essai.demarre();
        std::vector<Film> films{{"La Bague au doigt", "Jeanne Moreau", "Drame", ""},
                                {"Œdipe roi", "Pasolini", "Drame", ""},
                                {"L’Étau", "Hitchcock", "Drame", ""},
                                {"9-3, mémoire d'un territoire", "Yamina Benguigui", "Documentaire", ""}};
        for (int i = 10; i < 70; ++i)
            films.push_back({"Film " + std::to_string(i), "Quelqu'un", i % 2 ? "Comédie" : "Drame", ""});
        essai.importe(films);
        essai.choisit("ChoixZone", 1);
        essai.choisit("ChoixTri", 0);
    }
    // One event, so that no pause comes between its letters.
    void tape(const QString& texte) {
        QKeyEvent frappe(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, texte);
        QApplication::sendEvent(&essai.arbre(), &frappe);
    }
    [[nodiscard]] QString choisi() {
        const QModelIndexList choisis = essai.arbre().selectionModel()->selectedIndexes();
        return choisis.isEmpty() ? QString() : choisis.first().data().toString();
    }
    // What a screen reader says of the row.
    [[nodiscard]] std::string lu() {
        return essai.arbre().currentIndex().data(Qt::AccessibleTextRole).toString().toStdString();
    }
    [[nodiscard]] int hauteur() { return essai.arbre().visualRect(essai.arbre().currentIndex()).top(); }
    [[nodiscard]] QScrollBar& ascenseur() { return *essai.arbre().verticalScrollBar(); }
    // Brings a film deep in the list to a height of its own.
    void descends(const char* titre) {
        essai.cliqueTitre(titre);
        ascenseur().setValue(ascenseur().value() + hauteur() - 70);
        ASSERT_EQ(hauteur(), 70);
        ASSERT_GT(ascenseur().value(), 0);
    }
};

TEST_F(Liste, TypingFindsTheFilmUnderAClosedHeadingWhateverItsAccents) {
    const std::pair<const char*, const char*> frappes[] = {{"la bague", "La Bague Au Doigt"},
                                                           {"oed", "Œdipe Roi"},
                                                           {"L'ETAU", "L’étau"},
                                                           {"9-3, me", "9-3, Mémoire D'Un Territoire"}};
    for (const auto& [frappe, titre] : frappes) {
        essai.choisit("ChoixTri", 0);  // every heading closed, and what was typed before forgotten
        QTest::keyClick(&essai.arbre(), Qt::Key_Home);
        tape(frappe);
        EXPECT_EQ(choisi().toStdString(), titre);
        EXPECT_EQ(essai.texte("Label1_0"), titre);
        EXPECT_TRUE(essai.trouve("frameFiche").isVisible());
    }
}

TEST_F(Liste, TheOnlyResultOpensWithAnyArrow) {
    for (const Qt::Key touche : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End}) {
        essai.clique("cmdFonctionRecherche");
        QTest::keyClicks(&essai.trouve("Text2"), "bague");
        QTest::keyClick(&essai.trouve("Text2"), Qt::Key_Return);
        ASSERT_EQ(essai.arbre().model()->rowCount(), 1);
        EXPECT_TRUE(essai.trouve("Text2").hasFocus());
        QTest::keyClick(&essai.trouve("Text2"), Qt::Key_Down);
        EXPECT_TRUE(essai.arbre().hasFocus());
        EXPECT_EQ(choisi(), "") << "going there shows nothing yet";
        QTest::keyClick(&essai.arbre(), touche);
        EXPECT_EQ(essai.texte("Label1_0"), "La Bague Au Doigt");
        EXPECT_TRUE(essai.trouve("frameFiche").isVisible());
    }
}

TEST_F(Liste, AClickBesideTheRowsChangesNothing) {
    essai.choisit("ChoixTri", 0);
    essai.cliqueTitre("L’étau");
    const QPoint vide(40, essai.arbre().viewport()->height() - 5);
    ASSERT_FALSE(essai.arbre().indexAt(vide).isValid());
    QTest::mouseClick(essai.arbre().viewport(), Qt::LeftButton, {}, vide);
    QTest::mouseDClick(essai.arbre().viewport(), Qt::LeftButton, {}, vide);
    EXPECT_EQ(choisi(), "L’étau");
    QTest::mouseClick(essai.arbre().viewport(), Qt::RightButton, {}, vide);
    EXPECT_EQ(choisi(), "L’étau");
    ASSERT_TRUE(essai.trouve<QMenu>("MenuClicDroitFilm").isVisible());
    essai.trouve<QMenu>("MenuClicDroitFilm").close();

    // A press that slides off its row has chosen it; no other row is.
    const QPoint place = essai.place("La Bague Au Doigt");
    QTest::mousePress(essai.arbre().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseMove(essai.arbre().viewport(), place - QPoint(0, 40));
    QTest::mouseRelease(essai.arbre().viewport(), Qt::LeftButton, {}, place - QPoint(0, 40));
    EXPECT_EQ(choisi(), "La Bague Au Doigt");
    EXPECT_EQ(essai.texte("Label1_0"), "La Bague Au Doigt");
}

TEST_F(Liste, TheChosenRowStaysWhereItWasThroughACommand) {
    descends("Film 20");
    essai.boites.reponse = "7";
    essai.clique("cmdModifieNote");
    EXPECT_EQ(choisi(), "Film 20");
    EXPECT_EQ(hauteur(), 70);
    EXPECT_TRUE(essais::attends([&] { return lu() == "Film 20, possédé, noté 7/10"; }));

    essai.choisit("ChoixTri", 4);
    EXPECT_EQ(ascenseur().value(), 0) << "another sort begins at its top";
    essai.cliqueTitre("Documentaire");
    descends("Film 22");
    essai.clique("cmdAutresInfos");
    QTest::keyClicks(&essai.trouve("Text10_3"), "Grenier");
    essai.trouve<QComboBox>("Combo7_0").setEditText("Paul");
    essai.clique("cmdValiderInfosPossessions");
    EXPECT_EQ(choisi(), "Film 22");
    EXPECT_EQ(hauteur(), 70);
    EXPECT_TRUE(essai.arbre().isExpanded(essai.arbre().model()->index(1, 0))) << "the other heading stays open";
    EXPECT_TRUE(essais::attends([&] { return lu() == "Film 22, possédé, prêté"; }));
    EXPECT_EQ(essai.arbre().currentIndex().data(Qt::ToolTipRole).toString(),
              "Film 22\nQuelqu'un, 2001\nPossédé, prêté");

    essai.choisit("ChoixZone", 0);
    EXPECT_EQ(ascenseur().value(), 0);
}

}  // namespace
