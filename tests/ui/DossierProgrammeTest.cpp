#include <filesystem>
#include <fstream>
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

}  // namespace
