#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

// The program folder as the build leaves it.
namespace {

namespace fs = std::filesystem;

const fs::path kDossier(AMBRELIS_DOSSIER);
const fs::path kSource(AMBRELIS_SOURCE_DIR);

std::string lit(const fs::path& fichier) {
    std::ifstream flux(fichier, std::ios::binary);
    return {std::istreambuf_iterator<char>(flux), {}};
}

TEST(DossierProgramme, CarriesTheSheetsToBeginWith) {
    int fiches = 0;
    for (const auto& entree : fs::directory_iterator(kSource / "samples")) {
        const std::string extension = entree.path().extension().string();
        if (extension != ".FILM" && extension != ".jpg") continue;
        EXPECT_TRUE(lit(entree.path()) == lit(kDossier / "samples" / entree.path().filename())) << entree.path();
        ++fiches;
    }
    EXPECT_EQ(fiches, 96);
}

// It is read without a connection, from wherever the folder was copied to.
TEST(DossierProgramme, CarriesAGuideThatLeadsNowhereElse) {
    const std::string guide = lit(kDossier / "Guide/index.html");
    const std::regex reference(R"re((href|src)="(#?)([^"]*)")re");
    std::set<std::string> chapitres;
    for (std::sregex_iterator lien(guide.begin(), guide.end(), reference), fin; lien != fin; ++lien) {
        const std::string cible = lien->str(3);
        if (lien->str(2) == "#") {
            EXPECT_NE(guide.find("<h2 id=\"" + cible + "\""), std::string::npos) << cible;
            chapitres.insert(cible);
        } else {
            EXPECT_TRUE(fs::is_regular_file(kDossier / "Guide" / cible)) << cible;
        }
    }
    const std::regex titre("<h2 ");
    const auto titres = std::distance(std::sregex_iterator(guide.begin(), guide.end(), titre), std::sregex_iterator());
    EXPECT_EQ(chapitres.size(), static_cast<std::size_t>(titres)) << "each chapter is in the contents";
    EXPECT_EQ(guide.find("http"), std::string::npos);
}

}  // namespace
