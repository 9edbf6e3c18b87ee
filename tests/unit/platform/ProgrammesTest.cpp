#include "doubles/Temoin.h"
#include "platform/systeme/LigneDeCommande.h"
#include "platform/systeme/Programmes.h"

#include <cerrno>
#include <filesystem>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

using doubles::DossierTemporaire;
using doubles::Environnement;
using doubles::Temoin;
using systeme::Lancement;
using namespace std::chrono_literals;

namespace {

std::string note(const std::string& dossier, const std::vector<std::string>& arguments) {
    std::string texte = dossier + "\n";
    for (const std::string& argument : arguments)
        texte += "[" + argument + "]\n";
    return texte;
}

void resteSansEnfant() {
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left to wait for";
    EXPECT_EQ(errno, ECHILD);
}

class Programmes : public testing::Test {
  protected:
    Temoin temoin;
    DossierTemporaire dossier;
    std::string ici = std::filesystem::current_path().string();
    systeme::ProgrammesSysteme programmes;

    std::string fichier(const std::string& nom, const std::string& contenu, mode_t droits) const {
        chmod(dossier.ecrit(nom, contenu).c_str(), droits);
        return dossier.chemin(nom);
    }
};

}  // namespace

TEST_F(Programmes, ReceiveTheBytesOfTheirArgumentsInTheirFolder) {
    const std::vector<std::string> suite{"",       " ",       "L'été \"ici\".avi",  "$(touch non) `id` $HOME; *",
                                         "--help", "a\\b\nc", "l'\xE9t\xE9 de 1952"};
    std::vector<std::string> arguments{Temoin::programme()};
    arguments.insert(arguments.end(), suite.begin(), suite.end());
    EXPECT_EQ(programmes.lance({arguments, "/usr"}), Lancement::Fait);
    EXPECT_EQ(temoin.recu(), note("/usr", suite));
    resteSansEnfant();
    auto [issue, enCours] = programmes.lancePourAttendre({arguments, ""});
    ASSERT_EQ(issue, Lancement::Fait);
    EXPECT_TRUE(enCours->attendsFin(120s));
    EXPECT_TRUE(enCours->attendsFin(0s)) << "still over";
    EXPECT_EQ(temoin.recu(), note(ici, suite));
    enCours.reset();
    resteSansEnfant();
}

TEST_F(Programmes, ABareNameIsLookedUpInThePathAndAnyOtherFromHere) {
    std::filesystem::copy_file(Temoin::programme(), dossier.chemin("lecteur vidéo"));
    fichier("autre/lecteur vidéo", "not to be executed", 0644);
    const Environnement environnement({{"PATH", ".:" + dossier.chemin("autre") + ":" + dossier.chemin()}});
    EXPECT_EQ(programmes.lance({{"lecteur vidéo", "a"}, "/"}), Lancement::Fait);
    EXPECT_EQ(temoin.recu(), note("/", {"a"}));
    const std::string relatif = std::filesystem::relative(dossier.chemin("lecteur vidéo")).string();
    EXPECT_EQ(programmes.lance({{relatif, "b"}, "/"}), Lancement::Fait);
    EXPECT_EQ(temoin.recu(), note("/", {"b"}));
}

TEST_F(Programmes, SayWhyTheyCouldNotBeStarted) {
    const struct {
        systeme::Commande commande;
        Lancement issue;
    } cas[] = {{{{"aucun-programme-de-ce-nom"}, ""}, Lancement::Introuvable},
               {{{Temoin::programme()}, dossier.chemin("absent")}, Lancement::Introuvable},
               {{{}, ""}, Lancement::Introuvable},
               {{{fichier("sans.exe", "MZ", 0644)}, ""}, Lancement::Interdit},
               {{{dossier.chemin()}, ""}, Lancement::Interdit},
               {{{fichier("liste.exe", "touch jamais\n", 0755)}, dossier.chemin()}, Lancement::PasUnProgramme},
               {{{Temoin::programme(), std::string("a\0b", 3)}, ""}, Lancement::Echoue}};
    for (const auto& c : cas) {
        EXPECT_EQ(programmes.lance(c.commande), c.issue);
        const systeme::ProgrammeLance lance = programmes.lancePourAttendre(c.commande);
        EXPECT_EQ(std::pair(lance.issue, lance.enCours == nullptr), std::pair(c.issue, true));
    }
    EXPECT_FALSE(temoin.aRecu());
    EXPECT_FALSE(dossier.existe("jamais")) << "a shell has run a file that is no program";
    resteSansEnfant();
}

TEST_F(Programmes, AreEndedWhenAskedToEvenDeafOnes) {
    for (const char* consigne : {"dort", "sourd"}) {
        const systeme::ProgrammeLance lance = programmes.lancePourAttendre({{Temoin::programme(), consigne}, ""});
        ASSERT_EQ(lance.issue, Lancement::Fait);
        EXPECT_EQ(temoin.recu(), note(ici, {consigne}));
        EXPECT_FALSE(lance.enCours->attendsFin(1ms)) << consigne;
        lance.enCours->termine();
        EXPECT_TRUE(lance.enCours->attendsFin(0ms)) << consigne;
    }
    EXPECT_EQ(programmes.lancePourAttendre({{Temoin::programme(), "dort"}, ""}).issue, Lancement::Fait);
    resteSansEnfant();
}

TEST(LigneDeCommande, IsCutAsAShellWouldAndNothingElse) {
    using Mots = std::vector<std::string>;
    EXPECT_EQ(systeme::decoupe(R"("/opt/Lecteur vidéo/mpv"  'à l"écran' a\ b $HOME *; $(id) | 2>y)"),
              (Mots{"/opt/Lecteur vidéo/mpv", "à l\"écran", "a b", "$HOME", "*;", "$(id)", "|", "2>y"}));
    EXPECT_EQ(systeme::decoupe("\xE9t\xE9"), Mots{"\xE9t\xE9"});
    EXPECT_EQ(systeme::decoupe("  "), Mots{});
    EXPECT_EQ(systeme::decoupe("mpv \"--fs"), std::nullopt);
}
