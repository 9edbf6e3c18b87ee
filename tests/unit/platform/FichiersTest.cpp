#include "doubles/DossierTemporaire.h"
#include "doubles/SansPrivileges.h"
#include "platform/fichiers/Fichiers.h"

#include <array>
#include <cstddef>
#include <filesystem>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using doubles::DossierTemporaire;
using testing::ElementsAre;
using testing::Optional;
using namespace std::string_literals;
namespace fs = std::filesystem;

namespace {

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
    EXPECT_THAT(d.noms(), ElementsAre("tube"));
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
    // Only the beginning of an endless text counts.
    d.ecrit("f", "avi\n" + std::string(20 << 20, 'x') + "\nmkv\n");
    EXPECT_THAT(fichiers::litLignes(d.chemin("f")), Optional(ElementsAre("avi")));
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
    EXPECT_EQ(d.noms(), (std::vector<std::string>{"lien", "neuf", "vrai"}));
}

TEST(FichiersEcriture, NewFilesAreAsPrivateAsTheUserWants) {
    const DossierTemporaire d;
    const mode_t avant = umask(077);
    EXPECT_TRUE(fichiers::ecrit(d.chemin("ecrit"), "x"));
    EXPECT_TRUE(fichiers::remplace(d.chemin("remplace"), "x"));
    EXPECT_EQ(fichiers::cree(d.chemin("cree"), "x"), fichiers::Creation::Faite);
    EXPECT_TRUE(fichiers::copie(d.chemin("cree"), d.chemin("copie")));
    EXPECT_TRUE(fichiers::creeDossier(d.chemin("dossier")));
    umask(avant);
    for (const std::string& nom : d.noms())
        EXPECT_EQ(fs::status(d.chemin(nom)).permissions() & fs::perms(077), fs::perms::none) << nom;
    EXPECT_EQ(d.noms().size(), 5U);
}

TEST(FichiersEcriture, WhatCannotBeReplacedStillStands) {
    const DossierTemporaire d;
    d.ecrit("dossier/f", "ancien");
    EXPECT_FALSE(fichiers::remplace(d.chemin("dossier"), "x"));
    EXPECT_FALSE(fichiers::remplace(d.chemin("absent/f"), "x"));
    EXPECT_FALSE(fichiers::copie(d.chemin("absent"), d.chemin("dossier/f")));
    EXPECT_FALSE(fichiers::copie(d.chemin("dossier"), d.chemin("dossier/f")));
    EXPECT_EQ(d.lit("dossier/f"), "ancien");
    const doubles::SansPrivileges ordinaire;
    fs::permissions(d.chemin("dossier/f"), fs::perms(0444));
    EXPECT_FALSE(fichiers::remplace(d.chemin("dossier/f"), "x"));
    EXPECT_EQ(d.lit("dossier/f"), "ancien");
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
    EXPECT_EQ(d.noms(), (std::vector<std::string>{"Sous", "c.txt", "lien", "sans"}));
    EXPECT_EQ(fichiers::supprimeSelonMotif(d.chemin(), "*.*"), 3);
    EXPECT_FALSE(fichiers::supprime(d.chemin("Sous")));
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

// What stands in "Tmp" may have been laid there by anyone.
TEST(FichiersTravail, NothingIsReachedThroughALink) {
    const DossierTemporaire d;
    const std::string victime = d.ecrit("ailleurs/victime.jpg", "victime");
    fs::create_directory_symlink(d.chemin("ailleurs"), d.chemin("Tmp"));
    EXPECT_FALSE(fichiers::ecrit(d.chemin("Tmp/neuf"), "x"));
    EXPECT_EQ(fichiers::supprimeSelonMotif(d.chemin("Tmp"), "*.*"), 0);
    EXPECT_EQ(fichiers::supprimeSelonMotif(d.chemin("Tmp/"), "*.*"), 0);

    EXPECT_TRUE(fichiers::assureDossierPrive(d.chemin("Tmp/")));
    EXPECT_TRUE(fs::is_directory(fs::symlink_status(d.chemin("Tmp"))));
    EXPECT_EQ(fs::status(d.chemin("Tmp")).permissions(), fs::perms::owner_all);
    fs::create_symlink(victime, d.chemin("Tmp/lien"));
    fs::create_hard_link(victime, d.chemin("Tmp/second"));
    EXPECT_EQ(fichiers::litSansLien(d.chemin("Tmp/lien")), std::nullopt);
    for (const char* nom : {"Tmp/lien", "Tmp/second"}) {
        EXPECT_TRUE(fichiers::ecrit(d.chemin(nom), "x")) << nom;
        EXPECT_EQ(d.lit(nom), "x");
    }
    fs::create_directory_symlink(d.chemin("ailleurs"), d.chemin("Tmp/dossier"));
    EXPECT_EQ(fichiers::supprimeSelonMotif(d.chemin("Tmp"), "*.*"), 3);
    EXPECT_EQ(d.lit("ailleurs/victime.jpg"), "victime");

    fs::permissions(d.chemin("Tmp"), fs::perms::all);
    EXPECT_TRUE(fichiers::assureDossierPrive(d.chemin("Tmp")));
    EXPECT_EQ(fs::status(d.chemin("Tmp")).permissions(), fs::perms::owner_all);
    fs::remove(d.chemin("Tmp"));
    d.ecrit("Tmp", "a file");
    EXPECT_FALSE(fichiers::assureDossierPrive(d.chemin("Tmp")));
}

// A file system without rights: every change of them is refused in this process, and in those it makes.
void refuseLesChangementsDeDroits() {
    const std::array<sock_filter, 6> filtre{
        {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
         BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_fchmod, 2, 0), BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_fchmodat, 1, 0),
         BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW), BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EPERM),
         BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)}};
    const sock_fprog programme{filtre.size(), const_cast<sock_filter*>(filtre.data())};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &programme) != 0)
        _exit(2);
}

TEST(FichiersEcriture, AFileSystemWithoutRightsTakesTheSettings) {
    const DossierTemporaire d;
    d.ecrit("Ambrelis.ini", "avant");
    fs::permissions(d.chemin("Ambrelis.ini"), fs::perms::owner_read | fs::perms::owner_write);
    const pid_t enfant = fork();
    if (enfant == 0) {
        refuseLesChangementsDeDroits();
        const bool refuses = fchmodat(AT_FDCWD, d.chemin("Ambrelis.ini").c_str(), 0666, 0) != 0;
        _exit(refuses && fichiers::assureDossierPrive(d.chemin("Tmp")) &&
                      fichiers::remplace(d.chemin("Ambrelis.ini"), "après")
                  ? 0
                  : 1);
    }
    int etat = 0;
    ASSERT_EQ(waitpid(enfant, &etat, 0), enfant);
    EXPECT_TRUE(WIFEXITED(etat) && WEXITSTATUS(etat) == 0) << etat;
    EXPECT_EQ(d.lit("Ambrelis.ini"), "après");
    EXPECT_EQ(fs::status(d.chemin("Ambrelis.ini")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

}  // namespace
