#include "app/Reglages.h"
#include "doubles/DossierTemporaire.h"
#include "doubles/Temoin.h"

#include <algorithm>

#include <gtest/gtest.h>

using app::litReglages;
using app::Reglages;
using app::texteReglages;

namespace {

const std::string kDossier = "/opt/Vidéothèque/";

// The eight values as read, paths whole, each ended by "|".
std::string valeurs(const Reglages& reglages) {
    std::string texte = texteReglages(reglages, "/nulle part/");
    std::replace(texte.begin(), texte.end(), '\n', '|');
    return texte;
}

struct Cas {
    const char* nom;
    std::string texte;
    std::string attendu;
};

const Cas kCas[] = {
    {"empty", "", "0||0|0|0||0|0|"},
    {"all_lines", "1\n/img/\n12000\n9000\n3\n/b/Été.mdb\n1\n1\n", "1|/img/|12000|9000|3|/b/Été.mdb|1|1|"},
    {"cr_lf_and_blanks", " 1\r\n/img\r\n 120\r\n 90\r\n 8\r\n/b.mdb\r\n 1\r\n 0", "1|/img|120|90|8|/b.mdb|1|0|"},
    {"two_lines", "1\n/img/", "1|/img/|0|0|0||0|0|"},
    {"three_lines_have_no_size", "1\n/img/\n12000\n", "1|/img/|0|0|0||0|0|"},
    {"four_lines", "0\n\n12000\n9000", "0||12000|9000|0||0|0|"},
    {"a_size_of_zero", "0\n\n0\n9000\n2\n", "0||0|0|2||0|0|"},
    {"negative_size", "0\n\n-5\n9000\n2\n", "0||0|0|2||0|0|"},
    {"size_of_no_screen", "0\n\n2147483647\n99999999999\n2\n", "0||0|0|2||0|0|"},
    {"sort_below_zero", "0\n\n1\n1\n-1\n", "0||1|1|0||0|0|"},
    {"lenient_numbers", "1.9 oui\n\n12000px\n9000,5\n7tri\n", "1||12000|9000|7||0|0|"},
    {"unknown_storage", "2\n/img\n", "0|/img|0|0|0||0|0|"},
    {"only_one_is_checked", "0\n\n0\n0\n0\n/b\n2\n2\n", "0||0|0|0|/b|0|0|"},
    {"texts_are_unchecked", "0\n\n0\n0\n0\n/b\nTrue\nVrai\n", "0||0|0|0|/b|0|0|"},
    {"windows_1252_beside_utf8", "0\n/caf\xE9\n0\n0\n0\n/Été.mdb\n", "0|/café|0|0|0|/Été.mdb|0|0|"},
    {"byte_order_mark", "\xEF\xBB\xBF\x31\n/img\n", "1|/img|0|0|0||0|0|"},
    {"relative_paths", "0\nImages/\n0\n0\n0\nfilms.mdb\n",
     "0|/opt/Vidéothèque/Images/|0|0|0|/opt/Vidéothèque/films.mdb|0|0|"},
    {"windows_paths", "0\nC:\\Images\\\n0\n0\n0\n\\\\h\\films.mdb\n", "0|C:\\Images\\|0|0|0|\\\\h\\films.mdb|0|0|"},
    {"a_path_with_a_nul_is_none", std::string("0\n\n0\n0\n5\n/a\0b\n1\n", 17), "0||0|0|5||1|0|"},
    {"ten_megabyte_lines",
     "1\n" + std::string(10'000'000, 'x') + "\n120\n90\n4\n" + std::string(10'000'000, '/') + "\n1\n1\n",
     "1||120|90|4||1|1|"},
    {"more_than_eight_lines", "1\n\n0\n0\n0\n/b\n0\n1\n" + std::string(1000, '\n'), "1||0|0|0|/b|0|1|"},
};

TEST(Reglages, TakesEachLineForItself) {
    for (const Cas& cas : kCas)
        EXPECT_EQ(valeurs(litReglages(cas.texte, kDossier)), cas.attendu) << cas.nom;
}

TEST(Reglages, WriteEightLinesOfPlainValues) {
    const Reglages reglages{1, "/img/", 12000, 9000, 3, "/b/Été.mdb", true, false};
    EXPECT_EQ(texteReglages(reglages, kDossier), "1\n/img/\n12000\n9000\n3\n/b/Été.mdb\n1\n0\n");
    EXPECT_EQ(texteReglages({}, kDossier), "0\n\n0\n0\n0\n\n0\n0\n");
}

TEST(Reglages, ThePersonalFolderIsNoneOfTheProgramFolder) {
    const doubles::Environnement maison({{"HOME", std::string("/home/jeanne")}});
    EXPECT_EQ(litReglages("0\n~/Affiches\n", kDossier).dossierImages, "/home/jeanne/Affiches");
    const Reglages tilde{0, kDossier + "~/Affiches", 0, 0, 0, kDossier + "~"};
    EXPECT_EQ(litReglages(texteReglages(tilde, kDossier), kDossier), tilde);
}

TEST(Reglages, AnyPathReadsAsItWasWritten) {
    for (const char* chemin :
         {"/opt/Vidéothèque/", "/opt/Vidéothèque/C:films.mdb", "/opt/Vidéothèque//films.mdb",
          "/opt/Vidéothèque/~/films.mdb", "/opt/Vidéothèque 2/films.mdb", "https://site/images", "C:\\a.mdb"}) {
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
