#include "db/Affiches.h"
#include "db/EnonceFilm.h"
#include "db/Option3_Click.h"
#include "db/Requete.h"
#include "doubles/DossierTemporaire.h"
#include "doubles/Temoin.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <filesystem>

#include <gtest/gtest.h>
#include <sys/stat.h>

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

// A value may come from anywhere: what it says is one name, and leads to one folder.
TEST(AffichesTest, NoValueLeadsOutOfTheImagesFolder) {
    const doubles::DossierTemporaire dossier;
    const std::string images = dossier.chemin("Images/");
    dossier.ecrit("victime.jpg", "victime");
    dossier.ecrit("Images/dedans.jpg", "dedans");
    dossier.ecrit("Images/sous/perdue.jpg", "perdue");
    std::filesystem::create_symlink(dossier.chemin("victime.jpg"), images + "lien.jpg");
    ASSERT_EQ(mkfifo((images + "tube.jpg").c_str(), 0600), 0);
    for (const char* affiche : {"JPGdedans.jpg", "JPG../Images/DEDANS.jpg", "JPG..\\dedans.jpg", "JPG/x/dedans.JPG",
                                "JPGC:\\Films\\dedans.jpg", "???dedans.jpg"})
        EXPECT_EQ(db::litAffiche(images, affiche), "dedans") << affiche;
    const std::string absolu = "JPG" + dossier.chemin("victime.jpg");
    for (const std::string& affiche :
         {std::string("JPG../victime.jpg"), std::string("JPG..\\victime.jpg"), absolu, std::string("JPGlien.jpg"),
          std::string("JPGtube.jpg"), std::string("JPGsous"), std::string("JPG.."), std::string("JPG."),
          std::string("JPGsous/.."), std::string("JPG"), std::string("JPGsous/"), std::string("JPGperdue.jpg"),
          std::string("JPGdedans.jpg\0", 14), "JPG" + std::string(5'000'000, 'x')})
        EXPECT_EQ(db::fichierAffiche(images, affiche), std::nullopt) << affiche.substr(0, 80);
    EXPECT_EQ(db::fichierAffiche("", "JPGdedans.jpg"), std::nullopt) << "no folder is not the current one";
}

TEST(AffichesTest, NumberedNamesComeAndGo) {
    EXPECT_EQ(db::nomNumerote("A - R.jpg", 2), "A - R (2).jpg");
    EXPECT_EQ(db::sansNumero("A - R (12).jpg"), "A - R.jpg");
    for (const char* nom : {"A - R.jpg", "A - R ().jpg", "A - R (2a).jpg", "A - R(2).jpg", "(2).jpg", ""})
        EXPECT_EQ(db::sansNumero(nom), nom);
    const std::string longue = db::nomFichierAffiche(std::string(5'000'000, 'x') + "é", "R");
    EXPECT_EQ(longue, std::string(251, 'x') + ".jpg");
    EXPECT_EQ(db::nomNumerote(longue, 100), std::string(245, 'x') + " (100).jpg");
    EXPECT_EQ(db::nomFichierAffiche(std::string("a\0b", 3), ""), "ab - .jpg");
}

class DossierImagesTest : public testing::Test {
  protected:
    doubles::DossierTemporaire dossier;
    db::Chemins chemins = db::Chemins::depuis(dossier.chemin("Programme"));
    db::EtatStockage etat;

    void SetUp() override {
        for (const char* nom : {"Programme/Tmp", "Programme/Films/Images", "Bases/Vieilles", "Maison"})
            std::filesystem::create_directories(dossier.chemin(nom));
        chemins.base = dossier.chemin("Bases/Films.mdb");
    }
    std::string utilise(const std::string& texte) {
        etat.Text4.Text = texte;
        return db::dossierImages(etat, chemins);
    }
};

TEST_F(DossierImagesTest, TheStorageChoiceBringsItsFolder) {
    db::Option3_Click clic(etat, chemins);
    ecran::choisit(etat.Option3, 1);
    clic();
    EXPECT_TRUE(std::filesystem::is_directory(dossier.chemin("Programme/Images")));
    EXPECT_EQ(etat.Text4.Text, dossier.chemin("Programme/Images/"));
    EXPECT_TRUE(etat.Text4.Enabled && etat.cmdParcourir.Enabled);
    ecran::choisit(etat.Option3, 0);
    etat.Text4.Text = R"(D:\Affiches)";
    clic();
    EXPECT_EQ(etat.Text4.Text, R"(D:\Affiches)");
    EXPECT_FALSE(etat.Text4.Enabled || etat.cmdParcourir.Enabled);
    EXPECT_EQ(utilise(""), dossier.chemin("Programme/Images/"));
    EXPECT_EQ(etat.Text4.Text, dossier.chemin("Programme/Images"));
}

TEST_F(DossierImagesTest, IsOneSureFolderFromTheRoot) {
    const doubles::Environnement maison({{"HOME", dossier.chemin("Maison")}});
    const struct {
        std::string texte, attendu;
    } cas[] = {{"affiches", "Programme/affiches/"},
               {"Films\\Images\\", "Programme/Films/Images/"},
               {dossier.chemin("Programme/Images\\"), "Programme/Images/"},
               {dossier.chemin("ailleurs/"), "ailleurs/"},
               {"~/Affiches", "Maison/Affiches/"},
               {R"(C:\Program Files\Films\IMAGES)", "Programme/Films/Images/"},
               {R"(\\nas\partage\Vieilles\)", "Bases/Vieilles/"},
               {R"(C:\..\..\Vieilles)", "Bases/Vieilles/"}};
    for (const auto& [texte, attendu] : cas) {
        EXPECT_EQ(utilise(texte), dossier.chemin(attendu)) << texte;
        EXPECT_EQ(util::avecSeparateur(etat.Text4.Text), dossier.chemin(attendu)) << "kept so by the settings";
    }
}

TEST_F(DossierImagesTest, WhatLeadsNowhereOrIntoTmpIsRefused) {
    std::filesystem::create_directory_symlink(chemins.dossierTmp, dossier.chemin("Programme/lien"));
    for (const std::string& texte :
         {std::string(R"(D:\Affiches)"), std::string(R"(\\nas\x)"), std::string("http://a/b"), std::string("C:"),
          std::string("Tmp"), chemins.dossierTmp + "/sous/dossier", std::string("lien"), std::string("a/../Tmp/"),
          std::string("a\0b", 3), std::string(5'000'000, 'x')}) {
        EXPECT_EQ(utilise(texte), "") << texte.substr(0, 80);
        EXPECT_EQ(etat.Text4.Text, texte);
    }
    etat.Text4.Text = R"(D:\Affiches)";
    EXPECT_EQ(db::refusDossierImages(etat, chemins),
              R"(Le dossier des images D:\Affiches n'existe pas sur cet ordinateur : choisissez-en un autre !)");
    std::filesystem::remove(chemins.dossierTmp);  // away, it is made again, and emptied all the same
    EXPECT_EQ(utilise("Tmp/x"), "");
    etat.Text4.Text = "Tmpete";
    EXPECT_EQ(db::refusDossierImages(etat, chemins), std::nullopt);
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
