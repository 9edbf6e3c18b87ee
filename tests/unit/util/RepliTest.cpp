#include "util/Repli.h"

#include <gtest/gtest.h>

namespace {

std::string repli(std::string_view texte) {
    std::string plis;
    util::ajouteRepli(texte, plis);
    return plis;
}

TEST(RepliTest, OnlyLettersCount) {
    for (const auto& [texte, attendu] : {std::pair{"CLÉO de 5 à 7", "cleo de 5 a 7"},
                                         {"Le Cœur, l’Æon", "le coeur, l aeon"},
                                         {"Straße-Øre", "strasse ore"},
                                         {"e\u0301te\u0301", "ete"},
                                         {"L'Apo\u00a0\u202f!\t", "l apo  ! "},
                                         {"ŒDIPE\u200b ½ ＡＢ", "oedipe 1/2 ab"},
                                         {"\xc9t\xe9", "ete"},  // Latin-1
                                         {"Солярис Ёлки ΨΥΧΩ", "солярис елки ψυχω"}})
        EXPECT_EQ(repli(texte), attendu);
}

TEST(RepliTest, EachFoldedByteKnowsItsSource) {
    const util::RepliSitue situe = util::repliSitue("aœe\u0301\u0301b");
    EXPECT_EQ(situe.texte, "aoeeb");
    EXPECT_EQ(situe.debuts, (std::vector<std::uint32_t>{0, 1, 1, 3, 8}));
    EXPECT_EQ(situe.fins, (std::vector<std::uint32_t>{1, 3, 3, 8, 9}));
}

}  // namespace
