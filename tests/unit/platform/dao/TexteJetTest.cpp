#include "platform/dao/TexteJet.h"
#include "platform/dao/Utf8.h"

#include <gtest/gtest.h>

using dao::interne::instr;
using dao::interne::Motif;

TEST(Instr, IgnoresCaseAndKeepsAccents) {
    struct Cas {
        std::string_view texte, cherche;
        std::size_t position;
    };
    for (const Cas& cas :
         {Cas{"Le Grand BLEU", "bleu", 10}, Cas{"L'ÉTÉ", "été", 3}, Cas{"Ete", "été", 0}, Cas{"été", "ete", 0},
          Cas{"Lete", "l'e", 0}, Cas{"Jean-Luc", "n-l", 4}, Cas{"a b", "ab", 0}, Cas{"x", "", 1}, Cas{"", "x", 0},
          Cas{"cœur", "coeur", 0}, Cas{"un 🎬 film", "🎬", 4}, Cas{"50 % *", "% *", 4}, Cas{"Solaris ", "s ", 7}}) {
        std::string plis;
        dao::interne::plie(cas.cherche, plis);
        EXPECT_EQ(instr(cas.texte, plis), cas.position) << cas.texte << " / " << cas.cherche;
    }
    EXPECT_EQ(instr("\xe9t\xe9 x", "x"), 5U);  // bytes of another encoding are carried
}

// Latin letters are folded many at a time, the others one by one: both ways give the same.
TEST(Instr, FoldsEveryLetterAlike) {
    for (char32_t point = 1; point < 0x250; ++point) {
        std::string texte = "L'Œ";
        dao::interne::ecritCaractere(point, texte);
        std::string plis;
        dao::interne::plie(texte, plis);
        EXPECT_EQ(instr(texte, plis), 1U) << texte;
        EXPECT_EQ(instr(texte.substr(4), plis.substr(4)), 1U) << texte;  // without the letter of another alphabet
    }
}

TEST(Motif, KnowsJetsWildcards) {
    struct Cas {
        std::string_view motif, texte;
        bool convient;
    };
    for (const Cas& cas :
         {Cas{"JPG*", "jpgx.jpg", true}, Cas{"JPG*", "JPG", true}, Cas{"JPG*", "STOJPG", false},
          Cas{"*a*b", "xaxbxb", true}, Cas{"*a*b", "xaxbx", false}, Cas{"?t?", "été", true}, Cas{"n#", "n7", true},
          Cas{"n#", "nx", false}, Cas{"[a-c]x", "Bx", true}, Cas{"[!a-c]x", "bx", false}, Cas{"[*]", "*", true},
          Cas{"[*]", "x", false}, Cas{"50%_", "50xx", false}, Cas{"[a", "[a", true}, Cas{"é*", "Ete", false},
          Cas{"", "", true}, Cas{"*", "", true}}) {
        EXPECT_EQ(Motif(cas.motif).convient(cas.texte), cas.convient) << cas.motif << " / " << cas.texte;
    }
    EXPECT_GT(Motif("STO*").octetsDecisifs(), 0U);
    for (const auto motif : {"STO", "S*O*", "*", "S?*"})
        EXPECT_EQ(Motif(motif).octetsDecisifs(), 0U) << motif;
}
