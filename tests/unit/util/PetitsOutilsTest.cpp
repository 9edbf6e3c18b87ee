#include "util/Csv.h"
#include "util/ListeAuto.h"
#include "util/NomsFichiers.h"
#include "util/Sql.h"

#include <gtest/gtest.h>

TEST(NomsFichiers, TheNineForbiddenCharactersGo) {
    EXPECT_EQ(util::nettoieNomFichier("\"Où\\est/la?<fin>|*:\" - É.jpg"), "Oùestlafin - É.jpg");
    EXPECT_EQ(util::nettoieNomFichier("a:b", "_"), "a_b");
}

TEST(NomsFichiers, OneSeparatorAtTheEnd) {
    EXPECT_EQ(util::avecSeparateur("Images"), "Images/");
    EXPECT_EQ(util::avecSeparateur("Images/"), "Images/");
    EXPECT_EQ(util::avecSeparateur("C:\\Images\\"), "C:\\Images\\");
    EXPECT_EQ(util::avecSeparateur(""), "");
}

TEST(NomsFichiers, ADriveIsOneLetterAndAColon) {
    for (const char* chemin : {"C:", "z:\\Films", "D:Films"})
        EXPECT_TRUE(util::aUneLettreDeLecteur(chemin)) << chemin;
    for (const char* chemin : {"", "C", "é:", "1:/", "CD:", ":C"})
        EXPECT_FALSE(util::aUneLettreDeLecteur(chemin)) << chemin;
}

TEST(Sql, QuotesAreDoubledApostrophesStay) {
    EXPECT_EQ(util::entreGuillemets("L'\"œuvre\""), "\"L'\"\"œuvre\"\"\"");
    EXPECT_EQ(util::entreGuillemets(""), "\"\"");
}

TEST(ListeAuto, AddsFindsRemovesSortsAndDropsDoubles) {
    util::ListeAuto liste;
    for (const char* texte : {"c", "a", "c", "b", "a"})
        liste.ajoute(texte);
    const auto contenu = [&] {
        std::string tout;
        for (std::size_t i = 0; i < liste.taille(); ++i)
            tout += liste.element(i);
        return tout;
    };
    EXPECT_EQ(liste.indiceDe("b"), 3u);
    EXPECT_EQ(liste.indiceDe("z"), liste.taille());
    liste.dedoublonne();
    EXPECT_EQ(contenu(), "cab");
    liste.trie();
    EXPECT_EQ(contenu(), "abc");
    EXPECT_TRUE(liste.retire(1));
    EXPECT_FALSE(liste.retire(2));
    EXPECT_EQ(contenu(), "ac");
    EXPECT_EQ(liste.element(99), "");
}

TEST(Csv, ProtectsWhatBeginsAsAFormulaAndGivesItBack) {
    for (const char* formule :
         {"=1+1", "+1", "-1", "@A1", "\t=1", "\r=1", "\n", " =1", "\u00A0\u202F-1", "＝1", "'=1", "''@"})
        EXPECT_EQ(util::protegeDesFormules(formule), "'" + std::string(formule));
    for (const char* texte : {"", "'", "'Allo 'Allo", "9-1", "L'Été", "a=1", "''"})
        EXPECT_EQ(util::protegeDesFormules(texte), texte);
    for (const char* texte : {"=1", "'=1", "''=1", "'a", "' =", "", "'"})
        EXPECT_EQ(util::sansProtection(util::protegeDesFormules(texte)), texte);
}
