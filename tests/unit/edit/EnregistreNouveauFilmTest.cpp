#include "edit/EnregistreNouveauFilm.h"
#include "unit/edit/FenetreEdition.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class EnregistreNouveauFilmTest : public FenetreEdition {
  protected:
    edit::EnregistrementFilm enregistrement{c};
};

TEST_F(EnregistreNouveauFilmTest, cutsEachTextToItsColumnByCharacters) {
    const std::string long300 = repete("é", 300);
    for (auto& zone : ajout.Text3)
        zone.Text = long300;
    ajout.Combo2.Text = ajout.Combo3.Text = ajout.Combo4.Text = long300;
    EXPECT_EQ(enregistrement.EnregistreNouveauFilm("", long300, "21/11/2026"), edit::DevenirAffiche::Aucune);
    const std::vector<std::pair<std::string, int>> longueurs{{"Titre", 100},   {"Realisateur", 100}, {"Annee", 4},
                                                             {"Origine", 40},  {"Duree", 6},         {"Genre", 40},
                                                             {"Acteurs", 200}, {"Production", 30},   {"Resume", 300}};
    const dao::Recordset ecrit = base.base.OpenRecordset("Films");
    for (const auto& [champ, longueur] : longueurs)
        EXPECT_EQ(ecrit.texte(champ), repete("é", longueur)) << champ;
    EXPECT_TRUE(ecrit.valeur("Note").estNull());
    EXPECT_EQ(ecrit.texte("DateAjout"), "21/11/2026");
    EXPECT_EQ(ecrit.valeur("Affiche"), dao::Valeur(""));
}

TEST_F(EnregistreNouveauFilmTest, namesNoPosterThatCouldNotBeRead) {
    saisis("Alien", "Ridley Scott");
    for (const std::size_t option : {0, 1}) {
        ecran::choisit(stockage.Option3, option);
        EXPECT_EQ(enregistrement.EnregistreNouveauFilm(dossier.chemin("absente.jpg"), "", ""),
                  edit::DevenirAffiche::Illisible);
    }
    EXPECT_THAT(colonne("Films", "Affiche"), ElementsAre("", ""));
}

TEST_F(EnregistreNouveauFilmTest, storesNoFilmWhosePosterCannotBeWritten) {
    ecran::choisit(stockage.Option3, 1);
    saisis("Alien", "Ridley Scott");
    const std::string image = dossier.ecrit("a.jpg", "a"), barrage = dossier.ecrit("un fichier", "");
    for (const std::string& nom : {barrage + "/Images", std::string("C:\\Affiches"), chemins.dossierTmp}) {
        stockage.Text4.Text = nom;
        EXPECT_THROW(enregistrement.EnregistreNouveauFilm(image, "", ""), db::EchecConversion) << nom;
    }
    EXPECT_THAT(colonne("Films", "Affiche"), IsEmpty());
}

// What an import meets: films of one name, and a folder of images that is the folder of the sheets.
TEST_F(EnregistreNouveauFilmTest, overwritesNoFileAndLeavesNoneOfAnAbandonedTransaction) {
    ecran::choisit(stockage.Option3, 1);
    dossier.ecrit("Images/Alien - R.jpg", "l'image d'une autre fiche");
    saisis("Alien", "R");
    const std::string image = dossier.ecrit("a.jpg", "a");
    enregistrement.EnregistreNouveauFilm(image, "", "");
    EXPECT_THAT(colonne("Films", "Affiche"), ElementsAre("JPGAlien - R (2).jpg"));
    EXPECT_NO_THROW(enregistrement.avantValidation());
    enregistrement.apresValidation();

    const edit::FilmPret pret = enregistrement.prepare(dossier.ecrit("b.jpg", "b"));
    EXPECT_EQ(dossier.lit("Images/Alien - R (3).jpg"), "b");
    enregistrement.apresAnnulation();
    EXPECT_FALSE(dossier.existe("Images/Alien - R (3).jpg"));
    EXPECT_EQ(dossier.lit("Images/Alien - R (2).jpg"), "a");
    EXPECT_EQ(dossier.lit("Images/Alien - R.jpg"), "l'image d'une autre fiche");

    static_cast<void>(enregistrement.prepare(image + "x"));
    static_cast<void>(enregistrement.prepare(dossier.chemin("b.jpg")));
    std::filesystem::remove(dossier.chemin("Images/Alien - R (3).jpg"));
    EXPECT_THROW(enregistrement.avantValidation(), db::EchecConversion) << "it never reached the disk";
}

}  // namespace
