#include "doubles/DossierTemporaire.h"
#include "doubles/Temoin.h"
#include "platform/systeme/Documents.h"
#include "platform/systeme/Horloge.h"
#include "platform/systeme/InstanceUnique.h"

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

using doubles::DossierTemporaire;
using doubles::Environnement;

namespace {

// What a program that runs by itself has written, once it has.
std::string attendFichier(const DossierTemporaire& dossier, const std::string& nom) {
    using namespace std::chrono_literals;
    for (int i = 0; i < 1000 && !dossier.existe(nom); ++i)
        std::this_thread::sleep_for(10ms);
    return dossier.existe(nom) ? dossier.lit(nom) : "nothing was started";
}

}  // namespace

TEST(Horloge, TheDayIsWrittenAsTheUserWritesIt) {
    constexpr std::time_t kMidiLe7Mars2026 = 1772884800;
    const struct {
        const char *lcAll, *lcTime, *lang, *date;
    } cas[] = {{"", "", "", "07/03/2026"},
               {"C", "", "en_US.UTF-8", "07/03/2026"},
               {"", "POSIX", "", "07/03/2026"},
               {"", "", "C.UTF-8", "07/03/2026"},
               {"", "", "fr_FR.UTF-8@euro", "07/03/2026"},
               {"", "en_US.UTF-8", "fr_FR.UTF-8", "3/7/2026"},
               {"de_DE", "en_US", "", "07.03.2026"},
               {"", "", "th_TH.UTF-8", "7/3/2026"}};
    for (const auto& c : cas) {
        const Environnement environnement({{"LC_ALL", c.lcAll}, {"LC_TIME", c.lcTime}, {"LANG", c.lang}});
        EXPECT_EQ(systeme::dateCourte(kMidiLe7Mars2026), c.date) << c.lcAll << "/" << c.lcTime << "/" << c.lang;
    }
}

TEST(Horloge, TheDecimalSeparatorIsTheUsers) {
    const struct {
        const char *lcNumeric, *lang, *separateur;
    } cas[] = {{"", "", ","}, {"C", "en_US", ","}, {"en_US.UTF-8", "fr_FR", "."}, {"", "fr_FR.UTF-8", ","}};
    for (const auto& c : cas) {
        const Environnement environnement({{"LC_ALL", ""}, {"LC_NUMERIC", c.lcNumeric}, {"LANG", c.lang}});
        EXPECT_EQ(systeme::separateurDecimal(), c.separateur) << c.lcNumeric << "/" << c.lang;
    }
}

TEST(InstanceUnique, OneAtATimeAndNothingStale) {
    const DossierTemporaire dossier, autre;
    {
        systeme::InstanceUnique premiere, seconde, ailleurs;
        EXPECT_TRUE(premiere.prends(dossier.chemin()));
        EXPECT_FALSE(seconde.prends(dossier.chemin()));
        EXPECT_TRUE(ailleurs.prends(autre.chemin()));
    }
    systeme::InstanceUnique suivante, perdue;
    EXPECT_TRUE(suivante.prends(dossier.chemin()));
    EXPECT_TRUE(perdue.prends(dossier.chemin("absent")));
}

TEST(Documents, OpensDetachedWithOneArgumentAndNoShell) {
    const DossierTemporaire dossier;
    std::filesystem::permissions(
        dossier.ecrit("xdg-open",
                      "#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" > \"$SORTIE.part\"\nmv \"$SORTIE.part\" \"$SORTIE\"\n"),
        std::filesystem::perms::owner_all);
    const std::string path = dossier.chemin() + ":" + std::getenv("PATH");
    const std::pair<std::string, std::string> cas[] = {
        {"https://exemple.fr/?a=1&b='x y'", "1|https://exemple.fr/?a=1&b='x y'"},
        {"/Vidéos/L'été $HOME; ls.avi", "1|/Vidéos/L'été $HOME; ls.avi"},
        {"--help", "1|./--help"}};
    int numero = 0;
    for (const auto& [ouvert, recu] : cas) {
        const std::string nom = std::to_string(++numero);
        const Environnement environnement({{"PATH", path}, {"SORTIE", dossier.chemin(nom)}});
        EXPECT_TRUE(systeme::DocumentsSysteme().ouvre(ouvert));
        EXPECT_EQ(attendFichier(dossier, nom), recu);
    }
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left to wait for";
    EXPECT_EQ(errno, ECHILD);
}

TEST(Documents, SaysWhenNothingCouldBeStarted) {
    const DossierTemporaire vide;
    const Environnement environnement({{"PATH", vide.chemin()}});
    EXPECT_FALSE(systeme::DocumentsSysteme().ouvre("https://exemple.fr/"));
    EXPECT_FALSE(systeme::DocumentsSysteme().ouvre(""));
}
