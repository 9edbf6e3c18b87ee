#include "ProgrammeDEssai.h"

#include <QLineEdit>

namespace {

TEST(FenetreFichiers, OpensTheFilesOfTheFilmAndIsOnlyHidden) {
    essais::ProgrammeDEssai essai;
    essai.demarre();
    essai.importe({{"Alien", "Ridley Scott", "Angoisse", {}}, {"Brazil", "Terry Gilliam", "Anticipation", {}}});
    essai.choisit("ChoixTri", 0);
    essai.cliqueTitre("Alien");
    const std::string nom = "L'été & le " + std::string(80, 'x') + ".avi";
    const std::string film = essai.dossier.ecrit("usb/" + nom, "film");
    essai.volumes.volumes = {{essai.dossier.chemin("usb")}};
    EXPECT_FALSE(essai.trouve("cmdFichiersFilm").isVisible());
    auto& zone = essai.trouve<QLineEdit>("Text10_0");
    zone.setText(QString::fromStdString("E:\\" + nom));
    emit zone.textEdited(zone.text());
    essai.clique("cmdValiderInfosPossessions");

    QWidget& fenetre = essai.trouve("frmFichiersFilm");
    auto& premier = essai.trouve<QAbstractButton>("Command1_0");
    essai.clique("cmdFichiersFilm");
    EXPECT_EQ(fenetre.windowTitle(), "Alien");
    EXPECT_TRUE(premier.text().startsWith("L'été && le ") && premier.text().size() < 80);
    EXPECT_EQ(premier.toolTip().toStdString(), "E:\\L'été &amp; le " + std::string(80, 'x') + ".avi");
    EXPECT_FALSE(essai.trouve("Command1_1").isEnabled());
    essai.clique("Command1_0");
    EXPECT_EQ(essai.programmes.lances.at(0).arguments, (std::vector<std::string>{"/usr/bin/mpv", film}));
    essai.clique("Command1_3");
    EXPECT_FALSE(fenetre.isVisible());
    essai.clique("cmdFichiersFilm");
    EXPECT_TRUE(fenetre.isVisible()) << "opened again";
    essai.cliqueTitre("Brazil");
    EXPECT_TRUE(!premier.isEnabled() && premier.text() == "Fichier 1") << "it follows the film";
    EXPECT_EQ(fenetre.windowTitle(), "Brazil");
    essai.cliqueTitre("B");
    EXPECT_FALSE(fenetre.isVisible()) << "a heading has no files";

    // The first slot may be empty; the keyboard opens the others.
    essai.cliqueTitre("Brazil");
    essai.clique("cmdAutresInfos");
    auto& troisieme = essai.trouve<QLineEdit>("Text10_2");
    troisieme.setText(QString::fromStdString("E:\\" + nom));
    emit troisieme.textEdited(troisieme.text());
    QTest::keyClick(&troisieme, Qt::Key_Return);
    essai.clique("cmdFichiersFilm");
    EXPECT_EQ(fenetre.focusWidget(), &essai.trouve("Command1_2"));
    QTest::keyClick(&essai.trouve("Command1_2"), Qt::Key_Return);
    EXPECT_EQ(essai.programmes.lances.size(), 2U);
    QTest::keyClick(&fenetre, Qt::Key_Escape);
    EXPECT_FALSE(fenetre.isVisible());
    EXPECT_TRUE(essai.fenetre().isVisible());
}

}  // namespace
