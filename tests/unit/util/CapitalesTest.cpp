#include "util/Capitales.h"
#include "util/Texte.h"

#include <random>

#include <gtest/gtest.h>

TEST(Capitales, PutsTitlesInTheHouseForm) {
    const struct {
        const char* titre;
        const char* attendu;
    } cas[] = {{"", ""},
               {"le PARRAIN II", "Le Parrain II"},
               {"rocky iv", "Rocky IV"},
               {"l'été meurtrier", "L'Été Meurtrier"},
               {"don't look now", "Don't Look Now"},
               {"AUJOURD'HUI", "Aujourd'hui"},
               {"ocean's eleven", "Ocean's Eleven"},
               {"l'", "L'"},
               {"mix et civil", "Mix Et Civil"},
               {"vi, x. c", "VI, X. C"},
               {"xcix, ci", "XCIX, Ci"},
               {"ii et ii ii", "II Et II II"},
               {"(the end)", "(The End)"},
               {"a/b s.o.s", "A/B S.O.S"},
               {"\"été\" e\u0301te\u0301", "\"Été\" E\u0301te\u0301"},
               {"straße ßa", "Straße ßa"},
               {"les x-men ii", "Les X-Men II"},
               {"İSTANBUL", "İstanbul"},
               {"  ivre", "  Ivre"}};
    for (const auto& c : cas)
        EXPECT_EQ(util::metEnCapitales(c.titre), c.attendu);
}

TEST(Capitales, ChangesNothingButCaseAndNothingTwice) {
    const std::vector<std::string> morceaux = {"i", "V", "x", "L",      "c",  " ", "'", "t",    "S", "hui",
                                               ",", ".", "-", "(",      "\"", "/", "é", "É",    "ß", "ſ",
                                               "ı", "İ", "ǆ", "\u0345", "µ",  "ς", "K", "\xE9", "ა"};
    std::mt19937 hasard(11);
    for (int essai = 0; essai < 20'000; ++essai) {
        std::string titre;
        for (auto n = hasard() % 14; n > 0; --n)
            titre += morceaux[hasard() % morceaux.size()];
        const std::string corrige = util::metEnCapitales(titre);
        ASSERT_EQ(util::metEnCapitales(corrige), corrige) << titre;
        ASSERT_EQ(util::longueur(corrige), util::longueur(titre)) << titre;
        ASSERT_EQ(util::majuscules(util::minuscules(corrige)), util::majuscules(util::minuscules(titre))) << titre;
    }
}

TEST(Capitales, AHugeLineTakesNoLongerThanItsLength) {
    std::string ligne;
    while (ligne.size() < 5'000'000)
        ligne += "ii l'été ";
    EXPECT_EQ(util::metEnCapitales(ligne).substr(0, 12), "II L'Été I");
}

TEST(Capitales, RomanNumerals) {
    const struct {
        int nombre;
        const char* attendu;
    } cas[] = {{1, "I"},          {4, "IV"},           {9, "IX"}, {49, "XLIX"}, {88, "LXXXVIII"}, {100, "C"},
               {1994, "MCMXCIV"}, {3999, "MMMCMXCIX"}, {0, ""},   {-1, ""},     {4000, ""}};
    for (const auto& c : cas)
        EXPECT_EQ(util::chiffresRomains(c.nombre), c.attendu);
}

TEST(Capitales, FindsWholeWordsByTheirPlaceInCharacters) {
    const struct {
        const char* texte;
        const char* mot;
        std::size_t attendu;
    } cas[] = {{"Rocky IV", "iv", 7}, {"été, É.", "é", 6}, {"civil", "iv", 0},
               {"iv", "IV", 1},       {"x-men", "x", 0},   {"iva iv", "iv", 5},
               {"", "iv", 0},         {"iv", "", 0},       {"le roi", "le roi", 1}};
    for (const auto& c : cas)
        EXPECT_EQ(util::chercheMotEntier(c.texte, c.mot), c.attendu) << c.texte;
}
