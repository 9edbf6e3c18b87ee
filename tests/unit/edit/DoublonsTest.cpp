#include "edit/Complement.h"
#include "edit/JugeFilms.h"
#include "edit/LettresDuCatalogue.h"
#include "edit/TitreDejaExistant.h"
#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "unit/edit/FenetreEdition.h"

namespace {

class DoublonsTest : public FenetreEdition {
  protected:
    void ajouteFilmDe(const std::string& titre, const std::string& realisateur) {
        ajouteFilm(titre.c_str(), {{"Realisateur", realisateur}});
    }
};

TEST_F(DoublonsTest, findsAFilmByTitleAndDirectorAsTheBaseComparesThem) {
    ajouteFilmDe("\"10\"", "Blake Edwards");
    ajouteFilmDe("Note", "L'Œuvre");
    EXPECT_TRUE(TitreDejaExistant(c, {"\"10\"", "Blake Edwards"}));
    EXPECT_TRUE(TitreDejaExistant(c, {"note", "L'oeuvre "}));
    EXPECT_FALSE(TitreDejaExistant(c, {"10", "Blake Edwards"}));
    EXPECT_FALSE(TitreDejaExistant(c, {"Note", "Blake Edwards"}));
}

TEST_F(DoublonsTest, showsEachResemblingFilmUntilOneIsRefused) {
    ajouteFilmDe("Solaris", "Andreï Tarkovski");
    ajouteFilmDe("Solaris", "Steven Soderbergh");
    ajouteFilmDe("Solarise", "Andrei Tarkovski");
    ajouteFilmDe("Un solaris", "Andreï Tarkovsky");
    const std::string debut =
        "Le nouveau titre ajouté (Solaris ! de Andreï Tarkovski) ressemble beaucoup \n à un autre "
        "existant déjà dans la base (";
    const std::string fin = ").\n\nSouhaitez-vous malgré tout l'ajouter ?";
    int avantQuestion = 0;
    auto lettres = edit::LettresDuCatalogue::de(c);
    lettres.ajoute({"SOLARISE", "Andreï Tarkovskj"});
    const auto teste = [&] {
        return TitreDejaExistant_TestRessemblance(c, {"Solaris !", "Andreï Tarkovski"}, lettres,
                                                  [&] { ++avantQuestion; });
    };
    dialogues.attendMsgBox(debut + "Solaris de Andreï Tarkovski" + fin, dialogues::kQuestion, dialogues::kOui);
    dialogues.attendMsgBox(debut + "Solarise de Andrei Tarkovski" + fin, dialogues::kQuestion, dialogues::kOui);
    dialogues.attendMsgBox(debut + "SOLARISE de Andreï Tarkovskj" + fin, dialogues::kQuestion, dialogues::kOui);
    dialogues.attendMsgBox(debut + "Un solaris de Andreï Tarkovsky" + fin, dialogues::kQuestion, dialogues::kOui);
    EXPECT_FALSE(teste());
    dialogues.attendMsgBox(debut + "Solaris de Andreï Tarkovski" + fin, dialogues::kQuestion, dialogues::kOui);
    dialogues.attendMsgBox(debut + "Solarise de Andrei Tarkovski" + fin, dialogues::kQuestion, dialogues::kNon);
    EXPECT_TRUE(teste());
    EXPECT_EQ(avantQuestion, 6);
    EXPECT_EQ(edit::questionRessemblance({"A", ""}, {"B", ""}),
              "Le nouveau titre ajouté (A) ressemble beaucoup \n à un autre existant déjà dans la base (B" + fin);
}

TEST_F(DoublonsTest, callsAlikeOnlyWhatIsAboveEightyPerCentOnBothSides) {
    const std::string a8 = "aaaaaaaabb", a8Proche = "aaaaaaaacc";                                      // 80 %
    const std::string a17 = std::string(17, 'a') + "bbbb", a17Proche = std::string(17, 'a') + "cccc";  // 81 %
    struct Cas {
        db::CleFilm nouveau, ancien;
        bool proche;
    };
    for (const Cas& cas :
         {Cas{{a8, "Méliès"}, {a8Proche, "Melies"}, false}, Cas{{a17, "Méliès"}, {a17Proche, "Melies"}, true},
          Cas{{"Z", a8}, {"z", a8Proche}, false}, Cas{{"Z", a17}, {"z", a17Proche}, true},
          Cas{{"Z", ""}, {"Z", ""}, false}, Cas{{"", "R"}, {"", "R"}, false}}) {
        base.base.Execute("DELETE FROM Films");
        ajouteFilmDe(cas.ancien.titre, cas.ancien.realisateur);
        if (cas.proche)
            dialogues.attendMsgBox(edit::questionRessemblance(cas.nouveau, cas.ancien), dialogues::kQuestion,
                                   dialogues::kNon);
        const auto lettres = edit::LettresDuCatalogue::de(c);
        EXPECT_EQ(TitreDejaExistant_TestRessemblance(c, cas.nouveau, lettres), cas.proche) << cas.nouveau.titre;
        EXPECT_EQ(lettres.aUnProche(cas.nouveau), cas.proche) << cas.nouveau.titre;
        EXPECT_EQ(lettres.proches(cas.nouveau).size(), cas.proche ? 1U : 0U) << cas.nouveau.titre;
    }
}

TEST_F(DoublonsTest, lettersOfTheCatalogueFollowWhatABatchAdds) {
    ajouteFilmDe("Alien", "Ridley Scott");
    auto lettres = edit::LettresDuCatalogue::de(c);
    EXPECT_FALSE(lettres.aUnProche({"Solaris", "Ridley Scott"}));
    lettres.ajoute({"Solarise", "Ridley Scot"});
    EXPECT_TRUE(lettres.aUnProche({"Solaris", "Ridley Scott"}));
    EXPECT_TRUE(lettres.aUnProche({"aliens", "Scott Ridley"}));
}

TEST_F(DoublonsTest, aFilmIsJudgedByTheCatalogueAndByWhatComesBeforeIt) {
    ajoute(base.films, {{"Titre", "Solaris"},
                        {"Realisateur", "Andreï Tarkovski"},
                        {"Annee", "1972"},
                        {"Genre", dao::Valeur()},
                        {"Duree", " "},
                        {"Affiche", "JPGelle.jpg"}});
    ajoute(base.films, {{"Titre", "Solarise"}, {"Realisateur", "Andrei Tarkovsky"}, {"Origine", ""}});
    edit::JugeFilms juge(c, true);
    int affichesLues = 0;
    const auto dit = [&](const db::CleFilm& cle) {
        const edit::FilmLu lu{cle, "1999", "URSS", "SF", "2H", "", "", " "};
        const edit::FilmExamine examen = juge.examine(lu, [&] {
            ++affichesLues;
            return edit::SortDeLAffiche::Prise;
        });
        EXPECT_EQ(juge.juge(lu), examen.sort);
        return texteDuSort(examen);
    };
    EXPECT_EQ(dit({"SOLARIS ", "andreï tarkovski"}), "Déjà là, à compléter : origine, genre");
    EXPECT_EQ(affichesLues, 0) << "its poster stays";
    EXPECT_EQ(dit({"Solarise", "Andrei Tarkovsky"}), "Déjà là, à compléter : année, origine, genre, durée, affiche");
    EXPECT_EQ(dit({"Solari", "Andreï Tarkovski"}), "Ressemble à « Solaris » à 92 % et à 1 autre film");
    EXPECT_EQ(dit({"Alien", "Ridley Scott"}), "Nouveau");
    juge.ajoute({"Alien", "Ridley Scott"});
    EXPECT_EQ(dit({"ALIEN", "Ridley Scott"}), "Déjà là : lu deux fois");
    EXPECT_EQ(dit({"Aliens", "Ridley Scott"}), "Ressemble à « Alien » à 91 %");

    dao::Recordset ligne = base.base.OpenRecordset(edit::requeteTitreDejaExistant({"Solaris", "Andreï Tarkovski"}));
    ligne.Edit();
    edit::complete(ligne, {{"Autre", "Autre"}, "1999", "URSS", "SF", "2H", "", "", ""});
    ligne.Update();
    std::string champs;
    for (const char* champ : {"Titre", "Annee", "Origine", "Genre", "Duree", "Acteurs"})
        champs += ligne.texte(champ) + "|";
    EXPECT_EQ(champs, "Solaris|1972|URSS|SF| ||");
}

}  // namespace
