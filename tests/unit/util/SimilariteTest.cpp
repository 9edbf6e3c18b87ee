#include "util/Similarite.h"
#include "util/Texte.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <random>

#include <gtest/gtest.h>

namespace {

// The measure as it is worded, letter by letter.
int similariteLente(const std::string& a, const std::string& b) {
    const auto compte = [](const std::string& texte) {
        std::map<char, int> lettres;
        for (const char c : util::sansAccents(util::minuscules(texte)))
            if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == ' ') ++lettres[c];
        return lettres;
    };
    auto gauche = compte(a), droite = compte(b);
    double total = 0, commun = 0;
    for (const auto& [lettre, n] : gauche)
        total += n, commun += 2 * std::min(n, droite[lettre]);
    for (const auto& [lettre, n] : droite)
        total += n;
    return total == 0 ? 0 : static_cast<int>(std::nearbyint(commun / total * 100));
}

}  // namespace

TEST(Similarite, KnownPairs) {
    const struct {
        const char* gauche;
        const char* droite;
        int attendu;
    } cas[] = {{"Alien", "alien", 100}, {"L'été", "lete", 100}, {"", "", 0},
               {"abc", "", 0},          {"…", "!", 0},          {"abcd", "dcba", 100},
               {"aaaab", "aaaac", 80},  {"ab", "ac", 50},       {"Un 7", "un7", 86},
               {"aaaaaaaa", "a", 22},   {"ÇA", "ca", 100},      {"aaaaaaaaaaaaaaab", "b", 12}};
    for (const auto& c : cas)
        EXPECT_EQ(util::similarite(c.gauche, c.droite), c.attendu) << c.gauche << "/" << c.droite;
}

TEST(Similarite, SameAsTheMeasureAsItIsWorded) {
    const std::vector<std::string> lettres = {"a", "B", "é", "À", " ", "3",       "-",
                                              "œ", "z", "ñ", "İ", "'", "e\u0301", "\xFF"};
    std::mt19937 hasard(3);
    const auto texte = [&] {
        std::string resultat;
        for (auto n = hasard() % 30; n > 0; --n)
            resultat += lettres[hasard() % lettres.size()];
        return resultat;
    };
    for (int i = 0; i < 3000; ++i) {
        const std::string a = texte(), b = texte();
        ASSERT_EQ(util::similarite(a, b), similariteLente(a, b)) << a << " / " << b;
    }
}

TEST(Similarite, AHugeTextStillEqualsItself) {
    const std::string enorme(5'000'000, 'e');
    EXPECT_EQ(util::similarite(enorme, enorme), 100);
    EXPECT_EQ(util::similarite(enorme, "e"), 0);
}
