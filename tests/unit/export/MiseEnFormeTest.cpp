#include "export/MiseEnForme.h"
#include "export/TexteBalise.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

using exportation::Balise;
using exportation::kBalises;
using exportation::MiseEnForme;
using texteriche::Alignement;
using texteriche::Style;

// A styled text with the style of each byte spelt out.
struct Etale {
    std::string texte;
    std::vector<Style> styles;
    std::vector<Alignement> alignements;
};

// The rule itself: one search, one selection, one replacement at a time.
void repete(Etale& etale, const Balise& balise) {
    const std::string ouvrante{'<', balise.lettre, '>'}, fermante{'<', '/', balise.lettre, '>'};
    for (;;) {
        const std::size_t p = etale.texte.find(ouvrante), q = etale.texte.find(fermante);
        if (p == std::string::npos || q == std::string::npos || q <= p) return;
        const auto paragraphe = [&](std::size_t place) {
            return std::count(etale.texte.begin(), etale.texte.begin() + static_cast<long>(place), '\n');
        };
        if (balise.alignement)
            std::fill(etale.alignements.begin() + paragraphe(p), etale.alignements.begin() + paragraphe(q) + 1,
                      *balise.alignement);
        const Style style = balise.appliqueeA(etale.styles[p]);
        const std::string nu = etale.texte.substr(p + 3, q - p - 3);
        etale.texte.replace(p, q - p + 4, nu);
        const auto debut = etale.styles.begin() + static_cast<long>(p);
        etale.styles.erase(debut, debut + 7);
        std::fill(debut, debut + static_cast<long>(nu.size()), style);
    }
}

Etale repeteTout(const std::string& texte) {
    const auto lignes = static_cast<std::size_t>(std::count(texte.begin(), texte.end(), '\n'));
    Etale etale{texte, std::vector<Style>(texte.size()), std::vector<Alignement>(lignes + 1)};
    for (const Balise& balise : kBalises)
        repete(etale, balise);
    return etale;
}

texteriche::TexteRiche metEnForme(const std::string& texte) {
    MiseEnForme miseEnForme(texte);
    for (const Balise& balise : kBalises)
        miseEnForme.applique(balise);
    return std::move(miseEnForme).resultat();
}

Etale etale(const texteriche::TexteRiche& riche) {
    Etale resultat{riche.texte, {}, riche.alignements};
    for (const texteriche::Passage& passage : riche.passages)
        resultat.styles.resize(passage.fin, riche.styles.at(passage.style));
    return resultat;
}

// Enough of what was drawn to read in a failure, and to try again.
testing::AssertionResult fontDeMeme(const std::string& texte) {
    const Etale attendu = repeteTout(texte), obtenu = etale(metEnForme(texte));
    const char* faute = attendu.texte != obtenu.texte               ? "text"
                        : attendu.styles != obtenu.styles           ? "styles"
                        : attendu.alignements != obtenu.alignements ? "alignments"
                                                                    : nullptr;
    if (faute == nullptr) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "other " << faute << " for:\n"
                                       << texte << "\nexpected: " << attendu.texte << "\nobtained: " << obtenu.texte;
}

TEST(MiseEnForme, DoesWhatTheRepetitionDoesWhateverTheTextHolds) {
    const std::vector<std::vector<std::string>> alphabets{
        {"<t>", "</t>", "<", "/", "t", ">", "x", "\n"},
        {"<r>", "</r>", "<r>", "</r>", "<", "</", "r>", ">", "\n", "é"},
        {"<g>", "</g>", "<t>", "</t>", "<r>", "</r>", "<d>", "</d>", "<a>", "</a>", "<f>", "</f>", "\n", "ab", "<",
         ">"},
        {"<d>", "<d>", "</d>", "<f>", "</f>", "<r>", "</r>", "<", "d>", "f>", "/f>", "\n", "x"},
        {"<", "<", "<t>", "t>", ">", "</t>", "</t>", "</r>", "<r>", "\n"},
    };
    std::minstd_rand hasard(20031123);  // the same texts at each run
    for (int essai = 0; essai < 30000; ++essai) {
        const auto& alphabet = alphabets[hasard() % alphabets.size()];
        std::string texte;
        for (auto reste = hasard() % 60; reste > 0; --reste)
            texte += alphabet[hasard() % alphabet.size()];
        ASSERT_TRUE(fontDeMeme(texte));
    }
}

// Each of these makes a removal, a selection or a repainting that grows with the text when it is done one at a time.
TEST(MiseEnForme, NestedAndChainedTagsEndAsTheRepetitionEnds) {
    const auto fois = [](int nombre, const std::string& morceau) {
        std::string texte;
        for (int i = 0; i < nombre; ++i)
            texte += morceau;
        return texte;
    };
    EXPECT_TRUE(fontDeMeme(fois(300, "<r>\n") + fois(300, "x\n</r>")));
    EXPECT_TRUE(fontDeMeme(fois(300, "<") + fois(300, "<t>t>") + "abc" + fois(600, "</t>\n")));
    EXPECT_TRUE(fontDeMeme(fois(300, "<</t>/d>") + fois(300, "<t>") + fois(300, "</d></t><d>")));
}

TEST(MiseEnForme, AClosingTagInAValueEndsTheStyleThere) {
    const auto riche = metEnForme("<f>Avant</f> après</f>\n<f>Le suivant</f>");
    EXPECT_EQ(riche.texte, "Avant après</f>\n<f>Le suivant</f>");  // the one left over comes before any opening tag
    EXPECT_THAT(riche.passages, testing::ElementsAre(texteriche::Passage{5, 1}, texteriche::Passage{34, 0}));
}

TEST(MiseEnForme, EachPairHasItsStyle) {
    const auto riche = metEnForme("<g>G</g>\r\n<t>T</t>\r<r>R</r>\n<d>D</d> <a>A</a> <f>F</f>");
    EXPECT_EQ(riche.texte, "G\nT\nR\nD A F");
    EXPECT_THAT(riche.alignements,
                testing::ElementsAre(Alignement::Centre, Alignement::Gauche, Alignement::Droite, Alignement::Gauche));
    const auto styles = etale(riche).styles;
    EXPECT_EQ(styles[0], (Style{"Arial", 11, 0xFFFF00, true}));
    EXPECT_EQ(styles[1], (Style{"Arial", 8, 0}));
    EXPECT_EQ(styles[2], (Style{"Arial", 18, 0x0000FF}));
    EXPECT_EQ(styles[4], (Style{"Arial", 12, 0}));
    EXPECT_EQ(styles[6], (Style{"Arial", 11, 0, false, true}));
    EXPECT_EQ(styles[8], (Style{"Arial", 9, 0xFF0000}));
    EXPECT_EQ(styles[10], (Style{"Arial", 11, 0}));
}

TEST(TexteBalise, EachFilmIsWrittenToTheLastBlank) {
    exportation::TexteBalise texte(true);
    texte.ajoute({"L'œuvre", "Ada Verrières", "95 mn", "", "1987", "France", "Zoé", "Été", "Étagère", "", "DVD"});
    texte.ajoute({"Été \"86\"", "", "", "Drame", "", "", "", "", "", "", ""});
    texte.ajoute({"Suite", "", "", "Drame", "", "", "", "", "", "prêté", ""});
    EXPECT_EQ(
        texte.texte(),
        "<t>L'œuvre</t>\r\n<r>de Ada Verrières</r>\r\n<d>95 mn</d>\r\n - 1987 - France\r\n<a>Avec Zoé</a>\r\n\r\n"
        "<f>Été</f>\r\nRangement : Étagère - Support : DVD\r\n\r\n\r\n\r\n"
        "<g>- Genre : Drame -</g>\r\n\r\n"
        "<t>Été \"86\"</t>\r\n<r>de </r>\r\n<d></d>\r\nDrame -  - \r\n<a>Avec </a>\r\n\r\n<f></f>\r\n\r\n\r\n\r\n\r\n"
        "<t>Suite</t>\r\n<r>de </r>\r\n<d></d>\r\nDrame -  - \r\n<a>Avec </a>\r\n\r\n<f></f>\r\n"
        "Divers : prêté\r\n\r\n\r\n\r\n");
    exportation::TexteBalise sansGenre(false);
    sansGenre.ajoute({"A", "B", "C", "D", "E", "F", "G", "H", "", "", ""});
    EXPECT_EQ(sansGenre.texte().find("<g>"), std::string::npos);
}

}  // namespace
