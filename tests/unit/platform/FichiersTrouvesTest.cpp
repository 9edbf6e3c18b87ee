#include "doubles/DossierTemporaire.h"
#include "platform/fichiers/Fichiers.h"

#include <chrono>
#include <filesystem>

#include <gmock/gmock.h>

using doubles::DossierTemporaire;
using namespace std::string_literals;
namespace fs = std::filesystem;

namespace {

// An old date on the folder: what was read of it may then be kept.
void vieillit(const std::string& dossier) {
    fs::last_write_time(dossier, fs::file_time_type::clock::now() - std::chrono::hours(1));
}

TEST(FichiersTrouve, FindsNamesCopiedFromElsewhere) {
    const DossierTemporaire d;
    d.ecrit("Images/Été.JPG", "1");
    d.ecrit("Images/a\\b.jpg", "2");
    d.ecrit("images/seul.jpg", "3");
    d.ecrit("Jean/x.txt", "4");
    d.ecrit("jean/X.TXT", "5");
    const struct {
        const char* cherche;
        const char* trouve;  // null: nowhere
    } cas[] = {{"Images/Été.JPG", "Images/Été.JPG"},   {"IMAGES/éTÉ.jpg", "Images/Été.JPG"},
               {"Images\\Été.jpg", "Images/Été.JPG"},  {"Images\\Été.JPG", "Images/Été.JPG"},
               {"images/a\\B.jpg", "Images/a\\b.jpg"}, {"Images/SEUL.jpg", "images/seul.jpg"},
               {"jean/x.txt", "jean/X.TXT"},           {"jean/X.TXT", "jean/X.TXT"},
               {"JEAN/x.Txt", "Jean/x.txt"},           {"Images//Été.JPG", "Images//Été.JPG"},
               {"Images/absent.jpg", nullptr},         {"Images/Été.JPG/rien", nullptr},
               {"C:\\Films\\x.jpg", nullptr}};
    for (const auto& c : cas) {
        const auto attendu = c.trouve ? std::optional(d.chemin(c.trouve)) : std::nullopt;
        EXPECT_EQ(fichiers::trouve(d.chemin(c.cherche)), attendu) << c.cherche;
        EXPECT_EQ(fichiers::existe(d.chemin(c.cherche)), c.trouve != nullptr) << c.cherche;
    }
    EXPECT_EQ(fichiers::trouve(""), std::nullopt);
    EXPECT_EQ(fichiers::trouve(d.chemin(std::string(5'000'000, '\\'))), std::nullopt);
    EXPECT_TRUE(fichiers::dossierExiste(d.chemin("Images")));
    EXPECT_FALSE(fichiers::existe(d.chemin("Images")));
}

TEST(FichiersTrouve, SeesAFileThatCameOrWentSinceTheLastSearch) {
    const DossierTemporaire d;
    vieillit(d.chemin());
    EXPECT_FALSE(fichiers::existe(d.chemin("affiche.jpg")));
    d.ecrit("AFFICHE.JPG", "x");
    EXPECT_TRUE(fichiers::existe(d.chemin("affiche.jpg")));
    fs::remove(d.chemin("AFFICHE.JPG"));
    EXPECT_FALSE(fichiers::existe(d.chemin("affiche.jpg")));
}

// Cut in every way, such a path would be looked for longer than anyone waits.
TEST(FichiersTrouve, APathOfManyCutsIsGivenUp) {
    const DossierTemporaire d;
    for (int i = 0; i < 300; ++i)
        d.ecrit("dossier/sous" + std::to_string(i) + "/x", "");
    fs::create_directory_symlink(".", d.chemin("dossier/a"));
    for (const std::string& partie : {"../"s, ".\\"s, "./"s, "a\\"s, "..\\dossier\\"s, "A/"s, "a/../"s}) {
        std::string chemin = d.chemin("dossier/");
        while (chemin.size() < 4000)
            chemin += partie;
        EXPECT_EQ(fichiers::trouve(chemin + "absent.avi"), std::nullopt) << partie;
    }
    EXPECT_EQ(fichiers::trouve(d.chemin("dossier/.\\a\\..\\DOSSIER\\sous7\\X")),
              d.chemin("dossier/./a/../dossier/sous7/x"));
}

TEST(FichiersTrouve, APathOfAnotherMachineIsFoundByItsEnd) {
    const DossierTemporaire d;
    for (const char* nom : {"Films/Images", "Images", "c"})
        fs::create_directories(d.chemin(nom));
    const auto trouve = [&](const std::string& chemin) {
        return fichiers::trouveParLaFin(d.chemin(), chemin, fichiers::dossierExiste);
    };
    EXPECT_EQ(trouve("D:\\Vidéo\\FILMS\\images\\"), d.chemin("Films/Images"));
    EXPECT_EQ(trouve("/home/x/images"), d.chemin("Images"));
    EXPECT_EQ(trouve("C:\\Films\\..\\Images"), d.chemin("Images"));
    for (const std::string& chemin :
         {"C:\\Affiches"s, "C:"s, ""s, "\\"s, "C:\\.."s, "C:\\Images\\."s, std::string(4095, '\\')})
        EXPECT_EQ(trouve(chemin), std::nullopt) << chemin;
}

TEST(FichiersChemins, WhatLiesInAFolderIsKnownThroughItsLinks) {
    const DossierTemporaire d;
    fs::create_directories(d.chemin("Tmp/sous"));
    fs::create_directory_symlink(d.chemin("Tmp/sous"), d.chemin("lien"));
    for (const char* dedans : {"Tmp", "Tmp/", "Tmp/sous", "Tmp/absent/x", "lien", "lien/x", "a/../Tmp"})
        EXPECT_TRUE(fichiers::estDans(d.chemin(dedans), d.chemin("Tmp"))) << dedans;
    for (const char* dehors : {"", "Tmpx", "lien/../../x", "tmp.jpg"})
        EXPECT_FALSE(fichiers::estDans(d.chemin(dehors), d.chemin("Tmp"))) << dehors;
}

TEST(FichiersChemins, PiecesOfAPath) {
    const struct {
        const char *chemin, *nom, *dossier, *extension, *sansExtension;
    } cas[] = {{"a/b.tar.GZ", "b.tar.GZ", "a/", "GZ", "a/b.tar"},
               {"C:\\x\\b.FILM", "b.FILM", "C:\\x\\", "FILM", "C:\\x\\b"},
               {"a.d/b", "b", "a.d/", "", "a.d/b"},
               {"seul", "seul", "", "", "seul"},
               {"a/.cache", ".cache", "a/", "", "a/.cache"},
               {"fin.", "fin.", "", "", "fin"},
               {"a/", "", "a/", "", "a/"}};
    for (const auto& c : cas) {
        EXPECT_EQ(fichiers::nomDeFichier(c.chemin), c.nom);
        EXPECT_EQ(fichiers::dossierDe(c.chemin), c.dossier);
        EXPECT_EQ(fichiers::extension(c.chemin), c.extension);
        EXPECT_EQ(fichiers::sansExtension(c.chemin), c.sansExtension);
    }
}

}  // namespace
