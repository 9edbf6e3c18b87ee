#include "ProgrammeDEssai.h"

#include <QAccessible>
#include <QTextEdit>
#include <QTreeWidget>

namespace {

TEST(FenetreSauvegardes, ListsComparesAndGoesBackByTheKeyboard) {
    essais::ProgrammeDEssai essai;
    essai.demarre();
    essai.importe({{"Alien", "Ridley Scott", "Angoisse", {}}, {"Brazil", "Terry Gilliam", "Anticipation", {}}});
    essai.clique("cmdConfigurer");
    essai.clique("cmdConfig_1");
    EXPECT_FALSE(essai.trouve("frmSauvegardes").isVisible());
    auto& ouvrir = essai.trouve("cmdSauvegardes");
    ouvrir.setFocus();
    QTest::keyClick(&ouvrir, Qt::Key_Return);
    QWidget& fenetre = essai.trouve("frmSauvegardes");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenetre, essais::kPatience));
    auto& liste = essai.trouve<QTreeWidget>("lstSauvegardes");
    EXPECT_EQ(fenetre.focusWidget(), &liste);
    ASSERT_EQ(liste.topLevelItemCount(), 1);
    EXPECT_EQ(liste.currentItem()->text(4), "import de fiches");
    for (QWidget* controle : {&essai.trouve("lstSauvegardes"), &essai.trouve("txtComparaison"),
                              &essai.trouve("cmdComparerSauvegarde"), &essai.trouve("cmdRevenirSauvegarde")}) {
        EXPECT_FALSE(QAccessible::queryAccessibleInterface(controle)->text(QAccessible::Name).isEmpty())
            << controle->objectName().toStdString();
    }
    QTest::keyClick(&liste, Qt::Key_Return);
    EXPECT_TRUE(essai.trouve<QTextEdit>("txtComparaison").toPlainText().contains("    Brazil - Terry Gilliam"));
    essai.clique("cmdRevenirSauvegarde");
    EXPECT_EQ(liste.topLevelItemCount(), 2);
    EXPECT_EQ(liste.topLevelItem(0)->text(1), "2");
    EXPECT_EQ(essai.texte("Label9_0"), "0 titre");
    QTest::keyClick(&fenetre, Qt::Key_Escape);
    EXPECT_FALSE(fenetre.isVisible());
    EXPECT_TRUE(essai.fenetre().isVisible());
}

}  // namespace
