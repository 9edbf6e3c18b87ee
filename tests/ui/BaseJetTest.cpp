#include "ProgrammeDEssai.h"
#include "doubles/CollectionJet.h"
#include "ui/FenetreTravail.h"

#include <QApplication>
#include <QProgressBar>
#include <QTimer>

namespace {

ui::FenetreTravail* fenetreDeTravail() {
    for (QWidget* fenetre : QApplication::topLevelWidgets())
        if (auto* travail = qobject_cast<ui::FenetreTravail*>(fenetre); travail && travail->isVisible()) return travail;
    return nullptr;
}

// The start converts before the window is shown: a small one stands for it, where the user can stop the work.
TEST(BaseJetAuDemarrage, ShowsItsProgressAndCanBeStopped) {
    essais::ProgrammeDEssai essai;
    const std::string octets = doubles::collectionJet(200).octets();
    const std::string base = essai.dossier.ecrit("Films.mdb", octets);
    {
        ui::Programme programme(essai.dossier.chemin(), {&essai.boites, &essai.horloge, &essai.documents});
        QString texte;
        QTimer::singleShot(0, &programme.fenetre(), [&] {
            ui::FenetreTravail* travail = fenetreDeTravail();
            ASSERT_NE(travail, nullptr);
            EXPECT_FALSE(programme.fenetre().isVisible());
            EXPECT_TRUE(travail->findChild<QProgressBar*>()->isVisible());
            for (const QLabel* ligne : travail->findChildren<QLabel*>())
                if (ligne->objectName() != QLatin1String("lblAnnonce")) texte += ligne->text();
            QTest::mouseClick(travail->findChild<QAbstractButton*>("cmdAnnuler"), Qt::LeftButton);
        });
        EXPECT_FALSE(programme.demarre());
        EXPECT_EQ(texte, "Conversion de la base Films.mdb...");
        EXPECT_EQ(fenetreDeTravail(), nullptr);
        EXPECT_EQ(essai.boites.messages.at(1),
                  "La conversion a été arrêtée. Le fichier " + base + " n'a pas été modifié.");
        EXPECT_EQ(essai.dossier.lit("Films.mdb"), octets);
    }
    essai.demarre();
    EXPECT_EQ(fenetreDeTravail(), nullptr);
    EXPECT_EQ(essai.etats().liste.Label9[0].Caption, "200 titres");
}

}  // namespace
