#include "ProgrammeDEssai.h"

#include <QTreeView>

namespace {

class PageSante : public testing::Test {
  protected:
    essais::ProgrammeDEssai essai;

    void ouvre() {
        essai.demarre();
        essai.importe({{"Le Parrain", "Francis Ford Coppola", "Drame", {}}, {"Brazil", "Terry Gilliam", "SF", {}}});
        essai.programme->commande().execute([&] {
            essai.programme->session().execute([](const app::Contexte& c) {
                c.base.base.Execute("UPDATE Films SET Titre='le parrain' WHERE Titre='Le Parrain'");
            });
        });
        essai.clique("cmdCollection");
        essai.clique("OngletSante");
    }
    QAbstractItemModel& modele() { return *essai.trouve<QTreeView>("lstSante").model(); }
    std::string constat(int genre) { return modele().index(genre, 0).data().toString().toStdString(); }
    bool montre(const char* nom) {
        return essais::attends([&] { return essai.trouve(nom).isVisible(); });
    }
};

TEST_F(PageSante, ExaminesWhenAskedMendsAKindAndKnowsWhenItIsOutOfDate) {
    ouvre();
    EXPECT_TRUE(essai.trouve("lblInviteSante").isVisible());
    EXPECT_EQ(modele().rowCount(), 0) << "nothing is read before";
    essai.trouve<QAbstractButton>("cmdExaminer").click();
    EXPECT_EQ(essai.texte("lblBilanExaminer"), "3 points à revoir.");
    EXPECT_EQ(constat(0), "Fiches sans affiche : 2");
    EXPECT_EQ(constat(9), "Titres à corriger : 1");
    ASSERT_TRUE(montre("cmdReparer_9"));
    EXPECT_EQ(essai.fenetre().findChild<QWidget*>("cmdReparer_0"), nullptr) << "no poster comes by itself";
    EXPECT_FALSE(essai.trouve("lblPerimeExaminer").isVisible());

    essai.trouve<QAbstractButton>("cmdReparer_9").click();
    EXPECT_EQ(constat(9), "Titres à corriger : 0");
    EXPECT_EQ(essai.texte("lblBilanExaminer"), "2 points à revoir.");
    EXPECT_EQ(essai.texte("lblAvis"), "1 titre corrigé.");
    ASSERT_TRUE(montre("lblPerimeExaminer"));
    EXPECT_TRUE(essai.trouve("PageSante").isVisible());
    QTest::keyClick(&essai.fenetre(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(essai.trouve("PageSante").isVisible());
    essai.trouve<QAbstractButton>("cmdExaminer").click();
    EXPECT_EQ(constat(9), "Titres à corriger : 1");
    EXPECT_TRUE(essais::attends([&] { return !essai.trouve("lblPerimeExaminer").isVisible(); }));

    auto& vue = essai.trouve<QTreeView>("lstSante");
    vue.setCurrentIndex(modele().index(9, 0));
    QTest::keyClick(&vue, Qt::Key_Return);
    QTest::keyClick(&vue, Qt::Key_Down);
    QTest::keyClick(&vue, Qt::Key_Return);
    EXPECT_TRUE(essai.trouve("frameFiche").isVisible());
    EXPECT_EQ(essai.texte("Label1_0"), "le parrain");
}

}  // namespace
