#include "ProgrammeDEssai.h"

#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>

namespace {

using essais::ProgrammeDEssai;

// What a user without a mouse does.
struct Clavier : testing::Test {
    ProgrammeDEssai essai;

    void SetUp() override {
        essai.demarre();
        essai.importe({{"Alien", "Ridley Scott", "comedie", {}}, {"Brazil", "Terry Gilliam", "Anticipation", {}}});
        essai.choisit("ChoixZone", 1);
        essai.cliqueTitre("Alien");
        ASSERT_TRUE(QTest::qWaitForWindowActive(&essai.fenetre(), essais::kPatience));
    }
    void touche(int touche, Qt::KeyboardModifiers avec = {}) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &essai.fenetre(),
                        static_cast<Qt::Key>(touche), avec);
    }
    void ecris(const char* nom, const char* texte) {
        auto& zone = essai.trouve(nom);
        zone.setFocus();
        auto* liste = qobject_cast<QComboBox*>(&zone);
        auto* ligne = liste ? liste->lineEdit() : qobject_cast<QLineEdit*>(&zone);
        ligne->selectAll();
        QTest::keyClicks(ligne, texte);
        if (QWidget* suggestions = QApplication::activePopupWidget()) suggestions->close();
    }
    [[nodiscard]] std::string colonne(const char* table, const char* champ) {
        return dao::DBEngine::OpenDatabase(essai.dossier.chemin("Films.mdb")).OpenRecordset(table).texte(champ);
    }
};

TEST_F(Clavier, HoldingsAreStoredByEnterAndByCtrlEnterToTheLetter) {
    essai.clique("cmdAutresInfos");
    ecris("Text10_3", "Salon");
    touche(Qt::Key_Return);
    EXPECT_EQ(colonne("Personnel", "Rangement"), "Salon");
    ecris("Combo7_2", "dvd");  // the list has "DVD"
    touche(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(colonne("Personnel", "Support"), "dvd");
    EXPECT_EQ(essai.texte("Label1_0"), "Alien");
}

TEST_F(Clavier, CtrlZTakesBackTheFieldFirstAndThenTheBase) {
    touche(Qt::Key_Delete);
    EXPECT_EQ(essai.texte("lblAvis"), "« Alien » supprimé.");
    EXPECT_EQ(essai.trouve("cmdDefaire").toolTip().toStdString(), "Annuler : suppression de « Alien » (Ctrl+Z)");
    touche(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(essai.texte("Label1_0"), "Alien");
    EXPECT_TRUE(essai.trouve("frameFiche").isVisible());
    EXPECT_EQ(essai.texte("Label9_0"), "2 titres");
    touche(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(essai.texte("Label9_0"), "1 titre");
    essai.clique("cmdAvis_0");
    EXPECT_EQ(essai.texte("Label9_0"), "2 titres");

    essai.clique("cmdAutresInfos");
    auto& rangement = essai.trouve<QLineEdit>("Text10_3");
    ecris("Text10_3", "Salon");
    touche(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(rangement.text(), "") << "its own";
    EXPECT_EQ(essai.texte("Label9_0"), "2 titres");
    ASSERT_TRUE(rangement.hasFocus() && !rangement.isUndoAvailable());
    touche(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(essai.texte("Label9_0"), "0 titre") << "the import";
    EXPECT_FALSE(essai.trouve("cmdDefaire").isEnabled());
    essai.clique("cmdRetablir");
    EXPECT_EQ(essai.texte("Label9_0"), "2 titres");
}

TEST_F(Clavier, AFilmIsCorrectedToTheLetter) {
    dao::DBEngine::OpenDatabase(essai.dossier.chemin("Films.mdb"))
        .Execute("UPDATE Films SET Resume='un\u00a0été'||char(13,10)||'à\u2028deux'");
    touche(Qt::Key_F2);
    ecris("Combo2", "Comedie");
    essai.trouve("txtResume").setFocus();
    QTest::keyClicks(&essai.trouve("txtResume"), "A ");
    touche(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(colonne("Films", "Genre"), "Comedie");
    EXPECT_EQ(colonne("Films", "Resume"), "A un\u00a0été\r\nà\u2028deux");
    EXPECT_TRUE(essai.trouve("frameFiche").isVisible());
}

TEST_F(Clavier, AFirstPosterIsAskedForAndTheListComesBack) {
    auto& cadre = essai.trouve("cadreAffiche");
    EXPECT_EQ(cadre.focusPolicy(), Qt::TabFocus);
    essai.boites.fichier = essai.dossier.ecrit("affiche.jpg", essais::octetsDImage(Qt::red));
    cadre.setFocus();
    touche(Qt::Key_Return);
    EXPECT_TRUE(essai.trouve("Image1").isVisible() && essai.trouve("Image1").hasFocus());
    EXPECT_EQ(cadre.focusPolicy(), Qt::NoFocus);
    touche(Qt::Key_Escape);
    EXPECT_TRUE(essai.arbre().hasFocus());
}

TEST_F(Clavier, FilmsAreTickedAndDeleted) {
    essai.clique("cmdConfigurer");
    essai.trouve("cmdMultiSuppress").setFocus();
    touche(Qt::Key_Return);
    EXPECT_TRUE(essai.trouve("Option4_0").hasFocus());
    touche(Qt::Key_Right);
    EXPECT_TRUE(essai.trouve<QRadioButton>("Option4_1").isChecked());
    essai.arbre().setFocus();
    essai.cliqueTitre("Brazil");
    EXPECT_TRUE(essai.trouve("frameFiche").isVisible() && essai.trouve("frameMultiSuppression").isVisible());
    touche(Qt::Key_Space);
    EXPECT_EQ(essai.etats().liste.TreeView1.coches.size(), 1U);
    essai.trouve("cmdSupprTitresSelect").setFocus();
    touche(Qt::Key_Return);
    EXPECT_EQ(essai.texte("Label9_0"), "1 titre");
    const auto estRange = [&] {
        return !essai.trouve("frameMultiSuppression").isVisible() && !essai.etats().liste.TreeView1.Checkboxes &&
               !essai.trouve<QRadioButton>("Option4_1").isChecked();
    };
    touche(Qt::Key_Escape);
    EXPECT_TRUE(estRange());
    essai.clique("cmdConfigurer");
    essai.clique("cmdMultiSuppress");
    essai.clique("Option4_1");
    essai.clique("cmdConfigurer");
    EXPECT_TRUE(estRange()) << "another panel was opened";
}

TEST_F(Clavier, KeysAreToldAndOpenTheMenu) {
    essai.arbre().setFocus();
    touche(Qt::Key_F1);
    ASSERT_FALSE(essai.boites.messages.empty());
    EXPECT_NE(essai.boites.messages.back().find("Ctrl+O"), std::string::npos);
    touche(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(essai.trouve<QMenu>("MenuClicDroitFilm").isVisible());
    essai.trouve<QMenu>("MenuClicDroitFilm").close();
}

TEST_F(Clavier, ClosingTheWindowAsksFirst) {
    essai.boites.reponseAuxQuestions = dialogues::kNon;
    ecris("Text10_3", "Salon");
    essai.fenetre().close();
    EXPECT_TRUE(essai.fenetre().isVisible());
    EXPECT_EQ(essai.trouve<QLineEdit>("Text10_3").text(), "Salon");
    essai.boites.reponseAuxQuestions = dialogues::kOui;
    essai.fenetre().close();
    EXPECT_FALSE(essai.fenetre().isVisible());
}

}  // namespace
