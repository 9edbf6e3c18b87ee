#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const fs::path kGuide = fs::path(AMBRELIS_DOSSIER) / "Guide";

std::string lit(const fs::path& fichier) {
    std::ifstream flux(fichier, std::ios::binary);
    return {std::istreambuf_iterator<char>(flux), {}};
}

// What the expression captures, wherever it is found.
std::vector<std::pair<std::string, std::string>> toutes(const std::string& texte, const std::string& expression) {
    const std::regex regle(expression);
    std::vector<std::pair<std::string, std::string>> resultat;
    for (std::sregex_iterator trouve(texte.begin(), texte.end(), regle), fin; trouve != fin; ++trouve)
        resultat.emplace_back(trouve->str(1), trouve->size() > 2 ? trouve->str(2) : "");
    return resultat;
}

using Liens = std::vector<std::pair<std::string, std::string>>;

Liens suite(const std::string& page, const std::string& sens) {
    return toutes(page, "<a rel=\"" + sens + "\" href=\"([^\"]*)\">([^<]*)</a>");
}

// The program's pages in the order of the contents, each under its title; the contents come first.
Liens pagesDuSommaire() {
    const std::string index = lit(kGuide / "index.html");
    Liens pages = toutes(index, "<li><a href=\"([^\"]*)\">([^<]*)</a>");
    pages.insert(pages.begin(), {"index.html", "Guide d'Ambrelis"});
    return pages;
}

void verifieLaPage(const Liens& pages, std::size_t i) {
    const auto& [nom, titre] = pages[i];
    SCOPED_TRACE(nom);
    const std::string page = lit(kGuide / nom);
    EXPECT_EQ(toutes(page, "<h1>([^<]*)</h1>"), (Liens{{titre, ""}}));
    EXPECT_EQ(toutes(page, "<title>([^<]*)</title>"), (Liens{{i ? titre + " – " + pages[0].second : titre, ""}}));
    EXPECT_EQ(suite(page, "prev"), i ? Liens{pages[i - 1]} : Liens{});
    EXPECT_EQ(suite(page, "next"), i + 1 < pages.size() ? Liens{pages[i + 1]} : Liens{});
    for (const auto& [cible, ancre] : toutes(page, "(?:href|src)=\"([^\"#]*)#?([^\"]*)\"")) {
        const fs::path fichier = cible.empty() ? fs::path(nom) : fs::path(cible);
        EXPECT_TRUE(fs::is_regular_file(kGuide / fichier)) << cible;
        EXPECT_TRUE(ancre.empty() || lit(kGuide / fichier).find("id=\"" + ancre + "\"") != std::string::npos) << ancre;
    }
    EXPECT_EQ(page.find("http"), std::string::npos) << "it is read without a connection";
    EXPECT_EQ(page.find("<script"), std::string::npos);
    EXPECT_EQ(toutes(page, "<img ([^>]*)>").size(), toutes(page, "<img [^>]*alt=\"[^\"]+(\")").size());
}

// Read from its first page to its last, from wherever the folder was copied to.
TEST(Guide, LeadsFromItsContentsThroughEachOfItsPagesAndNowhereElse) {
    const Liens pages = pagesDuSommaire();
    ASSERT_GT(pages.size(), 20u);
    std::set<fs::path> noms;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        verifieLaPage(pages, i);
        noms.insert(pages[i].first);
    }
    EXPECT_EQ(noms.size(), pages.size());
    for (const auto& page : fs::directory_iterator(fs::path(AMBRELIS_SOURCE_DIR) / "docs/guide"))
        EXPECT_TRUE(page.path().extension() != ".html" || noms.contains(page.path().filename())) << page.path();
}

}  // namespace
