#include "ProgrammeDEssai.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
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

TEST_F(FenetreApercu, WhatIsTickedOfAFolderIsWhatTheImportAdds) {
    ouvre();
    essai.programme->commande().execute([&] {
        essai.programme->session().execute(
            [](const app::Contexte& c) { c.base.base.Execute("UPDATE Films SET Genre='' WHERE Titre='Alien'"); });
    });
    essai.dossier.ecrit("fiches/3.FILM", "Solaris\nTarkovski\n1972");
    essai.dossier.ecrit("fiches/4.FILM", "Aliens\nRidley Scott");
    essai.dossier.ecrit("fiches/5.FILM", std::string(40, '\1'));
    essai.boites.messages.clear();
    essai.trouve<QAbstractButton>("cmdApercuFiches").click();
    EXPECT_EQ(
        essai.texte("lblExamen"),
        "6 films lus : 1 nouveau, 1 qui ressemble à un autre, 3 déjà là, dont 1 à compléter, 1 illisible. Affiches : "
        "2 absentes. Rien n'est écrit sans vous.");
    auto& liste = essai.trouve<QTreeView>("lstExamen");
    const auto texte = [&](const char* nom) { return essai.trouve<QAbstractButton>(nom).text().toStdString(); };
    const auto lignes = [&] {
        std::string toutes;
        for (int ligne = 0; ligne < liste.model()->rowCount(); ++ligne)
            toutes += liste.model()->index(ligne, 0).data().toString().toStdString() + "|";
        return toutes;
    };
    EXPECT_EQ(texte("cmdAjouterExamen"), "Ajouter 1 film…");
    liste.sortByColumn(3, Qt::DescendingOrder);
    EXPECT_TRUE(lignes().starts_with("5.FILM|")) << lignes();
    EXPECT_TRUE(lignes().ends_with("|Alien|Aliens|Solaris|")) << lignes();
    essai.choisit("lstGenreExamen", 3);
    EXPECT_EQ(lignes(), "Aliens|");
    liste.setCurrentIndex(liste.model()->index(0, 0));
    EXPECT_EQ(liste.currentIndex().data(Qt::AccessibleTextRole).toString().toStdString(),
              "Aliens, Ridley Scott, Ressemble à « Alien » à 91 %, affiche absente");
    ASSERT_TRUE(essais::attends([&] { return liste.hasFocus(); }));
    QTest::keyClick(&liste, Qt::Key_Space);
    EXPECT_EQ(texte("cmdAjouterExamen"), "Ajouter 2 films…");

    QTest::keyClick(&liste, Qt::Key_Return);
    auto& champs = *essai.trouve("frmFicheLue").findChild<QTreeView*>("lstComparaison");
    EXPECT_EQ(champs.model()->index(0, 1).data().toString() + champs.model()->index(0, 2).data().toString(),
              "AlienAliens");
    EXPECT_TRUE(champs.model()->index(0, 2).data(Qt::CheckStateRole).isNull()) << "there is nothing to choose";
    essai.trouve<QAbstractButton>("cmdFermerFicheLue").click();
    EXPECT_TRUE(essais::attends([&] { return !essai.fenetre().findChild<QWidget*>("frmFicheLue"); }));

    EXPECT_EQ(texte("cmdCompleterExamen"), "Compléter 1 film…");
    essai.trouve<QAbstractButton>("cmdCompleterExamen").click();
    EXPECT_EQ(essai.boites.messages.size(), 1U);
    EXPECT_EQ(essai.texte("lblAvis"), "1 film complété.");
    EXPECT_FALSE(essai.trouve("cmdCompleterExamen").isEnabled());
    EXPECT_TRUE(essai.trouve("frmExamen").isVisible());

    essai.boites.messages.clear();
    essai.trouve<QAbstractButton>("cmdAjouterExamen").click();
    EXPECT_TRUE(essais::attends([&] { return !essai.fenetre().findChild<QWidget*>("frmExamen"); }));
    ASSERT_EQ(essai.boites.messages.size(), 4U) << "three questions, of which one of a resemblance, and the report";
    EXPECT_TRUE(essai.boites.messages[0].starts_with("Souhaitez-vous déclarer les 2 films"))
        << essai.boites.messages[0];
    EXPECT_TRUE(essai.boites.messages[3].starts_with("2 films ajoutés.")) << essai.boites.messages[3];
}

}  // namespace
