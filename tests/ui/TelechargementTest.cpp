#include "ProgrammeDEssai.h"
#include "doubles/Rapatrix.h"

#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

namespace {

// The whole program, with the stand-in of the downloader started for good.
struct Telechargement : testing::Test {
    systeme::ProgrammesSysteme programmes;
    essais::ProgrammeDEssai essai;
    const doubles::Rapatrix rapatrix{essai.dossier};

    void SetUp() override {
        essai.vrais = &programmes;
        essai.demarre();
        essai.clique("cmdAfficherFonctions");
    }
    void chercheParEntree(const char* texte) {
        auto& zone = essai.trouve<QLineEdit>("txtRechInternet");
        zone.setFocus();
        zone.clear();
        QTest::keyClicks(&zone, texte);
        QTest::keyClick(&zone, Qt::Key_Return);
    }
};

TEST_F(Telechargement, EnterStartsItAndAnnulerEndsOneThatHangs) {
    essai.fenetre().showMinimized();
    bool offert = false;
    QTimer regard;
    QObject::connect(&regard, &QTimer::timeout, &regard, [&] {
        auto& annuler = essai.trouve<QPushButton>("cmdAnnuler");
        if (!rapatrix.aRecu() || !annuler.isVisible()) return;
        regard.stop();  // the import that follows offers "Annuler" too
        offert = true;
        EXPECT_EQ(essai.trouve<QProgressBar>("ProgressBar3").maximum(), 0);
        QTest::mouseClick(&annuler, Qt::LeftButton);
    });
    regard.start(20);
    chercheParEntree("attente");
    EXPECT_TRUE(offert);
    EXPECT_EQ(essai.texte("Label9_0"), "1 titre");  // the sheet that was there is wanted
    EXPECT_EQ(essai.boites.messages.size(), 4u) << "it ran once";
    EXPECT_FALSE(essai.fenetre().isMinimized());
    EXPECT_FALSE(essai.trouve("cmdAnnuler").isVisible());
    EXPECT_FALSE(essai.dossier.existe("Tmp/RechFilms.tmp"));
}

TEST(LogicielsExternes, AreAddedChangedAndRemovedOnTheirPage) {
    essais::ProgrammeDEssai essai;
    essai.demarre();
    essai.clique("cmdConfigurer");
    essai.clique("cmdConfig_1");
    auto& extensions = essai.trouve<QComboBox>("Combo6_0");
    auto& logiciels = essai.trouve<QComboBox>("Combo6_1");
    EXPECT_EQ(logiciels.currentText(), "/usr/bin/mpv");
    auto& zone = essai.trouve<QLineEdit>("txtNouvelleExtension");
    zone.setFocus();
    QTest::keyClicks(&zone, ".ogm");
    QTest::keyClick(&zone, Qt::Key_Return);
    EXPECT_EQ(extensions.currentText(), "ogm");
    EXPECT_EQ(logiciels.currentText(), " Logiciel par défaut");
    EXPECT_EQ(zone.text(), "");
    essai.choisit("Combo6_1", 0);
    EXPECT_EQ(essai.dossier.lit("Extensions.txt"), "avi\n/usr/bin/mpv\nogm\n/usr/bin/mpv\n");
    essai.choisit("Combo6_0", 0);
    essai.clique("cmdSupprExtension");
    EXPECT_EQ(extensions.currentText(), "ogm");
    EXPECT_EQ(essai.dossier.lit("Extensions.txt"), "ogm\n/usr/bin/mpv\n");
}

}  // namespace
