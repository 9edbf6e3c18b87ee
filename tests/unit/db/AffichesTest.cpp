#include "db/Affiches.h"
#include "db/EnonceFilm.h"
#include "db/Option3_Click.h"
#include "db/Requete.h"
#include "doubles/DossierTemporaire.h"
#include "util/Texte.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace {

TEST(AffichesTest, ThePosterFileBearsTheFilmsNameWithoutForbiddenCharacters) {
    EXPECT_EQ(db::nomFichierAffiche("2001 : l'odyssée ?", "Kubrick / S."), "2001  l'odyssée  - Kubrick  S..jpg");
    EXPECT_EQ(db::nomFichierAffiche(R"("A\B|C*<D>")", ""), "ABCD - .jpg");
}

TEST(AffichesTest, AVeryLongNameStaysAFileName) {
    std::string titre;
    for (int i = 0; i < 100; ++i)
        titre += "é";
    const std::string nom = db::nomFichierAffiche(titre, titre);
    EXPECT_LE(nom.size(), 255U);
    EXPECT_TRUE(util::estUtf8(nom));
    EXPECT_TRUE(nom.ends_with("é.jpg"));
}

TEST(AffichesTest, ValuesTellWhereThePosterIs) {
    const std::string octets("\xFF\xD8\0\x80", 4);
    EXPECT_EQ(db::valeurAfficheDansLaBase(octets), dao::Valeur::octets("STO" + octets));
    EXPECT_EQ(db::valeurAfficheFichier("a.jpg"), dao::Valeur("JPGa.jpg"));
    EXPECT_TRUE(db::estDansLaBase("STO"));
    EXPECT_FALSE(db::estDansLaBase("JPGSTO.jpg"));
}

TEST(AffichesTest, TheStorageChoiceBringsItsFolder) {
    const doubles::DossierTemporaire dossier;
    const db::Chemins chemins = db::Chemins::depuis(dossier.chemin());
    db::EtatStockage etat;
    db::Option3_Click clic(etat, chemins);
    ecran::choisit(etat.Option3, 1);
    clic();
    EXPECT_TRUE(std::filesystem::is_directory(dossier.chemin("Images")));
    EXPECT_EQ(etat.Text4.Text, dossier.chemin("Images/"));
    EXPECT_TRUE(etat.Text4.Enabled && etat.cmdParcourir.Enabled);
    ecran::choisit(etat.Option3, 0);
    etat.Text4.Text = R"(D:\Affiches)";
    clic();
    EXPECT_EQ(etat.Text4.Text, R"(D:\Affiches)");
    EXPECT_FALSE(etat.Text4.Enabled || etat.cmdParcourir.Enabled);
    EXPECT_EQ(db::dossierImages(etat, chemins), R"(D:\Affiches/)");
    etat.Text4.Text.clear();
    EXPECT_EQ(db::dossierImages(etat, chemins), dossier.chemin("Images/"));
    EXPECT_EQ(etat.Text4.Text, dossier.chemin("Images"));
}

TEST(EnonceFilmTest, StatementsToTheLastBlank) {
    EXPECT_EQ(db::enonceFilm("L'\"été\"", "R"),
              R"(SELECT * FROM films WHERE titre ="L'""été""" and Realisateur ="R" ORDER BY Titre ASC ;)");
    EXPECT_EQ(db::enonceFilmNote("T", "R"),
              R"(SELECT * FROM Films WHERE titre ="T" and Realisateur =  "R"ORDER BY Titre ASC ;)");
    EXPECT_EQ(db::enoncePossession("T", ""),
              R"(SELECT * FROM personnel WHERE titre2 ="T" and Realisateur2 =  ""ORDER BY Titre2 ASC ;)");
    EXPECT_EQ(db::texteErreurRequete(db::NumeroErreur::AfficheFiche), "Erreur (8) : Etablissement de requête");
}

}  // namespace
