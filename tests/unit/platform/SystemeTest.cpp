#include "doubles/Temoin.h"
#include "platform/systeme/Documents.h"
#include "platform/systeme/Horloge.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>

#include <gtest/gtest.h>

using doubles::DossierTemporaire;
using doubles::Environnement;

constexpr std::chrono::year_month_day kLe7Mars2026 = std::chrono::year(2026) / 3 / 7;

TEST(Horloge, TheDayIsWrittenAsTheUserWritesIt) {
    std::tm midi{};
    midi.tm_mday = 7;
    midi.tm_mon = 2;
    midi.tm_year = 126;
    midi.tm_hour = 12;
    midi.tm_isdst = -1;
    const std::time_t midiLe7Mars2026 = std::mktime(&midi);  // where the machine is
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
        EXPECT_EQ(systeme::dateCourte(midiLe7Mars2026), c.date) << c.lcAll << "/" << c.lcTime << "/" << c.lang;
        EXPECT_EQ(systeme::dateLue(c.date, systeme::ordreDesDates()), kLe7Mars2026) << "what is written is read again";
    }
}

TEST(Horloge, ADayIsReadInAnyFiguresAndNoOtherText) {
    using enum systeme::OrdreDate;
    for (const char* texte : {"07/03/2026", "7-3-26", "2026-03-07", "2026. 3. 7.", " 7 3 2026 "})
        EXPECT_EQ(systeme::dateLue(texte, JourMois), kLe7Mars2026) << texte;
    EXPECT_EQ(systeme::dateLue("03/07/2026", MoisJour), kLe7Mars2026);
    EXPECT_EQ(systeme::dateLue("28/02/1999", MoisJour), std::chrono::year(1999) / 2 / 28) << "no month 28";
    EXPECT_EQ(systeme::dateLue("1/12/71", JourMois), std::chrono::year(1971) / 12 / 1);
    for (const char* texte : {"", "Noël 2025", "07/2026", "32/13/2026", "30/02/2026", "2026", "1/2/3", "1/2/3/4",
                              "7/3/202", "07/03/20266", "0/0/0000", "7 mars 2026", "\xff"})
        EXPECT_EQ(systeme::dateLue(texte, JourMois), std::nullopt) << texte;
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

TEST(Documents, AnAddressIsTheOneArgumentOfTheDesktopsCommand) {
    const doubles::Temoin temoin;
    const DossierTemporaire dossier;
    std::filesystem::copy_file(doubles::Temoin::programme(), dossier.chemin("xdg-open"));
    const Environnement environnement({{"PATH", dossier.chemin()}});
    for (const auto& [ouvert, recu] : {std::pair("https://exemple.fr/?a=1&b='x y'", "https://exemple.fr/?a=1&b='x y'"),
                                       std::pair("--help", "./--help")}) {
        EXPECT_TRUE(systeme::DocumentsSysteme().ouvre(ouvert));
        EXPECT_TRUE(temoin.recu().ends_with("\n[" + std::string(recu) + "]\n")) << ouvert;
    }
}

TEST(Documents, SaysWhenNothingCouldBeStarted) {
    const DossierTemporaire vide;
    const Environnement environnement({{"PATH", vide.chemin()}});
    EXPECT_FALSE(systeme::DocumentsSysteme().ouvre("https://exemple.fr/"));
    EXPECT_FALSE(systeme::DocumentsSysteme().ouvre(""));
}
