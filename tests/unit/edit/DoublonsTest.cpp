#include "doubles/DialoguesScript.h"
#include "edit/LettresDuCatalogue.h"
#include "edit/TitreDejaExistant.h"
#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "unit/edit/BaseDEssai.h"

namespace {

struct DoublonsTest : testing::Test {
    doubles::BaseDEssai essai;
    doubles::DialoguesScript dialogues;
    edit::Doublons doublons{essai.base, dialogues};
    edit::Ressemblances ressemblances{essai.base, dialogues};
};

TEST_F(DoublonsTest, findsAFilmByTitleAndDirectorAsTheBaseComparesThem) {
    essai.ajouteFilm("\"10\"", "Blake Edwards");
    essai.ajouteFilm("Note", "L'Œuvre");
    EXPECT_TRUE(doublons.TitreDejaExistant("\"10\"", "Blake Edwards"));
    EXPECT_TRUE(doublons.TitreDejaExistant("note", "L'oeuvre "));
    EXPECT_FALSE(doublons.TitreDejaExistant("10", "Blake Edwards"));
    EXPECT_FALSE(doublons.TitreDejaExistant("Note", "Blake Edwards"));
}

TEST_F(DoublonsTest, showsEachResemblingFilmUntilOneIsRefused) {
    essai.ajouteFilm("Solaris", "Andreï Tarkovski");
    essai.ajouteFilm("Solaris", "Steven Soderbergh");
    essai.ajouteFilm("Solarise", "Andrei Tarkovski");
    essai.ajouteFilm("Un solaris", "Andreï Tarkovsky");
    const std::string debut =
        "Le nouveau titre ajouté (Solaris ! de Andreï Tarkovski) ressemble beaucoup \n à un autre "
        "existant déjà dans la base (";
    const std::string fin = ").\n\nSouhaitez-vous malgré tout l'ajouter ?";
    int avantQuestion = 0;
    const auto teste = [&] {
        return ressemblances.TitreDejaExistant_TestRessemblance("Solaris !", "Andreï Tarkovski",
                                                                [&] { ++avantQuestion; });
    };
    dialogues.attendMsgBox(debut + "Solaris de Andreï Tarkovski" + fin, dialogues::kQuestion, dialogues::kOui);
    dialogues.attendMsgBox(debut + "Solarise de Andrei Tarkovski" + fin, dialogues::kQuestion, dialogues::kOui);
    dialogues.attendMsgBox(debut + "Un solaris de Andreï Tarkovsky" + fin, dialogues::kQuestion, dialogues::kOui);
    EXPECT_FALSE(teste());
    dialogues.attendMsgBox(debut + "Solaris de Andreï Tarkovski" + fin, dialogues::kQuestion, dialogues::kOui);
    dialogues.attendMsgBox(debut + "Solarise de Andrei Tarkovski" + fin, dialogues::kQuestion, dialogues::kNon);
    EXPECT_TRUE(teste());
    EXPECT_EQ(avantQuestion, 5);
    EXPECT_EQ(edit::questionRessemblance("A", "", "B", ""),
              "Le nouveau titre ajouté (A) ressemble beaucoup \n à un autre existant déjà dans la base (B" + fin);
}

TEST_F(DoublonsTest, callsAlikeOnlyWhatIsAboveEightyPerCentOnBothSides) {
    const std::string a8 = "aaaaaaaabb", a8Proche = "aaaaaaaacc";                                      // 80 %
    const std::string a17 = std::string(17, 'a') + "bbbb", a17Proche = std::string(17, 'a') + "cccc";  // 81 %
    struct Cas {
        std::string titre, realisateur, ancienTitre, ancienRealisateur;
        bool proche;
    };
    for (const Cas& cas : {Cas{a8, "Méliès", a8Proche, "Melies", false}, Cas{a17, "Méliès", a17Proche, "Melies", true},
                           Cas{"Z", a8, "z", a8Proche, false}, Cas{"Z", a17, "z", a17Proche, true},
                           Cas{"Z", "", "Z", "", false}, Cas{"", "R", "", "R", false}}) {
        doubles::BaseDEssai seule;
        seule.ajouteFilm(cas.ancienTitre, cas.ancienRealisateur);
        if (cas.proche)
            dialogues.attendMsgBox(
                edit::questionRessemblance(cas.titre, cas.realisateur, cas.ancienTitre, cas.ancienRealisateur),
                dialogues::kQuestion, dialogues::kNon);
        edit::Ressemblances test(seule.base, dialogues);
        EXPECT_EQ(test.TitreDejaExistant_TestRessemblance(cas.titre, cas.realisateur), cas.proche) << cas.titre;
        const auto lettres = edit::LettresDuCatalogue::de(seule.base, dialogues);
        EXPECT_EQ(lettres.aUnProche(cas.titre, cas.realisateur), cas.proche) << cas.titre;
    }
}

TEST_F(DoublonsTest, lettersOfTheCatalogueFollowWhatABatchAdds) {
    essai.ajouteFilm("Alien", "Ridley Scott");
    auto lettres = edit::LettresDuCatalogue::de(essai.base, dialogues);
    EXPECT_FALSE(lettres.aUnProche("Solaris", "Ridley Scott"));
    lettres.ajoute("Solarise", "Ridley Scot");
    EXPECT_TRUE(lettres.aUnProche("Solaris", "Ridley Scott"));
    EXPECT_TRUE(lettres.aUnProche("aliens", "Scott Ridley"));
}

}  // namespace
