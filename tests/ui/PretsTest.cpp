#include "ProgrammeDEssai.h"
#include "ui/TablePrets.h"

#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSpinBox>

namespace {

using essais::ProgrammeDEssai;

struct BureauDesPrets : testing::Test {
    ProgrammeDEssai essai;

    void SetUp() override {
        essai.demarre();
        essai.importe({{"Alien", "Ridley Scott", "Angoisse", {}},
                       {"Brazil", "Terry Gilliam", "Anticipation", {}},
                       {"Cube", "Vincenzo Natali", "Angoisse", {}}});
        note("Alien", "Zelda", "Irma", "01/01/2026");
        note("Brazil", "Alice", "", "20/11/2026");
        QTest::keyClick(&essai.fenetre(), Qt::Key_L, Qt::ControlModifier);
        essai.clique("OngletPrets");
        ASSERT_TRUE(essais::attends([&] { return prets().model()->rowCount() == 2; }));
    }
    // As the sheet does it.
    void note(const char* titre, const char* pret, const char* reserve, const char* date) {
        essai.choisit("ChoixZone", 0);
        essai.cliqueTitre(titre);
        essai.clique("cmdAutresInfos");
        QTest::keyClicks(essai.trouve<QComboBox>("Combo7_0").lineEdit(), pret);
        QTest::keyClicks(essai.trouve<QComboBox>("Combo7_1").lineEdit(), reserve);
        QTest::keyClicks(&essai.trouve("Text10_6"), date);
        essai.clique("cmdValiderInfosPossessions");
    }
    ui::TablePrets& prets() { return essai.trouve<ui::TablePrets>("lstPrets"); }
    [[nodiscard]] std::string cellule(int ligne, int colonne, int role = Qt::DisplayRole) {
        return prets().model()->index(ligne, colonne).data(role).toString().toStdString();
    }
    [[nodiscard]] bool attendsLignes(int nombre) {
        return essais::attends([&] { return prets().model()->rowCount() == nombre; });
    }
};

TEST_F(BureauDesPrets, AFilmComesBackIsHandedOnAndAllIsTakenBack) {
    EXPECT_EQ(essai.texte("lblBilanPrets"),
              "2 films prêtés à 2 personnes, dont 1 depuis plus de 30 jours. 1 film réservé.");
    EXPECT_EQ(cellule(0, 1), "Alice");
    EXPECT_EQ(cellule(1, 2), "324 jours");
    EXPECT_FALSE(prets().model()->index(1, 2).data(Qt::DecorationRole).isNull());
    EXPECT_EQ(cellule(1, 0, Qt::AccessibleTextRole),
              "Alien – Ridley Scott, prêté à Zelda, depuis 324 jours, en retard, attendu par Irma");
    essai.trouve<QSpinBox>("JoursDeRetard").setValue(400);
    EXPECT_TRUE(prets().model()->index(1, 2).data(Qt::DecorationRole).isNull());
    EXPECT_FALSE(essai.trouve("cmdRendu").isEnabled());

    prets().setFocus();
    QTest::keyClick(&prets(), Qt::Key_End);
    essai.clique("cmdRappel");
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("Bonjour Zelda,\n"));
    essai.trouve("cmdRendu").setFocus();
    QTest::keyClick(&essai.trouve("cmdRendu"), Qt::Key_Return);
    ASSERT_TRUE(attendsLignes(1));
    EXPECT_TRUE(prets().hasFocus()) << "and not the button that nothing is chosen for";
    EXPECT_EQ(essai.texte("lblAvis"), "1 film rendu. « Alien » est attendu par Irma.");
    essai.clique("cmdAvis_0");
    ASSERT_TRUE(attendsLignes(2));
    EXPECT_EQ(cellule(1, 1), "Irma");
    EXPECT_FALSE(essai.trouve("lstReservations").isVisible());
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(&essai.fenetre(), Qt::Key_Z, Qt::ControlModifier);
    ASSERT_TRUE(essais::attends([&] { return cellule(1, 1) == "Zelda"; }));
    EXPECT_EQ(essai.texte("lblAvis"), "Annulé : retour d'un film.");
    EXPECT_TRUE(essai.trouve("lstReservations").isVisible());
}

TEST_F(BureauDesPrets, LendsWhatTheTreeHasChosenAndSortsByItsHeadings) {
    essai.cliqueTitre("Cube");
    essai.clique("cmdCollection");
    EXPECT_EQ(essai.texte("lblAPreter"), "Prêter « Cube »");
    auto& nom = *essai.trouve<QComboBox>("PreterA").lineEdit();
    nom.setFocus();
    QTest::keyClicks(&nom, "Irma");
    QTest::keyClick(&nom, Qt::Key_Return);
    ASSERT_TRUE(attendsLignes(3));
    EXPECT_EQ(essai.texte("lblAvis"), "1 film prêté à Irma.");
    EXPECT_EQ(nom.text(), "");

    const auto titre = [&](int colonne) {
        QTest::mouseClick(prets().header()->viewport(), Qt::LeftButton, {},
                          {prets().header()->sectionViewportPosition(colonne) + 10, 8});
    };
    prets().selectionModel()->select(prets().model()->index(1, 0),
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const std::pair<int, const char*> tris[] = {{0, "Alien Brazil Cube"},
                                                {0, "Cube Brazil Alien"},
                                                {4, "Cube Brazil Alien"},
                                                {2, "Alien Brazil Cube"},
                                                {2, "Cube Brazil Alien"}};
    for (const auto& [colonne, ordre] : tris) {
        titre(colonne);
        std::string lus;
        for (int ligne = 0; ligne < 3; ++ligne)
            lus += (ligne ? " " : "") + cellule(ligne, 0).substr(0, cellule(ligne, 0).find(' '));
        EXPECT_EQ(lus, ordre) << colonne;
        EXPECT_EQ(prets().choisis().at(0).film.titre, "Cube") << "chosen wherever it stands";
    }
    QTest::keyClick(&prets(), Qt::Key_Home);
    QTest::keyClick(&prets(), Qt::Key_Return);
    EXPECT_TRUE(essai.trouve("frameFiche").isVisible());
    EXPECT_EQ(essai.texte("Label1_0"), "Cube");
}

}  // namespace
