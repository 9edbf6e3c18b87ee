#include "doubles/DossierTemporaire.h"
#include "platform/dao/CleJet.h"
#include "util/Unicode.h"

#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

using dao::interne::cleJet;
using dao::interne::cleJetLente;

namespace {

using Groupes = std::vector<std::vector<std::string>>;  // from the smallest, equals together

void verifieOrdre(const Groupes& groupes) {
    for (std::size_t i = 0; i < groupes.size(); ++i) {
        for (const std::string& texte : groupes[i])
            EXPECT_EQ(cleJet(texte), cleJet(groupes[i][0])) << texte << " = " << groupes[i][0];
        if (i == 0) continue;
        EXPECT_LT(cleJet(groupes[i - 1][0]), cleJet(groupes[i][0])) << groupes[i - 1][0] << " < " << groupes[i][0];
    }
}

// The lists of lists of texts of a JSON object, whatever their names; other values are passed over.
std::vector<Groupes> listesDeJson(const std::string& json) {
    std::vector<Groupes> listes;
    int profondeur = 0;
    for (std::size_t i = 0; i < json.size(); ++i) {
        if (json[i] == '[' && ++profondeur == 1) listes.emplace_back();
        if (json[i] == '[' && profondeur == 2) listes.back().emplace_back();
        if (json[i] == ']') --profondeur;
        if (json[i] != '"') continue;
        std::string texte;
        for (++i; json[i] != '"'; ++i)
            texte += json[i] == '\\' ? json[++i] : json[i];
        if (profondeur == 2) listes.back().back().push_back(texte);
    }
    return listes;
}

std::string caractere(char32_t point) {
    std::string texte;
    util::ajoutePoint(texte, static_cast<UChar32>(point));
    return texte;
}

}  // namespace

TEST(CleJet, OrdersAndEqualsAsJetDoes) {
    verifieOrdre({{"", " ", "   "},
                  {"\"10\""},
                  {"(500) jours"},
                  {"10"},
                  {"2"},
                  {"a b"},
                  {"ab", "AB", "Ab  "},
                  {"aé"},
                  {"cœur", "COEUR", "coeur", "CŒUR "},
                  {"cote"},
                  {"coté"},
                  {"côte"},
                  {"côté"},
                  {"été", "Été", "e\u0301te\u0301", "\xe9t\xe9"},
                  {"etes"},
                  {"lætitia", "laetitia"},
                  {"lave"},
                  {"l'ave"},
                  {"l’ave"},
                  {"l-ave"},
                  {"lav-e"},
                  {"L'Avez"},
                  {"strasse", "STRASSE", "straße"},
                  {"日本"},
                  {"日本語"}});
}

TEST(CleJet, OrdersRealValues) {
    const auto chemin = doubles::donneesReelles("bases-jet") / "Ordre.json";
    std::ifstream fichier(chemin);
    if (!fichier) GTEST_SKIP() << "no real data here: " << chemin;
    const auto listes = listesDeJson({std::istreambuf_iterator<char>(fichier), {}});
    ASSERT_GE(listes.size(), 11U);
    for (const Groupes& groupes : listes)
        verifieOrdre(groupes);
}

TEST(CleJet, IsTheSameThroughTheTableAndWithoutIt) {
    std::vector<char32_t> points;
    for (char32_t point = 1; point < 0x250; ++point)
        points.push_back(point);
    for (char32_t point = 0x2000; point < 0x2070; ++point)
        points.push_back(point);
    for (const char32_t premier : points) {
        // Two characters may weigh together where neither does alone.
        for (const char32_t second : points) {
            if (second % 5 != premier % 5) continue;  // a fifth of them, every character on both sides
            const std::string texte = caractere(premier) + caractere(second);
            ASSERT_EQ(cleJet(texte), cleJetLente(texte)) << texte;
        }
        const std::string texte = std::string("l") + caractere(premier) + "'é" + caractere(premier) + "x-";
        ASSERT_EQ(cleJet(texte), cleJetLente(texte)) << texte;
    }
    const std::string longue(100000, 'e');
    EXPECT_EQ(cleJet(longue + "'é"), cleJetLente(longue + "'é"));
}

TEST(CleJet, HoldsNoZeroByteAndIsNeverEmpty) {
    for (char32_t point = 0; point < 0x30000; ++point) {
        if (point >= 0xd800 && point < 0xe000) continue;
        const std::string cle = cleJet(caractere(point).insert(0, 1, 'a'));
        ASSERT_EQ(cle.find('\0'), std::string::npos) << std::hex << static_cast<unsigned>(point);
    }
    EXPECT_FALSE(cleJet("").empty());
}

// A copy is compared aside while the window, which lives on, compares texts too.
TEST(CleJet, IsTheSameInEachOfSeveralThreads) {
    const auto toutes = [] {
        std::vector<std::string> cles;
        for (char32_t point = 0x80; point < 0x2100; ++point)  // most weigh through ICU
            cles.push_back(cleJet("L'œuvre" + caractere(point)));
        return cles;
    };
    std::vector<std::vector<std::string>> deChacun(4);
    {
        std::vector<std::jthread> fils;
        for (auto& siennes : deChacun)
            fils.emplace_back([&] { siennes = toutes(); });
    }
    const std::vector<std::string> voulues = toutes();
    for (const auto& siennes : deChacun)
        EXPECT_EQ(siennes, voulues);
}
