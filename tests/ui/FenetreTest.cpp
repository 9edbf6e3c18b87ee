#include "ProgrammeDEssai.h"

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QAction>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTextEdit>

namespace {

using essais::Film;
using essais::octetsDImage;
using essais::ProgrammeDEssai;

const std::vector<Film> kFilms = {{"L'Été meurtrier", "Jean Becker", "Drame", octetsDImage(Qt::red)},
                                  {"Écrit sur du vent", "Douglas Sirk", "", octetsDImage(Qt::green)},
                                  {"Avatar", "James Cameron", "Science-fiction", ""},
                                  {"L'Œuvre au noir", "André Delvaux", "drame", octetsDImage(Qt::blue)}};

struct Fenetre : testing::Test {
    ProgrammeDEssai essai;

    void SetUp() override { essai.demarre(); }
    void importe() {
        essai.importe(kFilms);
        essai.choisit("ChoixZone", 1);
        essai.choisit("ChoixTri", 0);
    }
    [[nodiscard]] QStringList entetes() {
        QStringList textes;
        for (int i = 0; i < essai.arbre().model()->rowCount(); ++i)
            textes << essai.arbre().model()->index(i, 0).data().toString();
        return textes;
    }
    // The colour in the middle of the poster that is shown.
    [[nodiscard]] QColor couleurAffiche() {
        QWidget& affiche = essai.trouve("Image1");
        return affiche.grab().toImage().pixelColor(affiche.rect().center() * affiche.devicePixelRatio());
    }
    void attendsLaFiche(const std::string& titre, const std::string& realisateur) {
        EXPECT_TRUE(essai.trouve("frameFiche").isVisible());
        EXPECT_EQ(essai.texte("Label1_0"), titre);
        EXPECT_EQ(essai.trouve<QAbstractButton>("lblRealisateur").text().toStdString(), "de " + realisateur);
    }
};

TEST_F(Fenetre, AnEmptyBaseSaysHowToBeginAndLeadsThere) {
    EXPECT_TRUE(essai.trouve("framePresentation").isVisible());
    EXPECT_EQ(essai.texte("Label9_0"), "0 titre");
    ASSERT_TRUE(essai.trouve("cmdCommencer").isVisible());
    essai.clique("cmdCommencer");
    EXPECT_TRUE(essai.trouve("frameAjoutAuto").isVisible());
    EXPECT_FALSE(essai.trouve("framePresentation").isVisible());
    EXPECT_TRUE(essai.trouve("txtRechInternet").hasFocus());

    importe();
    essai.choisit("ChoixTri", 2);
    EXPECT_TRUE(essai.trouve("framePresentation").isVisible());
    EXPECT_FALSE(essai.trouve("cmdCommencer").isVisible()) << "a base with films needs no first steps";
}

TEST_F(Fenetre, ImportedFilmsAreListedAndCounted) {
    essai.importe(kFilms);
    ASSERT_FALSE(essai.boites.messages.empty());
    EXPECT_EQ(essai.boites.messages.back().rfind("4 films ajoutés.\n", 0), 0u);
    EXPECT_EQ(essai.texte("Label9_0"), "4 titres");
    EXPECT_EQ(essai.trouve<QComboBox>("ChoixZone").currentText(), "Recherche");
    EXPECT_EQ(essai.trouve("Frame1").windowTitle(), "Liste de films (4 titres)");
    EXPECT_FALSE(essai.trouve("cmdAnnuler").isVisible());

    essai.choisit("ChoixZone", 1);
    essai.choisit("ChoixTri", 0);
    EXPECT_EQ(entetes(), QStringList({"A", "E", "L"}));
    EXPECT_FALSE(essai.arbre().isExpanded(essai.arbre().model()->index(0, 0)));
    essai.choisit("ChoixTri", 4);
    EXPECT_EQ(entetes(),
              QStringList({" Hors tri !", "Drame", "Science-Fiction"}).replaceInStrings("Fiction", "fiction"));
    const QAbstractItemModelTester verificateur(essai.arbre().model(),
                                                QAbstractItemModelTester::FailureReportingMode::Fatal);
}

TEST_F(Fenetre, AClickShowsTheSheetOfTheFilmAndItsOwnPoster) {
    importe();
    essai.cliqueTitre("L'Été Meurtrier");
    attendsLaFiche("L'Été Meurtrier", "Jean Becker");
    EXPECT_EQ(essai.texte("lblInfosActeurs"), "Un acteur\nUne actrice");
    EXPECT_EQ(essai.trouve<QTextEdit>("Text1").toPlainText(), "Résumé de L'Été meurtrier");
    EXPECT_GT(couleurAffiche().red(), 200);

    essai.cliqueTitre("L'Œuvre Au Noir");
    attendsLaFiche("L'Œuvre Au Noir", "André Delvaux");
    EXPECT_GT(couleurAffiche().blue(), 200);

    essai.cliqueTitre("Avatar");
    EXPECT_FALSE(essai.trouve("Image1").isVisible());
    EXPECT_EQ(essai.texte("Label12").substr(0, 11), "Pas d'image");
}

TEST_F(Fenetre, ARowHoldsTheBeginningOfAHugeTitle) {
    auto& arbre = essai.etats().liste.TreeView1.Nodes;
    arbre.Clear();
    arbre.ajouteFilm(0, 1, std::string(5'000'001, 'x'));
    arbre.ajouteFilm(0, 2, "x" + QString("é").repeated(2'500'000).toStdString());
    ui::ModeleArbre modele(essai.etats().liste.TreeView1);
    EXPECT_EQ(modele.index(0, 0).data().toString(), QString(2000, 'x') + u'…');
    EXPECT_EQ(modele.index(1, 0).data().toString(), "x" + QString("é").repeated(999) + u'…');
}

TEST_F(Fenetre, KeysWalkTheTreeAsClicksDo) {
    importe();
    essai.cliqueTitre("L'Été Meurtrier");
    QTest::keyClick(&essai.arbre(), Qt::Key_Down);
    attendsLaFiche("L'Œuvre Au Noir", "André Delvaux");
    QTest::keyClick(&essai.arbre(), Qt::Key_Home);
    EXPECT_TRUE(essai.trouve("framePresentation").isVisible()) << "a heading shows no sheet";
    QTest::keyClick(&essai.arbre(), Qt::Key_Return);
    EXPECT_TRUE(essai.arbre().isExpanded(essai.arbre().currentIndex()));
    QTest::keyClick(&essai.arbre(), Qt::Key_Down);
    attendsLaFiche("Avatar", "James Cameron");
}

TEST_F(Fenetre, ProgramSelectionOpensAndShowsTheNodeWithoutAGesture) {
    importe();
    const browse::Arbre& noeuds = essai.etats().liste.TreeView1.Nodes;
    int indice = noeuds.Count();
    while (noeuds.estGroupe(indice))
        --indice;
    essai.programme->commande().execute([&] { essai.etats().liste.TreeView1.SelectedItem = indice; });
    EXPECT_EQ(ui::ModeleArbre::noeud(essai.arbre().currentIndex()), indice);
    EXPECT_TRUE(essai.arbre().isExpanded(essai.arbre().currentIndex().parent()));
    EXPECT_TRUE(essai.trouve("framePresentation").isVisible()) << "nothing was clicked";
}

TEST_F(Fenetre, ARightClickShowsTheFilmAndItsMenu) {
    importe();
    essai.cliqueTitre("Avatar", Qt::RightButton);
    attendsLaFiche("Avatar", "James Cameron");
    auto& menu = essai.trouve<QMenu>("MenuClicDroitFilm");
    ASSERT_TRUE(menu.isVisible());
    menu.close();

    essai.choisit("ChoixTri", 4);
    essai.cliqueTitre("Science-fiction", Qt::RightButton);
    ASSERT_TRUE(essai.trouve<QMenu>("MenuClicDroitGenre").isVisible());
    essai.trouve<QMenu>("MenuClicDroitGenre").close();
    essai.choisit("ChoixTri", 2);
    essai.cliqueTitre("2001", Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "headings of other sorts have none";
}

TEST_F(Fenetre, DeletingAFilmLeavesTheOtherHeadingsOpen) {
    importe();
    essai.cliqueTitre("Écrit Sur Du Vent");
    essai.cliqueTitre("L'Été Meurtrier", Qt::RightButton);
    essai.trouve<QMenu>("MenuClicDroitFilm").close();
    essai.fenetre().findChild<QAction*>("SupprFilm")->trigger();
    EXPECT_EQ(essai.texte("Label9_0"), "3 titres");
    EXPECT_TRUE(essai.trouve("framePresentation").isVisible()) << "no other film is shown in its place";
    const QAbstractItemModel& modele = *essai.arbre().model();
    ASSERT_EQ(entetes(), QStringList({"A", "E", "L"}));
    EXPECT_FALSE(essai.arbre().isExpanded(modele.index(0, 0)));
    EXPECT_TRUE(essai.arbre().isExpanded(modele.index(1, 0)));
    EXPECT_EQ(modele.rowCount(modele.index(2, 0)), 1);
}

TEST_F(Fenetre, SearchIsTypedAndStartedWithEnter) {
    importe();
    essai.clique("cmdFonctionRecherche");
    EXPECT_TRUE(essai.trouve("Text2").hasFocus());
    QInputMethodEvent saisie;  // letters beyond ASCII
    saisie.setCommitString("œuvre");
    QApplication::sendEvent(&essai.trouve("Text2"), &saisie);
    QTest::keyClick(&essai.trouve("Text2"), Qt::Key_Return);
    EXPECT_EQ(entetes(), QStringList("L'Œuvre Au Noir"));
    EXPECT_EQ(essai.trouve<QComboBox>("ChoixZone").currentText(), "Recherche");

    essai.trouve<QComboBox>("ChoixZone").showPopup();
    EXPECT_EQ(essai.trouve<QComboBox>("ChoixZone").count(), 6) << "the search leaves the list before it is shown";
    essai.trouve<QComboBox>("ChoixZone").hidePopup();

    essai.choisit("ChoixZone", 0);
    essai.choisit("ChoixTri", 1);
    essai.cliqueTitre("Avatar");
    essai.clique("lblRealisateur");
    EXPECT_EQ(essai.trouve<QLineEdit>("Text2").text(), "James Cameron");
    EXPECT_EQ(entetes(), QStringList("Avatar"));
}

TEST_F(Fenetre, AZoneListClosedByEscapeNamesTheSearchThatIsShown) {
    importe();
    essai.choisit("ChoixTri", 1);
    essai.clique("cmdFonctionRecherche");
    essai.trouve<QLineEdit>("Text2").setText("au");
    essai.clique("cmdRecherche");
    auto& zones = essai.trouve<QComboBox>("ChoixZone");
    for (int fois = 0; fois < 2; ++fois) {
        EXPECT_EQ(zones.currentText(), "Recherche");
        zones.showPopup();
        EXPECT_EQ(zones.currentText(), "Mes films");
        QTest::keyClick(zones.view(), Qt::Key_Escape);
        ASSERT_TRUE(essais::attends([&] { return zones.currentText() == "Recherche"; }));
        EXPECT_EQ(zones.count(), 7);
        EXPECT_EQ(entetes().size(), 1);
    }
    zones.showPopup();
    QTest::keyClick(zones.view(), Qt::Key_Down);
    QTest::keyClick(zones.view(), Qt::Key_Return);
    ASSERT_TRUE(essais::attends([&] { return entetes().size() == 4; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(zones.currentText(), "Tous les films");
    EXPECT_EQ(zones.count(), 6);
}

TEST_F(Fenetre, StatisticsLeaveTheSheetTheOpenHeadingsAndTheChoice) {
    importe();
    essai.choisit("ChoixTri", 4);
    essai.cliqueTitre("L'Œuvre Au Noir");
    const auto ouverts = [&] {
        std::vector<bool> lignes;
        for (int i = 0; i < essai.arbre().model()->rowCount(); ++i)
            lignes.push_back(essai.arbre().isExpanded(essai.arbre().model()->index(i, 0)));
        return lignes;
    };
    const auto avant = ouverts();
    essai.clique("AffStats");
    EXPECT_TRUE(entetes()[1].startsWith("Drame (50")) << entetes()[1].toStdString();
    attendsLaFiche("L'Œuvre Au Noir", "André Delvaux");
    EXPECT_EQ(ouverts(), avant);
    EXPECT_EQ(essai.arbre().currentIndex().data().toString(), "L'Œuvre Au Noir");
    essai.clique("cmdSupprimerTitre");  // the headings that were open are known by their new texts
    EXPECT_EQ(ouverts(), avant);
    essai.clique("AffStats");
    EXPECT_EQ(entetes()[1], "Drame");

    const QModelIndex voisin = essai.arbre().currentIndex();  // of the film that went: the keys go on from there
    EXPECT_EQ(voisin.parent().data().toString(), "Drame");
    EXPECT_TRUE(essai.arbre().selectionModel()->selectedIndexes().isEmpty());
    const std::string titre = voisin.data().toString().toStdString();
    QTest::keyClick(&essai.arbre(), Qt::Key_Down);
    EXPECT_EQ(essai.texte("Label1_0"), titre);
}

TEST_F(Fenetre, ARenamedHeadingIsOpenAndSelectedInItsNewPlace) {
    importe();
    essai.choisit("ChoixTri", 4);
    essai.cliqueTitre("Drame");
    essai.boites.reponse = "Vie";
    essai.fenetre().findChild<QAction*>("RenommerGenreFilms")->trigger();
    const QModelIndex choisi = essai.arbre().currentIndex();
    EXPECT_EQ(choisi.data().toString(), "Vie");
    EXPECT_TRUE(essai.arbre().isExpanded(choisi));
    EXPECT_EQ(entetes().last(), "Vie");
}

TEST_F(Fenetre, AbandonedImportKeepsWhatWasAdded) {
    std::vector<Film> beaucoup;
    for (int i = 0; i < 400; ++i)
        beaucoup.push_back({"Film " + std::to_string(i), "Quelqu'un", "Drame", ""});
    auto& annuler = essai.trouve<QAbstractButton>("cmdAnnuler");
    QObject::connect(&essai.programme->ecran(), &ui::EcranQt::travailCommence, &annuler, [&] { annuler.click(); });
    essai.importe(beaucoup);
    const int ajoutes = std::stoi(essai.texte("Label9_0"));
    EXPECT_LT(ajoutes, 400);
    EXPECT_EQ(essai.boites.messages.back().rfind(std::to_string(ajoutes) + " film", 0), 0u);
    EXPECT_FALSE(essai.trouve("cmdAnnuler").isVisible());
}

// The panel that shows its bar is enough; "Annuler" stays in the strip.
TEST_F(Fenetre, AJobHasOneBar) {
    int fins = 0;
    QObject::connect(&essai.programme->ecran(), &ui::EcranQt::travailFini, &essai.fenetre(), [&] {
        ++fins;
        EXPECT_TRUE(essai.trouve("ProgressBar1").isVisible());
        EXPECT_TRUE(essai.trouve("ProgressBar3").isHidden());
        EXPECT_FALSE(essai.trouve("cmdAnnuler").isHidden());
    });
    essai.importe(kFilms);
    EXPECT_EQ(fins, 1);
}

TEST_F(Fenetre, AFolderThatIsTypedIsCounted) {
    essai.dossier.ecrit("Fiches/a.FILM", "Alien");
    essai.clique("cmdAfficherFonctions");
    EXPECT_EQ(essai.trouve("lblRapatrix").isVisible(), true);
    auto& zone = essai.trouve<QLineEdit>("txtCheminAjoutAuto");
    zone.setFocus();
    QTest::keyClicks(&zone, "Fiches");
    EXPECT_TRUE(essais::attends([&] { return essai.texte("lblNbFilms") == "Un fichier .FILM trouvé."; }));
}

TEST_F(Fenetre, BringsAPreviousVersionAlongByItsButton) {
    essai.dossier.ecrit("Avant/Ambrelis.ini", "1\r\nC:\\Avant\\Affiches\r\n");
    essai.dossier.ecrit("Avant/affiches/rouge.jpg", octetsDImage(Qt::red));
    dao::DBEngine::CreateDatabase(essai.dossier.chemin("Avant/films.mdb"), db::schema());
    {
        dao::Database base = dao::DBEngine::OpenDatabase(essai.dossier.chemin("Avant/films.mdb"));
        base.Execute(
            "INSERT INTO Films(Titre, Realisateur, Affiche) VALUES ('Été', 'R', 'JPGrouge.jpg');"
            "INSERT INTO Personnel(Titre2, Realisateur2) VALUES ('Été', 'R')");
    }
    essai.boites.dossier = essai.dossier.chemin("Avant");
    essai.clique("cmdAfficherFonctions");
    EXPECT_TRUE(essai.trouve("Command13_2").isEnabled());
    essai.clique("Command13_2");
    EXPECT_TRUE(essai.boites.messages.back().starts_with("1 film ajouté, dont 1 possédé.\n"));
    EXPECT_FALSE(essai.trouve("frameAjoutAuto").isVisible());
    EXPECT_TRUE(essai.trouve("frameImportBase").isVisible());
    essai.clique("cmdImporterBase");
    EXPECT_TRUE(essai.boites.messages.back().starts_with("0 film ajouté.\n1 film déjà présent.\n"));
    essai.cliqueTitre("Été");
    attendsLaFiche("Été", "R");
    EXPECT_GT(couleurAffiche().red(), 200);
}

TEST_F(Fenetre, ClosingDuringWorkStopsItAndThenSavesTheSettings) {
    std::vector<Film> films(60, {"", "Quelqu'un", "Drame", ""});
    for (std::size_t i = 0; i < films.size(); ++i)
        films[i].titre = "Film " + std::to_string(i);
    QObject::connect(&essai.programme->ecran(), &ui::EcranQt::travailCommence, &essai.fenetre(),
                     [&] { essai.fenetre().close(); });
    essai.importe(films);
    ASSERT_TRUE(essais::attends([&] { return !essai.fenetre().isVisible(); }));
    EXPECT_LT(std::stoi(essai.texte("Label9_0")), 60);
    EXPECT_FALSE(essai.dossier.lit("Ambrelis.ini").empty());
}

TEST_F(Fenetre, AClosingThatFailsBeforeTheShutDownLeavesTheWindow) {
    essai.programme->commande().accompagne({[] { throw dao::ErreurDao(dao::kErreurVerrouille, "Verrouillée."); }, {}});
    essai.fenetre().close();
    EXPECT_TRUE(essai.fenetre().isVisible());
    EXPECT_TRUE(essai.boites.messages.back().ends_with("Verrouillée.")) << essai.boites.messages.back();
    essai.programme->commande().accompagne({});
    essai.fenetre().close();
    EXPECT_FALSE(essai.fenetre().isVisible());
    EXPECT_FALSE(essai.dossier.lit("Ambrelis.ini").empty());
}

TEST(Depart, TheWindowComesBackAsItWasLeft) {
    ProgrammeDEssai essai;
    essai.demarre();
    EXPECT_EQ(essai.fenetre().size(), QSize(1180, 760));
    essai.importe({{"Avatar", "James Cameron", "Science-fiction", ""}});
    essai.choisit("ChoixTri", 4);
    essai.clique("AffStats");
    essai.fenetre().resize(960, 640);
    essai.fenetre().close();
    essai.programme.reset();

    essai.demarre();
    EXPECT_EQ(essai.fenetre().size(), QSize(960, 640));
    EXPECT_EQ(essai.trouve<QComboBox>("ChoixTri").currentIndex(), 4);
    EXPECT_TRUE(essai.trouve<QAbstractButton>("AffStats").isChecked());
    EXPECT_EQ(essai.arbre().model()->index(0, 0).data().toString().left(15), "Science-fiction");
}

// Settings of a larger screen, or of a smaller window than can be used.
TEST(Depart, TheWindowFitsTheScreenWithItsFrame) {
    for (const auto& [largeur, hauteur] : {std::pair(3000, 2000), std::pair(100, 100)}) {
        ProgrammeDEssai essai;
        const auto enTwips = [](int pixels) { return std::to_string(pixels * 15); };
        essai.dossier.ecrit("Ambrelis.ini", "0\r\n\r\n" + enTwips(largeur) + "\r\n" + enTwips(hauteur) + "\r\n");
        essai.demarre();
        const QRect libre = essai.fenetre().screen()->availableGeometry(), cadre = essai.fenetre().frameGeometry();
        EXPECT_GT(cadre.width(), essai.fenetre().width()) << "a frame that takes room";
        EXPECT_TRUE(libre.contains(cadre)) << cadre.width() << "x" << cadre.height();
        EXPECT_GE(essai.fenetre().width(), 900);
        EXPECT_GE(essai.fenetre().height(), 480);
        EXPECT_EQ(essai.fenetre().minimumSize(), QSize(900, 480));
    }
}

TEST_F(Fenetre, ASmallNotebookShowsBothPagesOfTheSheet) {
    importe();
    essai.cliqueTitre("Avatar");
    EXPECT_FALSE(essai.trouve("framePossession").isVisible());
    essai.fenetre().showMaximized();
    ASSERT_TRUE(essais::attends([&] { return !essai.trouve("cmdGeneralites").isVisible(); }));
    for (const char* nom : {"Text1", "Label1_2", "Text10_6", "cmdRaffraichirListe", "cmdCreeFichierTxt"}) {
        const QWidget& widget = essai.trouve(nom);
        EXPECT_TRUE(widget.visibleRegion().contains(widget.rect())) << nom << " is cut";
    }
}

TEST(Depart, AStartThatFailsShowsNoWindow) {
    ProgrammeDEssai essai;
    std::filesystem::remove(essai.dossier.chemin("Modele.dat"));
    ui::Programme programme(essai.dossier.chemin(), {&essai.boites, &essai.horloge, &essai.documents});
    EXPECT_FALSE(programme.demarre());
    EXPECT_FALSE(programme.fenetre().isVisible());
    EXPECT_EQ(essai.boites.messages,
              std::vector<std::string>{"Le fichier " + essai.dossier.chemin("Modele.dat") + " n'existe pas."});
}

}  // namespace
