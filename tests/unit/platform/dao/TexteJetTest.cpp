#include "platform/dao/TexteJet.h"

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
