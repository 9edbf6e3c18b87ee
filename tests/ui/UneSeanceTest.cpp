#include "ProgrammeDEssai.h"
#include "parcours/Photo.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTextDocument>
#include <QToolTip>

#include <gmock/gmock.h>

namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

// A whole session by mouse and keys. After each command the sheet's film, the selected node and the rows that changed
// in the base must be the same film.
struct UneSeance : testing::Test {
    essais::ProgrammeDEssai essai;
    parcours::Photo photo;

    void SetUp() override { essai.demarre(); }

    // Since the last call.
    [[nodiscard]] std::vector<std::string> changements() {
        parcours::Photo apres(essai.dossier.chemin("Films.mdb"));
        std::vector<std::string> lignes = apres.depuis(photo);
        photo = std::move(apres);
        return lignes;
    }
    void touche(Qt::Key touche, Qt::KeyboardModifiers modificateurs = {}) {
        QTest::keyClick(essai.fenetre().focusWidget(), touche, modificateurs);
    }
    void clique(const char* nom) {
        EXPECT_TRUE(essai.trouve(nom).isVisible() && essai.trouve(nom).isEnabled()) << nom;
        essai.clique(nom);
    }
    void tape(const char* nom, const char* texte) {
        QWidget* zone = &essai.trouve(nom);
        if (auto* liste = qobject_cast<QComboBox*>(zone)) zone = liste->lineEdit();
        QTest::mouseClick(zone, Qt::LeftButton);
        QTest::keyClick(zone, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(zone, texte);
    }
    void coche(const std::string& titre) {
        const QPoint place = essai.place(titre);
        const QRect ligne = essai.arbre().visualRect(essai.arbre().indexAt(place));
        QTest::mouseClick(essai.arbre().viewport(), Qt::LeftButton, {}, {ligne.left() + 10, place.y()});
    }
    [[nodiscard]] std::string noeudChoisi() {
        const QModelIndexList choisis = essai.arbre().selectionModel()->selectedIndexes();
        return choisis.size() == 1 ? choisis.first().data().toString().toStdString() : "";
    }
    // On the sheet and in the tree.
    [[nodiscard]] std::string filmMontre() {
        if (!essai.trouve("frameFiche").isVisible()) return "";
        EXPECT_EQ(essai.texte("Label1_0"), noeudChoisi());
        return noeudChoisi() + " " + essai.trouve<QAbstractButton>("lblRealisateur").text().toStdString();
    }

    const std::string parrain = "le parrain iii de Francis Ford Coppola";

    void importeEtCherche() {
        essai.importe({{"Avatar", "James Cameron", "Aventures", essais::octetsDImage(Qt::red)},
                       {"Playtime", "Jacques Tati", "Humour", ""},
                       {"Vertigo", "Alfred Hitchcock", "Drame", ""}});
        EXPECT_EQ(changements().size(), 6u);
        for (const char* texte : {"rien", "play"}) {
            touche(Qt::Key_Escape);
            EXPECT_TRUE(essai.trouve("framePresentation").isVisible());
            touche(Qt::Key_F, Qt::ControlModifier);
            QTest::keyClicks(essai.fenetre().focusWidget(), texte);
        }
        touche(Qt::Key_Return);
        EXPECT_EQ(essai.texte("Label9_0"), "3 titres");
        essai.cliqueTitre("Playtime");
        EXPECT_EQ(filmMontre(), "Playtime de Jacques Tati");
        EXPECT_THAT(changements(), IsEmpty());
    }

    void ajouteALaMain() {
        touche(Qt::Key_N, Qt::ControlModifier);
        QTest::keyClicks(essai.fenetre().focusWidget(), "le parrain ii");
        touche(Qt::Key_Tab);
        QTest::keyClicks(essai.fenetre().focusWidget(), "Francis Ford Coppola");
        tape("Combo2", "Mafia");
        QTest::keyClick(&essai.trouve("Text3_2"), Qt::Key_Return);
        EXPECT_THAT(changements(), UnorderedElementsAre("+Films : le parrain ii de Francis Ford Coppola",
                                                        "+Personnel : le parrain ii de Francis Ford Coppola"));
        essai.cliqueTitre("le parrain ii");
        EXPECT_EQ(filmMontre(), "le parrain ii de Francis Ford Coppola");
    }

    void modifie() {
        touche(Qt::Key_F2);
        EXPECT_EQ(essai.trouve<QComboBox>("Combo2").currentText(), "Mafia");
        touche(Qt::Key_Escape);
        EXPECT_EQ(filmMontre(), "le parrain ii de Francis Ford Coppola");
        EXPECT_TRUE(essai.arbre().hasFocus());
        touche(Qt::Key_F2);
        tape("Text3_0", "le parrain iii");
        touche(Qt::Key_Return);
        EXPECT_EQ(filmMontre(), parrain);
        EXPECT_THAT(changements(), UnorderedElementsAre("*Films : " + parrain, "*Personnel : " + parrain));
    }

    void renommeUnGenre() {
        essai.choisit("ChoixTri", 4);
        essai.cliqueTitre("Mafia", Qt::RightButton);
        auto& menu = essai.trouve<QMenu>("MenuClicDroitGenre");
        ASSERT_TRUE(menu.isVisible());
        essai.boites.reponse = "Policier";
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Return);
        EXPECT_THAT(changements(), UnorderedElementsAre("*Films : " + parrain));
        EXPECT_NO_THROW(essai.place("Policier"));
    }

    void cocheEtSupprime() {
        essai.cliqueTitre("Playtime");
        clique("cmdConfigurer");
        clique("cmdMultiSuppress");
        clique("Option4_1");
        coche("Vertigo");
        EXPECT_TRUE(essai.trouve("frameMultiSuppression").isVisible()) << "a tick shows no sheet";
        EXPECT_EQ(noeudChoisi(), "Playtime") << "nor does it select";
        coche("Avatar");
        coche("Avatar");
        clique("cmdSupprTitresSelect");
        EXPECT_THAT(changements(), UnorderedElementsAre("-Films : Vertigo de Alfred Hitchcock",
                                                        "-Personnel : Vertigo de Alfred Hitchcock"));
        clique("Option4_0");
    }

    void supprimeAuClavier() {
        essai.cliqueTitre("Avatar");
        clique("cmdAutresInfos");
        tape("Text10_3", "abc");
        for (int i = 0; i < 5; ++i)
            touche(Qt::Key_Delete);  // of letters, then of nothing
        EXPECT_EQ(filmMontre(), "Avatar de James Cameron");
        essai.arbre().setFocus();
        touche(Qt::Key_Delete);
        EXPECT_THAT(changements(),
                    UnorderedElementsAre("-Films : Avatar de James Cameron", "-Personnel : Avatar de James Cameron"));
        EXPECT_EQ(filmMontre(), "");
    }

    void quitteEtRevient() {
        clique("cmdStop");
        EXPECT_FALSE(essai.fenetre().isVisible());
        essai.programme.reset();
        essai.demarre();
        EXPECT_EQ(essai.texte("Label9_0") + ", " + essai.texte("Label9_1"), "2 titres, 2 personnels");
        EXPECT_EQ(essai.trouve<QComboBox>("ChoixTri").currentIndex(), 4);
        essai.cliqueTitre("le parrain iii");
        EXPECT_EQ(filmMontre(), parrain);
        EXPECT_EQ(essai.texte("Label1_6"), "Policier");
        EXPECT_THAT(changements(), IsEmpty());
    }
};

TEST_F(UneSeance, ByMouseAndKeysFromAFreshStartToTheNextOne) {
    importeEtCherche();
    ajouteALaMain();
    modifie();
    renommeUnGenre();
    cocheEtSupprime();
    supprimeAuClavier();
    quitteEtRevient();
}

TEST_F(UneSeance, ATextThatIsCutIsToldWholeAndPlain) {
    const std::string titre = "Les \"Nouveaux\" Monstres & Le <b>Retour</b> Des " + std::string(60, 'M');
    essai.importe({{titre, "Dino Risi", "Humour", ""}});
    const std::string montre(essai.etats().liste.TreeView1.Nodes.Text(essai.etats().liste.TreeView1.Nodes.Count()));
    essai.cliqueTitre(montre);
    for (const char* nom : {"Label1_0", "TreeView1"}) {
        QWidget* widget = &essai.trouve(nom);
        if (widget == &essai.arbre()) widget = essai.arbre().viewport();
        const QPoint place = widget == &essai.trouve(nom) ? widget->rect().center() : essai.place(montre);
        QHelpEvent demande(QEvent::ToolTip, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &demande);
        QTextDocument bulle;
        bulle.setHtml(QToolTip::text());
        EXPECT_EQ(bulle.toPlainText().section('\n', 0, 0).toStdString(), montre) << nom;
    }
}

}  // namespace
