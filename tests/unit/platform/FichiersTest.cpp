#include "doubles/DossierTemporaire.h"
#include "doubles/Mort.h"
#include "doubles/SansPrivileges.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Restes.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <thread>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
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
    EXPECT_EQ(entrees(d), (std::vector<std::string>{"lien", "neuf", "vrai"}));
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
    for (const std::string& nom : entrees(d))
        EXPECT_EQ(fs::status(d.chemin(nom)).permissions() & fs::perms(077), fs::perms::none) << nom;
    EXPECT_EQ(entrees(d).size(), 5U);
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

// Another program waits while it writes, until its end of the pipe is closed.
class AutreProgramme {
  public:
    explicit AutreProgramme(const DossierTemporaire& d) {
        if (pipe(m_ordres.data()) != 0 || pipe(m_nouvelles.data()) != 0) throw std::runtime_error("no pipe");
        m_enfant = fork();
        if (m_enfant != 0) {
            char prete = 0;
            if (read(m_nouvelles[0], &prete, 1) != 1) throw std::runtime_error("it does not write");
            return;
        }
        close(m_ordres[1]);
        fichiers::copie(d.chemin("source"), d.chemin("cible"), [&](std::int64_t) {
            char ordre = 0;
            return write(m_nouvelles[1], "x", 1) == 1 && read(m_ordres[0], &ordre, 1) == 1;
        });
        _exit(0);
    }
    AutreProgramme(const AutreProgramme&) = delete;
    AutreProgramme& operator=(const AutreProgramme&) = delete;
    ~AutreProgramme() {
        for (const int bout : {m_ordres[0], m_ordres[1], m_nouvelles[0], m_nouvelles[1]})
            close(bout);
        waitpid(m_enfant, nullptr, 0);
    }

  private:
    std::array<int, 2> m_ordres{}, m_nouvelles{};
    pid_t m_enfant = -1;
};

TEST(FichiersRestes, WhatKilledProgramsLeftGoesAndNothingElse) {
    const DossierTemporaire d;
    d.ecrit("source", "image");
    EXPECT_TRUE(doubles::meurtEnRoute([&] {
        fichiers::copie(d.chemin("source"), d.chemin("cible"), [](std::int64_t) -> bool { doubles::meurs(); });
    }));
    const AutreProgramme vivant(d);
    const std::string mien = ".ambrelis-" + std::to_string(getpid()) + "-1-2.tmp";
    for (const std::string& nom : {mien, "x.ambrelis-999999999-1-2.tmp"s, ".ambrelis-999999999-1-2.tmp.jpg"s,
                                   ".ambrelis-999999999-1.tmp"s, ".ambrelis-999999999--2.tmp"s, ".ambrelis-a-1-2.tmp"s,
                                   ".ambrelis-999999999-1-2.tmp"s, ".ambrelis-999999999-1-2.tmp-journal"s,
                                   ".ambrelis-1-1-2.tmp"s, ".ambrelis-1-1-2.tmp-journal"s, ".ambrelis.verrou"s})
        d.ecrit(nom, "");
    fs::create_symlink("source", d.chemin(".ambrelis-999999999-3-3.tmp"));
    fs::create_directory(d.chemin(".ambrelis-999999999-4-4.tmp"));
    const auto avant = entrees(d);
    EXPECT_EQ(fichiers::supprimeRestes(d.chemin()), 4)
        << "the killed one's, mine of an earlier run, nobody's, a journal";
    const auto apres = entrees(d);
    EXPECT_EQ(apres.size(), avant.size() - 4);
    for (const std::string& nom : {mien, ".ambrelis-999999999-1-2.tmp"s})
        EXPECT_THAT(apres, testing::Not(testing::Contains(nom)));
    EXPECT_THAT(apres, testing::IsSupersetOf({".ambrelis-1-1-2.tmp", ".ambrelis-999999999-3-3.tmp",
                                              ".ambrelis-999999999-4-4.tmp", "source"}));
    EXPECT_EQ(fichiers::supprimeRestes(d.chemin()), 0) << "they may be being written";
    for (const std::string& nom : entrees(d))
        vieillit(d.chemin(nom));
    EXPECT_EQ(fichiers::supprimeRestes(d.chemin()), 2) << "but for one, nobody does for an hour without a byte";
    EXPECT_FALSE(d.existe(".ambrelis-1-1-2.tmp"));
}

TEST(FichiersDossiers, DeletesByPatternFilesOnly) {
    const DossierTemporaire d;
    for (const char* nom : {"a.jpg", "B.JPG", "c.txt", "sans", "Sous/d.jpg"})
        d.ecrit(nom, "x");
    fs::create_directory_symlink(d.chemin("Sous"), d.chemin("lien"));
    EXPECT_EQ(fichiers::supprimeSelonMotif(d.chemin(), "*.jpg"), 2);
    EXPECT_EQ(entrees(d), (std::vector<std::string>{"Sous", "c.txt", "lien", "sans"}));
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
