#include "util/Texte.h"

#include <memory>
#include <numeric>
#include <random>

#include <gtest/gtest.h>
#include <unicode/brkiter.h>
#include <unicode/unistr.h>

namespace {

const std::string kFamille = "👨‍👩‍👧‍👦";
const std::string kEDecompose = "E\u0301";

// What ICU alone says of a whole text, through UTF-16.
std::vector<std::string> caracteresIcu(const std::string& texte) {
    UErrorCode etat = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> iterateur(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), etat));
    const auto unites = icu::UnicodeString::fromUTF8(texte);
    iterateur->setText(unites);
    std::vector<std::string> resultat;
    for (int debut = 0, fin = 0; (fin = iterateur->next()) != icu::BreakIterator::DONE; debut = fin)
        unites.tempSubStringBetween(debut, fin).toUTF8String(resultat.emplace_back());
    return resultat;
}

std::vector<std::string> copies(const std::vector<std::string_view>& vues) {
    return {vues.begin(), vues.end()};
}

}  // namespace

TEST(Texte, CharactersAreThoseOfIcuWhateverTheMixture) {
    const std::vector<std::string> morceaux = {"a",      "é", " ",  "\u0301", "\u200D", "👩",      "\U0001F3FD", "🇫",
                                               "🇷",      "’", "한", "ก",      "\u0E33", "\uFE0F", "©",          "ж",
                                               "\u0903", "œ", "\n", "\u0600", "€",      "\u1100"};
    std::mt19937 hasard(7);
    for (int essai = 0; essai < 3000; ++essai) {
        std::string texte;
        for (int i = 0; i < 12; ++i)
            texte += morceaux[hasard() % morceaux.size()];
        ASSERT_EQ(copies(util::caracteres(texte)), caracteresIcu(texte)) << texte;
        ASSERT_EQ(util::longueur(texte), caracteresIcu(texte).size()) << texte;
    }
}

TEST(Texte, InvalidBytesAreCarriedAndCountOneEach) {
    const std::string texte = "a\xE2\x82" + kFamille + "\xFF\xED\xA0\x80z";
    EXPECT_EQ(util::longueur(texte), 9u);
    const auto vues = util::caracteres(texte);
    EXPECT_EQ(std::accumulate(vues.begin(), vues.end(), std::string(),
                              [](std::string somme, std::string_view vue) { return somme.append(vue); }),
              texte);
    EXPECT_EQ(util::coupe(texte, 2), "a\xE2");
    EXPECT_EQ(util::minuscules("\xC3"
                               "A\x80"),
              "\xC3"
              "a\x80");
}

TEST(Texte, CutsBetweenCharactersNeverInside) {
    const std::string debut(99, 'x');
    for (const std::string& dernier : {std::string("É"), kEDecompose, kFamille, std::string("🇫🇷"), std::string("y")}) {
        EXPECT_EQ(util::coupe(debut + dernier + "suite", 100), debut + dernier);
        EXPECT_EQ(util::coupe(debut + dernier, 100), debut + dernier);
        EXPECT_EQ(util::coupe(debut + dernier, 99), debut);
    }
    EXPECT_EQ(util::coupe("été", 0), "");
}

TEST(Texte, CaseChangesOneToOne) {
    EXPECT_EQ(util::majuscules("straße œuvre l'été ﬁn"), "STRAßE ŒUVRE L'ÉTÉ ﬁN");
    EXPECT_EQ(util::minuscules("L'ÉTÉ ŒUVRE İ"), "l'été œuvre i");
    EXPECT_EQ(util::majuscules("e\u0301"), kEDecompose);
}

TEST(Texte, ComparesWithoutCase) {
    const struct {
        const char* gauche;
        const char* droite;
        bool egal;
    } cas[] = {{"Été", "éTÉ", true}, {"Été", "ete", false},   {"abc", "ab", false},     {"ab", "abc", false},
               {"", "", true},       {"\xC9", "\xE9", false}, {"A\xC9", "a\xC9", true}, {"ΣΑΣ", "σας", true}};
    for (const auto& c : cas) {
        EXPECT_EQ(util::egalSansCasse(c.gauche, c.droite), c.egal) << c.gauche << " / " << c.droite;
        EXPECT_EQ(util::cleSansCasse(c.gauche) == util::cleSansCasse(c.droite), c.egal) << c.gauche;
    }
}

TEST(Texte, FoldsTheFrenchSmallLettersOnly) {
    EXPECT_EQ(util::sansAccents("éëèê âàä ïî ôö ùüû ç"), "eeee aaa ii oo uuu c");
    EXPECT_EQ(util::sansAccents("É ñ œ á ÿ"), "É ñ œ á ÿ");
    EXPECT_EQ(util::sansAccents("e\u0301te\u0301 n\u0303"), "ete n\u0303");
}

TEST(Texte, ReplacesFromLeftToRight) {
    EXPECT_EQ(util::remplace("aaa", "aa", "b"), "ba");
    EXPECT_EQ(util::remplace("a#b#", "#", "##"), "a##b##");
    EXPECT_EQ(util::remplace("abc", "", "x"), "abc");
}

TEST(Encodages, Windows1252GoesThereAndBack) {
    std::string octets;
    for (int i = 0; i < 256; ++i)
        octets += static_cast<char>(i);
    EXPECT_EQ(util::vers1252(util::depuis1252(octets)), octets);
    EXPECT_EQ(util::depuis1252("\x8Cuvre \x80 \x92 \x81"), "Œuvre € ’ \u0081");
    EXPECT_EQ(util::vers1252(kEDecompose + "té Ł " + kFamille + " \u0082"), "\xC9t\xE9 ? ? ?");
}

TEST(Encodages, OutsideTextIsReadAsWhatItIs) {
    using namespace std::string_literals;
    const struct {
        std::string octets, texte;
    } cas[] = {{"\xEF\xBB\xBF"
                "Été",
                "Été"},
               {"\xEF\xBB\xBF", ""},
               {"Été", "Été"},
               {"\xC9t\xE9", "Été"},
               {"L'\x9Cuvre \x96 d\xE9"
                "but"s,
                "L'œuvre – début"},
               {"Alien", "Alien"},
               {"a\0b\xE9"s, "a\0bé"s},
               {"\xFF\xFE\xC9\0t\0\x3D\xD8\x00\xDE"s, "Ét😀"},
               {"\xFE\xFF\0\xC9\xD8\x3D\0t"s, "É\uFFFDt"},
               {"\xFF\xFE"
                "a\0\xE9"s,
                "aé"},
               {"\xFF\xFE\0\0\xC9\0\0\0\0\xF6\1\0\0\0\x11\0"s, "É😀\uFFFD"},
               {"\0\0\xFE\xFF\0\0\0\xC9\0\0\xD8\0"s, "É\uFFFD"}};
    for (const auto& c : cas)
        EXPECT_EQ(util::decodeTexteExterne(c.octets), c.texte);
    EXPECT_EQ(util::decodeTexteLarge("\xC9\0t\0\xE9\0\x53\x01"s), "Étéœ");
    EXPECT_EQ(util::decodeTexteLarge("\0\xC9\0t\0\xE9"s), "Été");
    EXPECT_EQ(util::decodeTexteLarge("a\0bc"s), std::nullopt);
}

TEST(Encodages, Utf16IsReadWholeWhereverAPairFalls) {
    EXPECT_EQ(util::depuisUtf16(u"\xD83D"
                                u"a\xDE00\xD83D"),
              "\uFFFDa\uFFFD\uFFFD");
    for (std::size_t avant : {(std::size_t{1} << 20) - 2, (std::size_t{1} << 20) - 1, std::size_t{1} << 20})
        EXPECT_TRUE(util::depuisUtf16(std::u16string(avant, u'a') + u"😀é") == std::string(avant, 'a') + "😀é") << avant;
}
