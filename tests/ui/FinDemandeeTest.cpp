#include "ProgrammeDEssai.h"
#include "db/cmdSupprInfosPerso_Click.h"
#include "platform/systeme/DossierProgramme.h"
#include "ui/FinDemandee.h"

#include <QApplication>
#include <QMessageBox>
#include <csignal>

#include <gmock/gmock.h>

namespace {

using essais::ProgrammeDEssai;

struct FinDemandee : testing::Test {
    void demarre() {
        essai.demarre();
        fin.emplace(*essai.programme);
        essai.trouve<QCheckBox>("AffStats").setChecked(true);
        essai.dossier.ecrit("Tmp/reste", "");
    }
    void estFinie() {
        ASSERT_TRUE(essais::attends([&] { return !essai.fenetre().isVisible(); }));
        EXPECT_TRUE(essai.programme->commande().finie());
        EXPECT_THAT(essai.dossier.lit("Ambrelis.ini"), testing::EndsWith("\nFilms.mdb\n0\n1\n"));
        EXPECT_EQ(essai.dossier.lit("Extensions.txt"), "avi\n/usr/bin/mpv\n");
        EXPECT_TRUE(std::filesystem::is_empty(essai.dossier.chemin("Tmp")));
    }

    ProgrammeDEssai essai;
    std::optional<ui::FinDemandee> fin;
};

TEST_F(FinDemandee, ASignalShutsTheProgramDown) {
    demarre();
    raise(SIGTERM);
    raise(SIGHUP);
    estFinie();
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST_F(FinDemandee, WorkStopsBetweenTwoItemsAndNoneBeginsAnew) {
    demarre();
    ui::Programme& programme = *essai.programme;
    int faitsEnsuite = 0;
    programme.commande().execute([&] {
        for (int* faits : {static_cast<int*>(nullptr), &faitsEnsuite}) {
            const ecran::Travail travail(programme.ecran());
            if (!faits) raise(SIGINT);
            while (programme.ecran().respire())
                if (faits) ++*faits;
        }
        EXPECT_EQ(essai.dossier.lit("Ambrelis.ini"), "") << "the command ends first";
    });
    EXPECT_EQ(faitsEnsuite, 0);
    estFinie();
}

// The boxes here are the program's own.
TEST_F(FinDemandee, AQuestionIsLeftWithoutAnAnswer) {
    dao::DBEngine::OpenDatabase(essai.dossier.chemin("Modele.dat"))
        .Execute("INSERT INTO Personnel (Titre2) VALUES ('Été violent')");
    essai.programme.emplace(essai.dossier.chemin(), ui::Programme::Services{});
    ui::Programme& programme = *essai.programme;
    ASSERT_TRUE(programme.demarre());
    ASSERT_TRUE(essais::attends([&] { return essai.fenetre().findChild<QWidget*>("frameFiche") != nullptr; }));
    fin.emplace(programme);
    essai.trouve<QCheckBox>("AffStats").setChecked(true);
    bool ouverte = false;
    QTimer veille;
    QObject::connect(&veille, &QTimer::timeout, [&] {
        if (std::exchange(ouverte, qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr)) return;
        if (ouverte) raise(SIGTERM);
    });
    veille.start(1);
    EXPECT_EQ(programme.commande().execute([&] { programme.session().execute(db::cmdSupprInfosPerso_Click); }),
              ui::Commande::Issue::Echouee);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    estFinie();
    dao::Database base = dao::DBEngine::OpenDatabase(essai.dossier.chemin("Films.mdb"));
    EXPECT_EQ(base.OpenRecordset("Personnel").RecordCount(), 1);
}

TEST(DossierProgramme, IsThatOfTheExecutable) {
    EXPECT_EQ(systeme::dossierDuProgramme(), QCoreApplication::applicationDirPath().toStdString() + "/");
}

}  // namespace
