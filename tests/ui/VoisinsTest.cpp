#include "ProgrammeDEssai.h"
#include "voisins/Tableau.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTableWidget>
#include <QTreeView>

namespace {

class Voisins : public testing::Test {
  protected:
    essais::ProgrammeDEssai essai;

    void ouvre(const std::string& nom, const std::string& octets) {
        essai.demarre();
        essai.importe({{"Alien", "Ridley Scott", "SF", {}}});
        essai.clique("cmdConfigurer");
        essai.dossier.ecrit(nom, octets);
        essai.boites.fichier = essai.dossier.chemin(nom);
        essai.boites.messages.clear();
        essai.trouve<QAbstractButton>("cmdCollectionFichier").click();
    }
    QAbstractItemModel& films() { return *essai.trouve<QTreeView>("lstVoisins").model(); }
    std::string sort(int ligne) { return films().index(ligne, 4).data().toString().toStdString(); }
};

TEST_F(Voisins, WhatIsTickedIsImported) {
    ouvre("c.gcs",
          "<collection type=\"GCfilms\"><item title=\"Été\" director=\"V\"/><item title=\"alien\" director=\"Ridley "
          "Scott\" "
          "format=\"DVD\"/><item title=\"Alienn\" director=\"Ridley Scott\"/><item title=\"Œuvre\" "
          "director=\"W\"/></collection>");
    EXPECT_EQ(essai.texte("lblVoisins"),
              "4 films dans cette collection de GCstar : 2 nouveaux, 1 déjà là, 1 qui ressemble à un film de la base "
              "(à cocher "
              "pour l'ajouter).");
    ASSERT_EQ(films().rowCount(), 4);
    EXPECT_EQ(sort(0), "Ressemble à « Alien » à 91 %");
    EXPECT_EQ(sort(2), "Déjà là");
    auto& importer = essai.trouve<QAbstractButton>("cmdImporterVoisins");
    EXPECT_EQ(importer.text(), "&Importer 2 films");
    EXPECT_FALSE(films().setData(films().index(2, 0), Qt::Checked, Qt::CheckStateRole) &&
                 films().index(2, 0).data(Qt::CheckStateRole).isValid())
        << "what is there cannot be ticked";
    films().setData(films().index(3, 0), Qt::Unchecked, Qt::CheckStateRole);
    EXPECT_EQ(importer.text(), "&Importer 1 film");
    importer.click();
    ASSERT_EQ(essai.boites.messages.size(), 1U);
    EXPECT_TRUE(essai.boites.messages[0].starts_with("1 film ajouté.")) << essai.boites.messages[0];
    EXPECT_TRUE(essais::attends([&] { return !essai.fenetre().findChild<QWidget*>("frmVoisins"); }));
}

TEST_F(Voisins, AColumnOfATableIsWhatTheUserSays) {
    ouvre("t.csv", "Nom du film;Par\nÉté;V\n\"Œu;vre\";W\n");
    auto& vue = essai.trouve<QTableWidget>("lstTableau");
    EXPECT_EQ(vue.item(vue.rowCount() - 1, 0)->text(), "Œu;vre");
    auto choisit = [&](const char* liste, voisins::Colonne colonne) {
        essai.trouve<QComboBox>(liste).setCurrentIndex(static_cast<int>(colonne));
    };
    choisit("lstColonne_0", voisins::Colonne::Ignoree);
    EXPECT_FALSE(essai.trouve("cmdContinuerTableau").isEnabled()) << "no column holds the title";
    choisit("lstColonne_0", voisins::Colonne::Titre);
    choisit("lstColonne_1", voisins::Colonne::Realisateur);
    essai.trouve<QAbstractButton>("cmdContinuerTableau").click();
    EXPECT_EQ(films().index(films().rowCount() - 1, 0).data().toString(), "Œu;vre");
    EXPECT_EQ(films().index(films().rowCount() - 1, 1).data().toString(), "W");
    EXPECT_FALSE(essai.trouve<QCheckBox>("chkVoisinsPossedes").isChecked()) << "the table says nothing of copies";
}

TEST_F(Voisins, WhatCannotBeReadOpensNothing) {
    ouvre("x.tc", "<tellico><collection");
    ASSERT_EQ(essai.boites.messages.size(), 1U);
    EXPECT_FALSE(essai.fenetre().findChild<QWidget*>("frmVoisins"));
}

}  // namespace
