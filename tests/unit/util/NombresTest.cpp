#include "util/Nombres.h"

#include <climits>
#include <limits>

#include <gtest/gtest.h>

TEST(Nombres, ReadsTheLongestNumericPrefix) {
    const struct {
        const char* texte;
        double attendu;
    } cas[] = {{"12 px", 12},  {"  7.5/10", 7.5}, {"-3", -3},  {"+4", 4},    {".5", 0.5}, {"1,5", 1},
               {"1e3x", 1000}, {"1e", 1},         {"", 0},     {"px 12", 0}, {"inf", 0},  {"nan", 0},
               {"- 3", 0},     {"--3", 0},        {"0x10", 0}, {"\t8", 8},   {".", 0},    {"1e-999", 0}};
    for (const auto& c : cas)
        EXPECT_EQ(util::Val(c.texte), c.attendu) << c.texte;
    EXPECT_EQ(util::Val("1e999"), std::numeric_limits<double>::max());
    EXPECT_EQ(util::Val("0." + std::string(400, '0') + "1"), 0);
}

TEST(Nombres, IntegersAreCutAndHeldInRange) {
    EXPECT_EQ(util::valEntier("-2.9"), -2);
    EXPECT_EQ(util::valEntier("99999999999"), INT_MAX);
    EXPECT_EQ(util::valEntier("-99999999999"), INT_MIN);
}

TEST(Nombres, RoundsHalvesToTheEvenNeighbour) {
    EXPECT_EQ(util::arrondiPair(6.5), 6);
    EXPECT_EQ(util::arrondiPair(7.5), 8);
    EXPECT_EQ(util::arrondiPair(-0.5), 0);
    EXPECT_EQ(util::arrondiPair(7.51), 8);
    EXPECT_EQ(util::arrondiPair(1e300), INT_MAX);
    EXPECT_EQ(util::arrondiPair(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(Nombres, CutsDecimalsAndWritesTheRest) {
    const struct {
        double nombre;
        const char* attendu;
    } cas[] = {{100.0 / 3, "33,3"}, {7.5, "7,5"}, {100, "100"},   {99.99, "99,9"},
               {0.04, "0"},         {-0.04, "0"}, {-1.29, "-1,2"}};
    for (const auto& c : cas)
        EXPECT_EQ(util::texteDuNombre(util::tronque(c.nombre, 1), ","), c.attendu);
    EXPECT_EQ(util::texteDuNombre(1e22), "10000000000000000000000");
}

TEST(Nombres, CountPhrase) {
    const struct {
        long nombre;
        const char* attendu;
    } cas[] = {{0, "0 titre"}, {1, "1 titre"}, {2, "2 titres"}, {-1, "-1 titres"}};
    for (const auto& c : cas)
        EXPECT_EQ(util::phraseCompte(c.nombre, "# titre", "# titres"), c.attendu);
}
