#include "doubles/DialoguesScript.h"
#include "edit/EnregistreNouveauFilm.h"
#include "unit/edit/BaseDEssai.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct EnregistreNouveauFilmTest : testing::Test {
    doubles::BaseDEssai essai;
    edit::EtatAjout ajout;
    db::EtatStockage stockage;
    db::Chemins chemins = db::Chemins::depuis(essai.dossier.chemin());
    browse::FilmCourant courant;
    doubles::DialoguesScript dialogues;
    edit::EnregistrementFilm enregistrement{essai.base, ajout, stockage, chemins, courant, dialogues};

    void saisis(const std::string& titre, const std::string& realisateur) {
        ajout.Text3[0].Text = titre;
        ajout.Text3[1].Text = realisateur;
    }
    static std::string repete(const std::string& texte, int fois) {
        std::string resultat;
        while (fois-- > 0)
            resultat += texte;
        return resultat;
    }
};

TEST_F(EnregistreNouveauFilmTest, cutsEachTextToItsColumnByCharacters) {
    const std::string long300 = repete("é", 300);
    for (auto& zone : ajout.Text3)
        zone.Text = long300;
    ajout.Combo2.Text = ajout.Combo3.Text = ajout.Combo4.Text = long300;
    EXPECT_EQ(enregistrement.EnregistreNouveauFilm("", long300, "21/11/2026"), edit::SortAffiche::Aucune);
    const std::vector<std::pair<std::string, int>> longueurs{{"Titre", 100},   {"Realisateur", 100}, {"Annee", 4},
                                                             {"Origine", 40},  {"Duree", 6},         {"Genre", 40},
                                                             {"Acteurs", 200}, {"Production", 30},   {"Resume", 300}};
    for (const auto& [champ, longueur] : longueurs)
        EXPECT_EQ(essai.film(champ).texte(), repete("é", longueur)) << champ;
    EXPECT_TRUE(essai.film("Note").estNull());
    EXPECT_EQ(essai.film("DateAjout").texte(), "21/11/2026");
    EXPECT_EQ(essai.film("Affiche"), dao::Valeur(""));
}

TEST_F(EnregistreNouveauFilmTest, namesNoPosterThatCouldNotBeRead) {
    saisis("Alien", "Ridley Scott");
    for (const std::size_t option : {0, 1}) {
        ecran::choisit(stockage.Option3, option);
        EXPECT_EQ(enregistrement.EnregistreNouveauFilm(essai.dossier.chemin("absente.jpg"), "", ""),
                  edit::SortAffiche::Illisible);
    }
    EXPECT_THAT(essai.colonne("Films", "Affiche"), ElementsAre("", ""));
}

TEST_F(EnregistreNouveauFilmTest, storesNoFilmWhosePosterCannotBeWritten) {
    ecran::choisit(stockage.Option3, 1);
    saisis("Alien", "Ridley Scott");
    const std::string image = essai.dossier.ecrit("a.jpg", "a"), barrage = essai.dossier.ecrit("un fichier", "");
    for (const std::string& dossier : {barrage + "/Images", std::string("C:\\Affiches"), chemins.dossierTmp}) {
        stockage.Text4.Text = dossier;
        EXPECT_THROW(enregistrement.EnregistreNouveauFilm(image, "", ""), db::EchecConversion) << dossier;
    }
    EXPECT_THAT(essai.colonne("Films", "Affiche"), IsEmpty());
}

// What an import meets: films of one name, and a folder of images that is the folder of the sheets.
TEST_F(EnregistreNouveauFilmTest, overwritesNoFileAndLeavesNoneOfAnAbandonedTransaction) {
    ecran::choisit(stockage.Option3, 1);
    essai.dossier.ecrit("Images/Alien - R.jpg", "l'image d'une autre fiche");
    saisis("Alien", "R");
    const std::string image = essai.dossier.ecrit("a.jpg", "a");
    enregistrement.EnregistreNouveauFilm(image, "", "");
    EXPECT_THAT(essai.colonne("Films", "Affiche"), ElementsAre("JPGAlien - R (2).jpg"));
    EXPECT_NO_THROW(enregistrement.avantValidation());
    enregistrement.apresValidation();

    const edit::FilmPret pret = enregistrement.prepare(essai.dossier.ecrit("b.jpg", "b"));
    EXPECT_EQ(essai.dossier.lit("Images/Alien - R (3).jpg"), "b");
    enregistrement.apresAnnulation();
    EXPECT_FALSE(essai.dossier.existe("Images/Alien - R (3).jpg"));
    EXPECT_EQ(essai.dossier.lit("Images/Alien - R (2).jpg"), "a");
    EXPECT_EQ(essai.dossier.lit("Images/Alien - R.jpg"), "l'image d'une autre fiche");

    static_cast<void>(enregistrement.prepare(image + "x"));
    static_cast<void>(enregistrement.prepare(essai.dossier.chemin("b.jpg")));
    std::filesystem::remove(essai.dossier.chemin("Images/Alien - R (3).jpg"));
    EXPECT_THROW(enregistrement.avantValidation(), db::EchecConversion) << "it never reached the disk";
}

}  // namespace
