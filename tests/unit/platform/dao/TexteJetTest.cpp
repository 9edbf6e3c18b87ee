#include "platform/dao/CleJet.h"
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
          Cas{"un 🎬 film", "🎬", 4}, Cas{"50 % *", "% *", 4}, Cas{"Solaris ", "s ", 7}}) {
        std::string plis;
        dao::interne::plie(cas.cherche, plis);
        EXPECT_EQ(instr(cas.texte, plis), cas.position) << cas.texte << " / " << cas.cherche;
    }
    EXPECT_EQ(instr("\xe9t\xe9 x", "x"), 5U);  // bytes of another encoding are carried
}

TEST(Instr, HoldsForOneLetterWhatTheComparisonHoldsForEqual) {
    struct Cas {
        std::string_view texte, cherche;
        bool trouve;
    };
    for (const Cas& cas :
         {Cas{"Un cœur en hiver", "coeur", true}, Cas{"UN COEUR", "cœur", true}, Cas{"ŒUVRE", "oeu", true},
          Cas{"Curriculum vitæ", "VITAE", true}, Cas{"Straße", "strasse", true}, Cas{"STRASSE", "aß", true},
          Cas{"L'e\u0301te\u0301", "ÉTÉ", true}, Cas{"l'été", "e\u0301te\u0301", true}, Cas{"e\u0301t", "et", false},
          Cas{"x\u0302", "x", false}, Cas{"x\u0302x", "x", true}, Cas{"e\u0301", "e", false}, Cas{"Ǽ", "aé", true},
          Cas{"İ 東", "i\u0307", true}, Cas{"L’été", "l'été", false}, Cas{"coe ur", "cœur", false}}) {
        std::string plis;
        dao::interne::plie(cas.cherche, plis);
        EXPECT_EQ(instr(cas.texte, plis) != 0, cas.trouve) << cas.texte << " / " << cas.cherche;
    }
    for (char32_t point = 1; point < 0x250; ++point) {  // what is folded together is equal for "="
        std::string seul, plis;
        dao::interne::ecritCaractere(point, seul);
        dao::interne::plie(seul, plis);
        if (point != U'ſ') {  // an s of another shape
            EXPECT_EQ(dao::interne::cleJet(seul), dao::interne::cleJet(plis)) << seul;
        }
        EXPECT_EQ(instr(seul, plis), 1U) << seul;  // Latin letters are folded many at a time, others one by one
        std::string precede;
        dao::interne::plie("L'Œ" + seul, precede);
        EXPECT_EQ(instr("L'Œ" + seul, precede), 1U) << seul;
    }
}

TEST(Instr, HugeTextsTakeTimeByTheirLengthAlone) {
    const std::string as(5'000'000, 'a');
    std::string presque(100'000, 'a');
    presque += 'b';
    EXPECT_EQ(instr(as, presque), 0U);
    EXPECT_EQ(instr(as + "œb", "aoeb"), as.size());
    std::string accentues;
    for (int i = 0; i < 1'000'000; ++i)
        accentues += "x\u0302";
    EXPECT_EQ(instr(accentues, "x"), 0U);
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
