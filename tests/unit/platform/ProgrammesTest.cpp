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

const std::string kVerbatim[] = {"",       " ",       "L'été \"ici\".avi",  "$(touch /tmp/non) `id` $HOME; *",
                                 "--help", "a\\b\nc", "l'\xE9t\xE9 de 1952"};

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
        const std::string chemin = dossier.ecrit(nom, contenu);
        chmod(chemin.c_str(), droits);
        return chemin;
    }
    [[nodiscard]] std::string lieu() const { return dossier.chemin().substr(0, dossier.chemin().size() - 1); }
};

}  // namespace

TEST_F(Programmes, ReceiveTheBytesOfTheirArgumentsInTheirFolder) {
    std::vector<std::string> arguments{Temoin::programme()};
    arguments.insert(arguments.end(), std::begin(kVerbatim), std::end(kVerbatim));
    const std::vector<std::string> suite(arguments.begin() + 1, arguments.end());
    EXPECT_EQ(programmes.lance({arguments, dossier.chemin()}), Lancement::Fait);
    EXPECT_EQ(temoin.recu(), note(lieu(), suite));
    resteSansEnfant();
    auto [issue, enCours] = programmes.lancePourAttendre({arguments, ""});
    ASSERT_EQ(issue, Lancement::Fait);
    EXPECT_TRUE(enCours->attendsFin(20s));
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
               {{{dossier.chemin("absent.exe")}, ""}, Lancement::Introuvable},
               {{{Temoin::programme()}, dossier.chemin("absent")}, Lancement::Introuvable},
               {{{}, ""}, Lancement::Introuvable},
               {{{""}, ""}, Lancement::Introuvable},
               {{{fichier("sans.exe", "MZ", 0644)}, ""}, Lancement::Interdit},
               {{{dossier.chemin()}, ""}, Lancement::Interdit},
               {{{fichier("liste.exe", "touch jamais\n", 0755)}, dossier.chemin()}, Lancement::PasUnProgramme},
               {{{Temoin::programme(), std::string("a\0b", 3)}, ""}, Lancement::Echoue}};
    for (const auto& c : cas) {
        const std::string nom = c.commande.arguments.empty() ? "nothing" : c.commande.arguments[0];
        EXPECT_EQ(programmes.lance(c.commande), c.issue) << nom;
        const systeme::ProgrammeLance lance = programmes.lancePourAttendre(c.commande);
        EXPECT_EQ(lance.issue, c.issue) << nom;
        EXPECT_EQ(lance.enCours, nullptr) << nom;
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
    const struct {
        std::string ligne;
        std::optional<Mots> mots;
    } cas[] = {{"/usr/bin/mpv --fs", Mots{"/usr/bin/mpv", "--fs"}},
               {R"("/opt/Lecteur vidéo/mpv"  'à l"écran' a\ b)", Mots{"/opt/Lecteur vidéo/mpv", "à l\"écran", "a b"}},
               {"vlc $HOME *; $(id) | `x` 2>y", Mots{"vlc", "$HOME", "*;", "$(id)", "|", "`x`", "2>y"}},
               {"\xE9t\xE9", Mots{"\xE9t\xE9"}},
               {"  ", Mots{}},
               {"", Mots{}},
               {"mpv \"--fs", std::nullopt}};
    for (const auto& c : cas)
        EXPECT_EQ(systeme::decoupe(c.ligne), c.mots) << c.ligne;
}
