#include "ProgrammeDEssai.h"
#include "platform/fichiers/Fichiers.h"
#include "ui/Mouvement.h"
#include "ui/Vignette.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QProgressBar>

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
    [[nodiscard]] ui::Vignette& vignette(int rang) {
        return essai.trouve<ui::Vignette>(("cmdVignette_" + std::to_string(rang)).c_str());
    }
    // It follows the list once that was painted.
    [[nodiscard]] bool attendsLaPage(const std::string& nom) {
        return essais::attends([&] { return essai.texte("lblGroupe") == nom; });
    }
    [[nodiscard]] QColor couleur(ui::Vignette& vignette) {
        return vignette.grab().toImage().pixelColor(vignette.rect().center() * vignette.devicePixelRatio());
    }
    [[nodiscard]] bool presse(const char* nom) { return essai.trouve<QAbstractButton>(nom).isChecked(); }
};

TEST_F(Cadre, AHeadingHasItsPageOfPostersThatLeadToTheirFilms) {
    EXPECT_FALSE(essai.trouve("framePageGroupe").isVisible()) << "an empty base says how to begin";
    importe();
    ASSERT_TRUE(attendsLaPage("Tous les films"));
    EXPECT_EQ(essai.texte("lblNombreGroupe"), "3 films");
    EXPECT_FALSE(essai.trouve("cmdRenommerGroupe").isVisible());
    ASSERT_TRUE(essais::attends([&] { return vignette(0).aUneAffiche() && vignette(1).aUneAffiche(); }));

    essai.cliqueTitre("Humour");
    ASSERT_TRUE(attendsLaPage("Humour"));
    EXPECT_TRUE(essai.trouve("framePresentation").isVisible());
    ASSERT_TRUE(essais::attends([&] { return couleur(vignette(0)).green() > 100 && couleur(vignette(0)).red() < 40; }));
    EXPECT_FALSE(vignette(1).aUneAffiche());
    EXPECT_TRUE(vignette(2).isHidden());
    essai.boites.reponse = "Comédie";
    essai.clique("cmdRenommerGroupe");
    ASSERT_TRUE(attendsLaPage("Comédie"));

    vignette(0).setFocus();
    QTest::keyClick(&vignette(0), Qt::Key_Right);
    EXPECT_TRUE(vignette(1).hasFocus());
    QTest::keyClick(&vignette(1), Qt::Key_Return);
    EXPECT_EQ(essai.texte("Label1_0"), "Trafic");
    EXPECT_EQ(essai.arbre().currentIndex().data().toString(), "Trafic");
    EXPECT_FALSE(essai.trouve("framePageGroupe").isVisible());
}

TEST_F(Cadre, AnEmptyZoneSaysWhyAndOffersAllFilms) {
    importe();
    essai.choisit("ChoixZone", 3);
    ASSERT_TRUE(essai.trouve("lblListeVide").isVisible());
    EXPECT_EQ(essai.texte("lblListeVide"), "Aucun de vos films n'est prêté.");
    essai.clique("cmdTousLesFilms");
    EXPECT_FALSE(essai.trouve("lblListeVide").isVisible());
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
    EXPECT_TRUE(coteACote("ChoixZone", "ChoixTri", 900));
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
