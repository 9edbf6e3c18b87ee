#include "ProgrammeDEssai.h"

#include <QAction>
#include <QLineEdit>
#include <QTreeView>

namespace {

class FenetreApercu : public testing::Test {
  protected:
    essais::ProgrammeDEssai essai;

    void ouvre() {
        essai.demarre();
        essai.importe({{"Le Parrain", "Francis Ford Coppola", "Drame", {}},
                       {"Brazil", "Terry Gilliam", "SF", {}},
                       {"Alien", "Ridley Scott", "SF", {}}});
        essai.programme->commande().execute([&] {
            essai.programme->session().execute([](const app::Contexte& c) {
                c.base.base.Execute("UPDATE Films SET Titre=lower(Titre) WHERE Titre<>'Alien'");
            });
        });
    }
    int lignes() { return essai.trouve<QTreeView>("lstApercu").model()->rowCount(); }
    std::string celle(int ligne, int colonne) {
        return essai.trouve<QTreeView>("lstApercu").model()->index(ligne, colonne).data().toString().toStdString();
    }
    void fermee() {
        EXPECT_TRUE(essais::attends([&] { return !essai.fenetre().findChild<QWidget*>("frmApercu"); }));
    }
};

TEST_F(FenetreApercu, WhatIsSeenIsWhatTheCorrectionThenDoes) {
    ouvre();
    essai.clique("cmdConfigurer");
    essai.trouve<QAbstractButton>("cmdApercuTitres").click();
    EXPECT_EQ(essai.texte("lblApercu"), "2 titres changeront.");
    ASSERT_EQ(lignes(), 2);
    EXPECT_EQ(celle(1, 2) + " > " + celle(1, 3), "le parrain > Le Parrain");
    essai.boites.messages.clear();
    essai.trouve<QAbstractButton>("cmdExecuterApercu").click();
    ASSERT_EQ(essai.boites.messages.size(), 2U) << "the command's question, and its report";
    EXPECT_EQ(essai.boites.messages[1], "2 titres modifiés.");
    fermee();
    essai.trouve<QAbstractButton>("cmdApercuTitres").click();
    EXPECT_EQ(essai.texte("lblApercu"), "Aucun titre ne changera.");
    EXPECT_FALSE(essai.trouve("cmdExecuterApercu").isEnabled());
}

TEST_F(FenetreApercu, AGroupIsShownAsAnotherNameWouldLeaveIt) {
    ouvre();
    essai.choisit("ChoixZone", browse::kZoneTous);
    essai.choisit("ChoixTri", browse::kTriGenre);
    essai.cliqueTitre("SF");
    essai.trouve<QAction>("ApercuGenre").trigger();
    auto& nom = essai.trouve<QLineEdit>("txtApercu");
    EXPECT_EQ(nom.text(), "SF");
    EXPECT_FALSE(essai.trouve("cmdExecuterApercu").isEnabled());
    nom.selectAll();
    QTest::keyClicks(&nom, "drame");
    ASSERT_TRUE(essais::attends([&] { return essai.trouve("cmdExecuterApercu").isEnabled(); }));
    EXPECT_EQ(essai.texte("lblApercu"),
              "2 films changeront. 1 autre film porte déjà ce nom : les deux groupes n'en feront qu'un.");
    EXPECT_EQ(lignes(), 2);
    essai.boites.reponse = "drame";
    essai.trouve<QAbstractButton>("cmdExecuterApercu").click();
    fermee();
    EXPECT_EQ(essai.texte("lblAvis"), "Genre renommé en « drame ».");
    EXPECT_EQ(essai.etats().liste.TreeView1.Nodes.enfants(0).size(), 1U);
}

}  // namespace
