#include "doubles/DossierTemporaire.h"
#include "platform/fichiers/Fichiers.h"

#include <filesystem>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using doubles::DossierTemporaire;
using testing::ElementsAre;
using testing::Optional;
using namespace std::string_literals;
namespace fs = std::filesystem;

namespace {

std::vector<std::string> entrees(const DossierTemporaire& dossier) {
    std::vector<std::string> noms;
    for (const auto& entree : fs::directory_iterator(dossier.chemin()))
        noms.push_back(entree.path().filename());
    std::sort(noms.begin(), noms.end());
    return noms;
}

// An old date on the folder: what was read of it may then be kept.
void vieillit(const std::string& dossier) {
    fs::last_write_time(dossier, fs::file_time_type::clock::now() - std::chrono::hours(1));
}

TEST(FichiersTest, ANewFileTakesNobodysPlace) {
    const doubles::DossierTemporaire dossier;
    EXPECT_EQ(fichiers::cree(dossier.chemin("a"), "premier"), fichiers::Creation::Faite);
    EXPECT_EQ(fichiers::cree(dossier.chemin("a"), "second"), fichiers::Creation::ExisteDeja);
    EXPECT_EQ(fichiers::cree(dossier.chemin("nulle part/a"), ""), fichiers::Creation::Echouee);
    EXPECT_EQ(dossier.lit("a"), "premier");
    EXPECT_TRUE(fichiers::synchronise({dossier.chemin("a")}));
    EXPECT_FALSE(fichiers::synchronise({dossier.chemin("a"), dossier.chemin("b")}));
    std::vector<std::string> nombreux(100, dossier.chemin("a"));
    EXPECT_TRUE(fichiers::synchronise(nombreux));
    nombreux.push_back(dossier.chemin("b"));
    EXPECT_FALSE(fichiers::synchronise(nombreux));
}

TEST(FichiersTest, ARenamedFileTakesThePlaceThatALinkLeadsTo) {
    const doubles::DossierTemporaire dossier;
    dossier.ecrit("neuf", "neuf");
    dossier.ecrit("vrai", "vieux");
    std::filesystem::create_symlink("vrai", dossier.chemin("lien"));
    EXPECT_EQ(fichiers::situe(dossier.chemin("LIEN"))->chemin, dossier.chemin("lien"));
    EXPECT_EQ(fichiers::situe(dossier.chemin("LIEN"))->identite, fichiers::situe(dossier.chemin("vrai"))->identite);
    EXPECT_NE(fichiers::situe(dossier.chemin("neuf"))->identite, fichiers::situe(dossier.chemin("vrai"))->identite);
    EXPECT_FALSE(fichiers::situe(dossier.chemin("absent")) || fichiers::situe(dossier.chemin()));
    EXPECT_TRUE(fichiers::renomme(dossier.chemin("neuf"), dossier.chemin("lien")));
    EXPECT_EQ(dossier.lit("vrai"), "neuf");
    EXPECT_FALSE(fichiers::renomme(dossier.chemin("neuf"), dossier.chemin("lien")));
}

}  // namespace

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

TEST(FichiersLecture, WholeFilesOrNothing) {
    const DossierTemporaire d;
    std::string octets;
    for (int i = 0; i < 300'000; ++i)
        octets += static_cast<char>(i);
    d.ecrit("Gros.bin", octets);
    d.ecrit("vide", "");
    EXPECT_EQ(fichiers::lit(d.chemin("gros.BIN")), octets);
    EXPECT_EQ(fichiers::lit(d.chemin("Gros.bin"), 300'000), octets);
    EXPECT_EQ(fichiers::lit(d.chemin("Gros.bin"), 299'999), std::nullopt);
    EXPECT_EQ(fichiers::lit(d.chemin("vide"), 0), "");
    EXPECT_EQ(fichiers::lit(d.chemin()), std::nullopt);
    EXPECT_EQ(fichiers::lit(d.chemin("absent")), std::nullopt);
    EXPECT_FALSE(fichiers::lit("/proc/self/status").value_or("").empty());
    EXPECT_EQ(fichiers::longueur(d.chemin("gros.bin")), 300'000);
    EXPECT_EQ(fichiers::longueur(d.chemin("absent")), -1);
    EXPECT_EQ(fichiers::longueur(d.chemin()), -1);
}

TEST(FichiersLecture, APipeNeitherHangsNorCounts) {
    const DossierTemporaire d;
    ASSERT_EQ(mkfifo(d.chemin("tube").c_str(), 0600), 0);
    EXPECT_EQ(fichiers::lit(d.chemin("tube")), std::nullopt);
    EXPECT_FALSE(fichiers::ecrit(d.chemin("tube"), "x"));
    EXPECT_FALSE(fichiers::remplace(d.chemin("tube"), "x"));
    EXPECT_FALSE(fichiers::copie(d.chemin("tube"), d.chemin("autre")));
    EXPECT_THAT(entrees(d), ElementsAre("tube"));
}

TEST(FichiersLecture, LinesHoweverTheyEnd) {
    const DossierTemporaire d;
    const struct {
        std::string octets;
        std::vector<std::string> lignes;
    } cas[] = {{"", {}},
               {"seule", {"seule"}},
               {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
               {"a\r\n\r\nb\r\n", {"a", "", "b"}},
               {"\xC9t\xE9\r\nn\0l"s, {"Été", "n\0l"s}},
               {"\xEF\xBB\xBF\xC3\x89\n", {"É"}}};
    for (const auto& c : cas) {
        d.ecrit("f", c.octets);
        EXPECT_THAT(fichiers::litLignes(d.chemin("f")), Optional(c.lignes)) << c.octets;
    }
    EXPECT_THAT(fichiers::litLignes(d.ecrit("f", "1\n2\n3"), 2), Optional(ElementsAre("1", "2")));
    EXPECT_EQ(fichiers::litLignes(d.chemin("absent")), std::nullopt);
}

TEST(FichiersEcriture, ReplacingKeepsRightsAndLinksAndLeavesNothingBeside) {
    const DossierTemporaire d;
    d.ecrit("vrai", "ancien");
    fs::permissions(d.chemin("vrai"), fs::perms(0640));
    fs::create_symlink("vrai", d.chemin("lien"));
    EXPECT_TRUE(fichiers::remplace(d.chemin("lien"), "nouveau"));
    EXPECT_TRUE(fichiers::remplace(d.chemin("neuf"), "premier"));
    EXPECT_EQ(d.lit("vrai"), "nouveau");
    EXPECT_EQ(fs::status(d.chemin("vrai")).permissions(), fs::perms(0640));
    EXPECT_TRUE(fs::is_symlink(d.chemin("lien")));
    EXPECT_EQ(d.lit("neuf"), "premier");
    EXPECT_EQ(entrees(d), (std::vector<std::string>{"lien", "neuf", "vrai"}));
}

TEST(FichiersEcriture, WhatCannotBeReplacedStillStands) {
    const DossierTemporaire d;
    d.ecrit("dossier/f", "ancien");
    EXPECT_FALSE(fichiers::remplace(d.chemin("dossier"), "x"));
    EXPECT_FALSE(fichiers::remplace(d.chemin("absent/f"), "x"));
    EXPECT_FALSE(fichiers::copie(d.chemin("absent"), d.chemin("dossier/f")));
    EXPECT_FALSE(fichiers::copie(d.chemin("dossier"), d.chemin("dossier/f")));
    EXPECT_EQ(d.lit("dossier/f"), "ancien");
    if (geteuid() != 0) {  // the administrator may write everything
        fs::permissions(d.chemin("dossier/f"), fs::perms(0444));
        EXPECT_FALSE(fichiers::remplace(d.chemin("dossier/f"), "x"));
        EXPECT_EQ(d.lit("dossier/f"), "ancien");
    }
}

TEST(FichiersEcriture, CopiesOverWhatStandsButNotOntoItself) {
    const DossierTemporaire d;
    d.ecrit("Source.JPG", std::string(200'000, 's'));
    fs::permissions(d.chemin("Source.JPG"), fs::perms(0444));
    d.ecrit("cible", "ancienne");
    fs::create_hard_link(d.chemin("Source.JPG"), d.chemin("double"));
    EXPECT_TRUE(fichiers::copie(d.chemin("source.jpg"), d.chemin("cible")));
    EXPECT_EQ(d.lit("cible"), std::string(200'000, 's'));
    EXPECT_TRUE(fichiers::ecrit(d.chemin("cible"), "on peut y écrire"));
    EXPECT_EQ(d.lit("cible"), "on peut y écrire");
    EXPECT_TRUE(fichiers::copie(d.chemin("Source.JPG"), d.chemin("Source.JPG")));
    EXPECT_TRUE(fichiers::copie(d.chemin("Source.JPG"), d.chemin("double")));
    EXPECT_EQ(d.lit("Source.JPG").size(), 200'000u);
}

TEST(FichiersDossiers, DeletesByPatternFilesOnly) {
    const DossierTemporaire d;
    for (const char* nom : {"a.jpg", "B.JPG", "c.txt", "sans", "Sous/d.jpg"})
        d.ecrit(nom, "x");
    fs::create_directory_symlink(d.chemin("Sous"), d.chemin("lien"));
    EXPECT_EQ(fichiers::supprimeSelonMotif(d.chemin(), "*.jpg"), 2);
    EXPECT_EQ(entrees(d), (std::vector<std::string>{"Sous", "c.txt", "lien", "sans"}));
    EXPECT_EQ(fichiers::supprimeSelonMotif(d.chemin(), "*.*"), 3);
    EXPECT_EQ(d.lit("Sous/d.jpg"), "x");
    EXPECT_EQ(fichiers::supprimeSelonMotif(d.chemin("absent"), "*.*"), 0);
}

TEST(FichiersDossiers, ListsFilesInNameOrder) {
    const DossierTemporaire d;
    for (const char* nom : {"b", "A", "c", "B", "dossier/x"})
        d.ecrit(nom, "");
    fs::create_symlink("b", d.chemin("Lien"));
    EXPECT_THAT(fichiers::listeFichiers(d.chemin()), ElementsAre("A", "B", "b", "c", "Lien"));
    EXPECT_TRUE(fichiers::listeFichiers(d.chemin("absent")).empty());
}

TEST(FichiersDossiers, MakesAndDeletes) {
    const DossierTemporaire d;
    EXPECT_TRUE(fichiers::creeDossier(d.chemin("a/b/c/")));
    EXPECT_TRUE(fichiers::creeDossier(d.chemin("a/b/c/")));
    d.ecrit("f", "x");
    EXPECT_FALSE(fichiers::creeDossier(d.chemin("f/g")));
    EXPECT_TRUE(fichiers::supprime(d.chemin("f")));
    EXPECT_TRUE(fichiers::supprime(d.chemin("f")));
    EXPECT_FALSE(fichiers::supprime(d.chemin("a")));
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

TEST(FichiersChemins, AWholePathFromTheCurrentFolder) {
    EXPECT_EQ(fichiers::absolu("/été/b"), "/été/b");
    EXPECT_EQ(fichiers::absolu("b.txt"), std::filesystem::current_path().string() + "/b.txt");
    EXPECT_EQ(fichiers::absolu(""), "");
}
