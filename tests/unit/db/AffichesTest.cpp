#include "db/Affiches.h"
#include "db/Option3_Click.h"
#include "doubles/MachineDEssai.h"
#include "doubles/Temoin.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <filesystem>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace std::string_literals;

TEST(AffichesTest, ThePosterFileBearsTheFilmsNameWithoutForbiddenCharacters) {
    EXPECT_EQ(db::nomFichierAffiche("2001 : l'odyssée ?", "Kubrick / S."), "2001  l'odyssée  - Kubrick  S..jpg");
    EXPECT_EQ(db::nomFichierAffiche(R"("A\B|C*<D>")", ""), "ABCD - .jpg");
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
         {"JPG../victime.jpg"s, "JPG..\\victime.jpg"s, absolu, "JPGlien.jpg"s, "JPGtube.jpg"s, "JPGsous"s, "JPG.."s,
          "JPG."s, "JPGsous/.."s, "JPG"s, "JPGsous/"s, "JPGperdue.jpg"s, std::string("JPGdedans.jpg\0", 14),
          "JPG" + std::string(5'000'000, 'x')})
        EXPECT_EQ(db::fichierAffiche(images, affiche), std::nullopt) << affiche.substr(0, 80);
    EXPECT_EQ(db::fichierAffiche("", "JPGdedans.jpg"), std::nullopt) << "no folder is not the current one";
}

TEST(AffichesTest, NumberedNamesComeAndGo) {
    EXPECT_EQ(db::nomNumerote("A - R.jpg", 2), "A - R (2).jpg");
    EXPECT_EQ(db::sansNumero("A - R (12).jpg"), "A - R.jpg");
    for (const char* nom : {"A - R.jpg", "A - R ().jpg", "A - R (2a).jpg", "A - R(2).jpg", "(2).jpg", ""})
        EXPECT_EQ(db::sansNumero(nom), nom);
    const std::string titre(5'000'000, 'x');
    const std::string longue = db::nomFichierAffiche(titre + "é", "R"), numerotee = db::nomNumerote(longue, 100);
    EXPECT_EQ(longue.size(), 255u);
    EXPECT_EQ(longue.find(".jpg"), 251u);
    EXPECT_EQ(numerotee.size(), 255u);
    EXPECT_EQ(numerotee.find(" (100).jpg"), 245u);
    EXPECT_EQ(db::nomFichierAffiche(std::string("a\0b", 3), ""), "ab - .jpg");
    const std::string coupe = db::nomFichierAffiche(util::remplace(std::string(100, 'x'), "x", "éé"), "R");
    EXPECT_TRUE(coupe.size() <= 255 && util::estUtf8(coupe) && coupe.ends_with("é.jpg")) << coupe;
}

class DossierImagesTest : public testing::Test, protected doubles::MachineDEssai {
  protected:
    void SetUp() override {
        for (const char* nom : {"Programme/Tmp", "Programme/Films/Images", "Bases/Vieilles", "Maison"})
            std::filesystem::create_directories(dossier.chemin(nom));
        chemins = db::Chemins::depuis(dossier.chemin("Programme"));
        chemins.base = dossier.chemin("Bases/Films.mdb");
    }
    std::string utilise(const std::string& texte) {
        stockage.Text4.Text = texte;
        return db::dossierImages(machine);
    }
};

TEST_F(DossierImagesTest, TheStorageChoiceBringsItsFolder) {
    ecran::choisit(stockage.Option3, 1);
    db::Option3_Click(machine);
    EXPECT_TRUE(std::filesystem::is_directory(dossier.chemin("Programme/Images")));
    EXPECT_EQ(stockage.Text4.Text, dossier.chemin("Programme/Images/"));
    EXPECT_TRUE(stockage.Text4.Enabled && stockage.cmdParcourir.Enabled);
    ecran::choisit(stockage.Option3, 0);
    stockage.Text4.Text = R"(D:\Affiches)";
    db::Option3_Click(machine);
    EXPECT_EQ(stockage.Text4.Text, R"(D:\Affiches)");
    EXPECT_FALSE(stockage.Text4.Enabled || stockage.cmdParcourir.Enabled);
    EXPECT_EQ(utilise(""), dossier.chemin("Programme/Images/"));
    EXPECT_EQ(stockage.Text4.Text, dossier.chemin("Programme/Images"));
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
        EXPECT_EQ(util::avecSeparateur(stockage.Text4.Text), dossier.chemin(attendu)) << "kept so by the settings";
    }
}

TEST_F(DossierImagesTest, WhatLeadsNowhereOrIntoTmpIsRefused) {
    std::filesystem::create_directory_symlink(chemins.dossierTmp, dossier.chemin("Programme/lien"));
    for (const std::string& texte :
         {R"(D:\Affiches)"s, R"(\\nas\x)"s, "http://a/b"s, "C:"s, "Tmp"s, chemins.dossierTmp + "/sous/dossier", "lien"s,
          "a/../Tmp/"s, std::string("a\0b", 3), std::string(5'000'000, 'x')}) {
        EXPECT_EQ(utilise(texte), "") << texte.substr(0, 80);
        EXPECT_EQ(stockage.Text4.Text, texte);
    }
    stockage.Text4.Text = R"(D:\Affiches)";
    EXPECT_EQ(db::refusDossierImages(machine),
              R"(Le dossier des images D:\Affiches n'existe pas sur cet ordinateur : choisissez-en un autre !)");
    std::filesystem::remove(chemins.dossierTmp);  // away, it is made again, and emptied all the same
    EXPECT_EQ(utilise("Tmp/x"), "");
    stockage.Text4.Text = "Tmpete";
    EXPECT_EQ(db::refusDossierImages(machine), std::nullopt);
}

}  // namespace
