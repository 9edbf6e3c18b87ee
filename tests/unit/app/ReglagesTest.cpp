#include "app/Reglages.h"
#include "doubles/DossierTemporaire.h"

#include <gtest/gtest.h>

using app::litReglages;
using app::Reglages;
using app::texteReglages;

namespace {

const std::string kDossier = "/opt/Vidéothèque/";

struct Cas {
    const char* nom;
    std::string texte;
    Reglages attendus;
};

class LectureReglages : public testing::TestWithParam<Cas> {};

TEST_P(LectureReglages, TakesEachLineForItself) {
    EXPECT_EQ(litReglages(GetParam().texte, kDossier), GetParam().attendus);
}

INSTANTIATE_TEST_SUITE_P(
    Fichiers, LectureReglages,
    testing::Values(
        Cas{"empty", "", {}},
        Cas{"all_lines",
            "1\n/img/\n12000\n9000\n3\n/b/Été.mdb\n1\n1\n",
            {1, "/img/", 12000, 9000, 3, "/b/Été.mdb", true, true}},
        Cas{"cr_lf_and_leading_blanks",
            " 1\r\n/img\r\n 12000\r\n 9000\r\n 8\r\n/b.mdb\r\n 1\r\n 0",
            {1, "/img", 12000, 9000, 8, "/b.mdb", true, false}},
        Cas{"two_lines", "1\n/img/", {1, "/img/"}}, Cas{"three_lines_have_no_size", "1\n/img/\n12000\n", {1, "/img/"}},
        Cas{"four_lines", "0\n\n12000\n9000", {0, "", 12000, 9000}},
        Cas{"nothing_after_a_size_of_zero_is_lost", "0\n\n0\n9000\n2\n", {0, "", 0, 0, 2}},
        Cas{"negative_size", "0\n\n-5\n9000\n", {}}, Cas{"size_of_no_screen", "0\n\n2147483647\n99999999999\n", {}},
        Cas{"sort_below_zero", "0\n\n1\n1\n-1\n", {0, "", 1, 1, 0}},
        Cas{"lenient_numbers", "1.9 oui\n\n12000px\n9000,5\n7tri\n", {1, "", 12000, 9000, 7}},
        Cas{"unknown_storage", "2\n/img\n", {0, "/img"}},
        Cas{"only_one_is_checked", "0\n\n0\n0\n0\n/b\n2\n2\n", {0, "", 0, 0, 0, "/b"}},
        Cas{"texts_are_unchecked", "0\n\n0\n0\n0\n/b\nTrue\nVrai\n", {0, "", 0, 0, 0, "/b"}},
        Cas{"windows_1252_beside_utf8", "0\n/caf\xE9\n0\n0\n0\n/Été.mdb\n", {0, "/café", 0, 0, 0, "/Été.mdb"}},
        Cas{"byte_order_mark",
            "\xEF\xBB\xBF"
            "1\n/img\n",
            {1, "/img"}},
        Cas{"relative_paths",
            "0\nImages/\n0\n0\n0\nfilms.mdb\n",
            {0, kDossier + "Images/", 0, 0, 0, kDossier + "films.mdb"}},
        Cas{"windows_paths",
            "0\nC:\\Images\\\n0\n0\n0\n\\\\hote\\films.mdb\n",
            {0, "C:\\Images\\", 0, 0, 0, "\\\\hote\\films.mdb"}},
        Cas{"a_path_with_a_nul_is_none", std::string("0\n\n0\n0\n5\n/a\0b\n1\n", 17), {0, "", 0, 0, 5, "", true}},
        Cas{"ten_megabytes_in_two_lines",
            "1\n" + std::string(10'000'000, 'x') + "\n12000\n9000\n4\n" + std::string(10'000'000, '/') + "\n1\n1\n",
            {1, "", 12000, 9000, 4, "", true, true}},
        Cas{"more_than_eight_lines",
            "1\n\n0\n0\n0\n/b\n0\n1\n" + std::string(1000, '\n'),
            {1, "", 0, 0, 0, "/b", false, true}}),
    [](const auto& cas) { return cas.param.nom; });

TEST(Reglages, WriteEightLinesOfPlainValues) {
    const Reglages reglages{1, "/img/", 12000, 9000, 3, "/b/Été.mdb", true, false};
    EXPECT_EQ(texteReglages(reglages, kDossier), "1\n/img/\n12000\n9000\n3\n/b/Été.mdb\n1\n0\n");
    EXPECT_EQ(texteReglages({}, kDossier), "0\n\n0\n0\n0\n\n0\n0\n");
}

TEST(Reglages, FollowTheirFolderWhenItIsCopied) {
    const Reglages ici{0, kDossier + "Images/", 0, 0, 0, kDossier + "Base/Été.mdb"};
    const Reglages ailleurs = litReglages(texteReglages(ici, kDossier), "/ailleurs/");
    EXPECT_EQ(ailleurs.dossierImages, "/ailleurs/Images/");
    EXPECT_EQ(ailleurs.base, "/ailleurs/Base/Été.mdb");
}

TEST(Reglages, AnyPathReadsAsItWasWritten) {
    for (const std::string& chemin :
         {"/opt/Vidéothèque/", "/opt/Vidéothèque/C:films.mdb", "/opt/Vidéothèque//films.mdb",
          "/opt/Vidéothèque 2/films.mdb", "https://site/images", "C:\\a.mdb"}) {
        const Reglages reglages{0, "", 0, 0, 7, chemin};
        EXPECT_EQ(litReglages(texteReglages(reglages, kDossier), kDossier), reglages) << chemin;
    }
    const Reglages surDeuxLignes{0, "/a\n5", 0, 0, 7, "/b"};
    EXPECT_EQ(litReglages(texteReglages(surDeuxLignes, kDossier), kDossier), (Reglages{0, "", 0, 0, 7, "/b"}));
}

TEST(Reglages, AnUnreadableFileIsToldApartFromAnEmptyOne) {
    const doubles::DossierTemporaire dossier;
    EXPECT_EQ(app::chargeReglages(dossier.ecrit("vide.ini", ""), kDossier), Reglages{});
    EXPECT_EQ(app::chargeReglages(dossier.chemin(), kDossier), std::nullopt);
}

}  // namespace
