#include "ProgrammeDEssai.h"
#include "db/Affiches.h"
#include "platform/fichiers/Fichiers.h"
#include "ui/Mouvement.h"
#include "ui/MurDAffiches.h"
#include "ui/PageGroupe.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QSettings>
#include <QStyleOptionComboBox>
#include <tuple>

namespace {

using essais::octetsDImage;
using essais::ProgrammeDEssai;

struct Cadre : testing::Test {
    ProgrammeDEssai essai;

    void SetUp() override { essai.demarre(); }
    void importe() {
        essai.importe({{"Avatar", "James Cameron", "Aventures", octetsDImage(Qt::red)},
                       {"Playtime", "Jacques Tati", "Humour", octetsDImage(Qt::green)},
                       {"Trafic", "Jacques Tati", "Humour", ""}});
        essai.choisit("ChoixZone", 1);
        essai.choisit("ChoixTri", 4);
    }
    [[nodiscard]] ui::MurDAffiches& mur() { return essai.trouve<ui::MurDAffiches>("MurDAffiches"); }
    [[nodiscard]] QRect place(int tuile) { return mur().visualRect(mur().model()->index(tuile, 0)); }
    void clique(int tuile) { QTest::mouseClick(mur().viewport(), Qt::LeftButton, {}, place(tuile).center()); }
    // It follows the list once that was painted.
    [[nodiscard]] bool attendsLaPage(const std::string& nom) {
        return essais::attends([&] { return essai.texte("lblGroupe") == nom; });
    }
    // Of the poster of a tile, once all that are in sight with it are there.
    [[nodiscard]] QColor couleur(int tuile) {
        mur().scrollTo(mur().model()->index(tuile, 0));
        if (!essais::attends([&] { return mur().estComplet(); })) return {};
        const QRect entiere = place(tuile);
        const QImage image = mur().viewport()->grab().toImage();
        return image.pixelColor((entiere.topLeft() + QPoint(entiere.width() / 2, entiere.width() / 2)) *
                                image.devicePixelRatio());
    }
    [[nodiscard]] bool presse(const char* nom) { return essai.trouve<QAbstractButton>(nom).isChecked(); }
};

TEST_F(Cadre, AHeadingHasItsWallOfPostersThatLeadToTheirFilms) {
    EXPECT_FALSE(essai.trouve("framePageGroupe").isVisible()) << "an empty base says how to begin";
    importe();
    ASSERT_TRUE(attendsLaPage("Tous les films"));
    EXPECT_EQ(essai.texte("lblNombreGroupe"), "3 films");
    EXPECT_FALSE(essai.trouve("cmdRenommerGroupe").isVisible());
    ASSERT_TRUE(essais::attends([&] { return mur().mur().nombre() == 9; })) << "added, to watch, and the listing";
    EXPECT_GT(couleur(6).red(), 200) << "the tree's first";

    essai.cliqueTitre("Humour");
    ASSERT_TRUE(attendsLaPage("Humour"));
    EXPECT_TRUE(essai.trouve("framePresentation").isVisible());
    EXPECT_GT(couleur(0).green(), 100);
    EXPECT_LT(couleur(0).red(), 40);
    EXPECT_FALSE(mur().aUneAffiche(1));
    QAccessibleInterface* liste = QAccessible::queryAccessibleInterface(&mur());
    ASSERT_TRUE(liste && liste->childCount() == 2);
    EXPECT_EQ(liste->role(), QAccessible::List);
    EXPECT_TRUE(essais::attends(
        [&] { return liste->child(1)->text(QAccessible::Name) == "Trafic, de Jacques Tati, 2001, possédé"; }));
    essai.boites.reponse = "Comédie";
    essai.clique("cmdRenommerGroupe");
    ASSERT_TRUE(attendsLaPage("Comédie"));

    mur().setFocus();
    QTest::keyClick(&mur(), Qt::Key_Right);
    QTest::keyClicks(&mur(), "tra");
    EXPECT_EQ(mur().currentIndex().row(), 1);
    QTest::keyClick(&mur(), Qt::Key_Return);
    EXPECT_EQ(essai.texte("Label1_0"), "Trafic");
    EXPECT_EQ(essai.arbre().currentIndex().data().toString(), "Trafic");
    EXPECT_FALSE(essai.trouve("framePageGroupe").isVisible());
}

TEST_F(Cadre, TheWallFollowsWhatChangesAndDecodesNothingTwice) {
    importe();
    ASSERT_TRUE(attendsLaPage("Tous les films"));
    ASSERT_TRUE(essais::attends([&] { return mur().mur().nombre() == 9; }));
    EXPECT_GT(couleur(6).red(), 200);
    const long decodees = mur().chargeur().decodees();
    EXPECT_EQ(decodees, 2) << "once for all the tiles of a film";
    essai.choisit("ChoixTri", 1);
    ASSERT_TRUE(essais::attends([&] { return mur().mur().sections.back().nombre == 3; }));
    EXPECT_GT(couleur(6).red(), 200);
    EXPECT_EQ(mur().chargeur().decodees(), decodees) << "another sort has the same posters";

    essai.programme->commande().execute([&] {
        essai.programme->session().regarde([](const app::Contexte& c) {
            dao::Recordset film =
                c.base.base.OpenRecordset("SELECT * FROM Films WHERE Titre = \"Avatar\" ORDER BY Titre ASC");
            film.Edit();
            film.assigne("Affiche", db::valeurAfficheDansLaBase(octetsDImage(Qt::blue)));
            film.Update();
        });
    });
    ASSERT_TRUE(essais::attends([&] { return couleur(6).blue() > 200; })) << "the poster of one film";
    EXPECT_EQ(mur().chargeur().decodees(), decodees + 1) << "the others did not change";

    const int avant = place(6).width();
    QTest::keyClick(&essai.fenetre(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(place(6).width(), avant);
    EXPECT_GT(couleur(6).blue(), 200);
    EXPECT_GT(QSettings(QString::fromStdString(essai.dossier.chemin("Interface.ini")), QSettings::IniFormat)
                  .value("Affiches/Largeur")
                  .toInt(),
              128);
    QTest::keyClick(&essai.fenetre(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(place(6).width(), avant);
}

TEST_F(Cadre, TheWallShowsWhatAFilterLeavesAndAsksForTheMenuOfAFilm) {
    importe();
    ASSERT_TRUE(attendsLaPage("Tous les films"));
    essai.trouve<QLineEdit>("Filtre").setText("trafic");
    ASSERT_TRUE(essais::attends([&] { return mur().mur().nombre() == 1; }));
    EXPECT_EQ(essai.texte("lblNombreGroupe"), "1 film sur 3");
    QTest::mouseClick(mur().viewport(), Qt::RightButton, {}, place(0).center());
    auto& menu = essai.trouve<QMenu>("MenuClicDroitFilm");
    EXPECT_TRUE(menu.isVisible());
    menu.close();
    EXPECT_EQ(essai.texte("Label1_0"), "Trafic") << "as a right click in the tree";

    essai.clique("cmdCollection");
    essai.trouve<QLineEdit>("Filtre").clear();
    ASSERT_TRUE(essais::attends([&] { return mur().mur().nombre() == 9; }));
    clique(0);
    EXPECT_EQ(essai.texte("Label1_0"), "Trafic") << "the last one added";
}

TEST_F(Cadre, AnEmptyZoneSaysWhyAndOffersAllFilms) {
    importe();
    essai.choisit("ChoixZone", 3);
    ASSERT_TRUE(essai.trouve("lblListeVide").isVisible());
    EXPECT_EQ(essai.texte("lblListeVide"), "Aucun de vos films n'est prêté.");
    EXPECT_TRUE(essai.trouve("framePageVide").isVisible());
    essai.clique("cmdTousLesFilms");
    EXPECT_FALSE(essai.trouve("lblListeVide").isVisible() || essai.trouve("framePageVide").isVisible());
    EXPECT_EQ(essai.etats().liste.ChoixZone.Text, "Tous les films");
    EXPECT_TRUE(essai.arbre().hasFocus());
    const auto retrait = [&] { return essai.arbre().visualRect(essai.arbre().model()->index(0, 0)).left(); };
    const int dArbre = retrait();
    essai.choisit("ChoixTri", 1);
    EXPECT_LT(retrait(), dArbre) << "a flat list has no arrows to leave room for";
    EXPECT_GT(retrait(), 0);
}

TEST_F(Cadre, TheBarShowsWhichPanelIsOpenWhateverIsClicked) {
    importe();
    const auto etat = [&] {
        return std::array{presse("cmdFonctionRecherche"), presse("cmdAfficherFonctions"), presse("cmdConfigurer")};
    };
    EXPECT_EQ(etat(), (std::array{false, false, false}));
    for (int fois = 0; fois < 2; ++fois) {
        essai.clique("cmdConfigurer");
        EXPECT_EQ(etat(), (std::array{false, false, true})) << "a second click does not take it away";
    }
    essai.clique("cmdAfficherFonctions");
    EXPECT_EQ(etat(), (std::array{false, true, false}));
    essai.clique("cmdFonctionRecherche");
    EXPECT_EQ(etat(), (std::array{true, false, false}));
    EXPECT_TRUE(essai.trouve("framePageGroupe").isVisible()) << "the results stand below the strip";
    EXPECT_LT(essai.trouve("frameRecherche").height(), essai.fenetre().height() / 3);
    essai.cliqueTitre("Avatar");
    EXPECT_EQ(etat(), (std::array{false, false, false}));
}

TEST_F(Cadre, NothingMovesWhenWorkOrANoticeComesAndGoes) {
    importe();
    essai.cliqueTitre("Avatar");
    const auto places = [&] {
        std::vector<QRect> resultat;
        for (const char* nom : {"TreeView1", "frameFiche", "Image1"})
            resultat.emplace_back(essai.trouve(nom).mapTo(&essai.fenetre(), QPoint()), essai.trouve(nom).size());
        return resultat;
    };
    const auto avant = places();
    essai.programme->commande().execute([&] { essai.etats().avis.frameAvis.Visible = true; });
    ASSERT_TRUE(essai.trouve("frameAvis").isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(places(), avant);
    emit essai.programme->ecran().travailCommence();
    ASSERT_TRUE(essai.trouve("cmdAnnuler").isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(places(), avant);
    emit essai.programme->ecran().travailFini();

    // The panel that shows the progress of its own work has room for it before.
    essai.clique("cmdAfficherFonctions");
    QCoreApplication::processEvents();
    const QRect texte = essai.trouve("txtRechInternet").geometry(), lancer = essai.trouve("cmdAjoutAuto").geometry();
    essai.programme->commande().execute([&] {
        auto& ajout = essai.etats().ajout;
        ajout.ProgressBar1.Visible = ajout.lblProgression.Visible = true;
        ajout.lblProgression.Caption = "Avatar";
    });
    QCoreApplication::processEvents();
    EXPECT_EQ(essai.trouve("txtRechInternet").geometry(), texte);
    EXPECT_EQ(essai.trouve("cmdAjoutAuto").geometry(), lancer);
}

TEST_F(Cadre, TheTitleNamesTheOpenBaseAndTheToolsItsPath) {
    EXPECT_EQ(essai.fenetre().windowTitle(), "Films.mdb - Ambrelis");
    EXPECT_EQ(essai.texte("lblCheminBase"), essai.dossier.chemin("Films.mdb"));
    essai.boites.fichier = essai.dossier.chemin("Autres.mdb");
    fichiers::copie(essai.dossier.chemin("Modele.dat"), essai.boites.fichier);
    essai.clique("cmdConfigurer");
    essai.clique("cmdChargeOuvreBase");
    EXPECT_EQ(essai.fenetre().windowTitle(), "Autres.mdb - Ambrelis");
    EXPECT_EQ(essai.texte("lblCheminBase"), essai.boites.fichier);
}

TEST_F(Cadre, ACorrectionNamesItsFilmAndShowsItsPoster) {
    importe();
    essai.cliqueTitre("Avatar");
    essai.clique("cmdModifierTitre");
    EXPECT_EQ(essai.texte("Label5"), "Modifier : « Avatar »");
    EXPECT_TRUE(essai.trouve("imgCorrection").isVisible());
    EXPECT_GT(essai.trouve("imgCorrection").grab().toImage().pixelColor(40, 40).red(), 200);
    essai.clique("Command13_1");
    EXPECT_FALSE(essai.trouve("imgCorrection").isVisible()) << "a new film has none yet";
}

// Two columns of a wide window are one of a narrow one, and nothing is cut in either.
TEST_F(Cadre, ColumnsFollowTheWidth) {
    essai.clique("cmdAfficherFonctions");
    const auto coteACote = [&](const char* gauche, const char* droite, int largeur) {
        essai.fenetre().resize(largeur, 700);
        QCoreApplication::processEvents();
        QWidget &a = essai.trouve(gauche), &b = essai.trouve(droite);
        EXPECT_GE(a.width(), a.minimumSizeHint().width()) << gauche << " at " << largeur;
        return a.mapTo(&essai.fenetre(), QPoint()).x() + a.width() <= b.mapTo(&essai.fenetre(), QPoint()).x();
    };
    EXPECT_TRUE(coteACote("txtCheminAjoutAuto", "txtRechInternet", 1100));
    EXPECT_FALSE(coteACote("txtCheminAjoutAuto", "txtRechInternet", 900));
    EXPECT_TRUE(coteACote("ChoixZone", "ChoixTri", 1100));
    EXPECT_FALSE(coteACote("ChoixZone", "ChoixTri", 900));
    const int liste = essai.arbre().width();
    essai.clique("Command13_1");
    EXPECT_FALSE(coteACote("Text3_0", "txtResume", 900));
    EXPECT_TRUE(coteACote("Text3_1", "txtResume", 1800));
    EXPECT_GT(essai.arbre().width(), liste);
    essai.clique("cmdConfigurer");
    for (const auto& [onglet, gauche, droite] :
         {std::tuple("cmdConfig_1", "Option3_0", "Combo6_0"), {"cmdConfig_0", "cmdCompacter", "cmdPonctuation"}}) {
        essai.clique(onglet);
        EXPECT_TRUE(coteACote(gauche, droite, 1800));
        EXPECT_FALSE(coteACote(gauche, droite, 900));
    }
}

TEST_F(Cadre, NoZoneAndNoSortIsCut) {
    for (const int largeur : {900, 1100, 1180, 1366}) {
        essai.fenetre().resize(largeur, 600);
        QCoreApplication::processEvents();
        for (const char* nom : {"ChoixZone", "ChoixTri"}) {
            auto& liste = essai.trouve<QComboBox>(nom);
            QStyleOptionComboBox option;
            option.initFrom(&liste);
            const int place = liste.style()
                                  ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &liste)
                                  .width();
            for (int i = 0; i < liste.count(); ++i)
                EXPECT_LE(liste.fontMetrics().horizontalAdvance(liste.itemText(i)), place) << largeur << nom << i;
        }
    }
}

TEST_F(Cadre, ADropDownListHasTheShapeOfItsFieldAndRoomForAFinger) {
    auto& tri = essai.trouve<QComboBox>("ChoixTri");
    tri.showPopup();
    const QWidget& liste = *tri.view()->window();
    ASSERT_TRUE(liste.isVisible());
    EXPECT_EQ(liste.width(), tri.width());
    EXPECT_FALSE(liste.mask().isEmpty());
    EXPECT_FALSE(liste.mask().contains(QPoint(0, 0))) << "its corners are round";
    EXPECT_GE(tri.view()->sizeHintForRow(0), 28);
    const QRect derniere = tri.view()->visualRect(tri.model()->index(tri.count() - 1, 0));
    EXPECT_TRUE(tri.view()->viewport()->rect().contains(derniere)) << "nothing to scroll";
    tri.hidePopup();
}

TEST_F(Cadre, TheMainButtonIsOneWhereThereAreSheetsToAdd) {
    essai.clique("cmdAfficherFonctions");
    const auto couleur = [&] {
        QWidget& bouton = essai.trouve("cmdAjoutAuto");
        return bouton.grab().toImage().pixelColor(6, bouton.height() / 2);
    };
    const QColor accent = qApp->palette().color(QPalette::Highlight);
    EXPECT_NE(couleur(), accent);
    essai.dossier.ecrit("fiches/a.FILM", "Alien");
    essai.boites.dossier = essai.dossier.chemin("fiches");
    essai.clique("cmdParcourir2");
    EXPECT_EQ(couleur(), accent);
}

TEST(Mouvement, IsShortAndNoneWhereTheDesktopWantsNone) {
    EXPECT_LE(ui::dureeDuMouvement(), 150);
    EXPECT_GT(ui::dureeDuMouvement(), 0);
    ui::metMouvement(false);
    EXPECT_EQ(ui::dureeDuMouvement(), 0);
    EXPECT_EQ(qApp->style()->styleHint(QStyle::SH_Widget_Animation_Duration), 0);
    ui::metMouvement(true);
}

}  // namespace
