#include "edit/Complement.h"
#include "edit/JugeFilms.h"
#include "edit/LettresDuCatalogue.h"
#include "edit/TitreDejaExistant.h"
#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "unit/edit/FenetreEdition.h"
#include "util/Similarite.h"

#include <array>
#include <random>

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

// Few letters, so that many films resemble and many are one by Jet's comparison without being the same text.
TEST_F(DoublonsTest, findsWhatComparingWithEachFilmOfTheListingFinds) {
    std::mt19937 hasard(5);
    const auto nombre = [&hasard](std::size_t sous) {
        return std::uniform_int_distribution<std::size_t>(0, sous - 1)(hasard);
    };
    const auto mot = [&](std::size_t lettres) {
        static constexpr std::array kLettres{"a", "A", "é", "e", "r", "s", " ", "œ", "3", "4", "!"};
        std::string texte;
        for (std::size_t i = 1 + nombre(lettres); i > 0; --i)
            texte += kLettres[nombre(kLettres.size())];
        return texte;
    };
    const std::vector<std::string> noms{mot(12), mot(12), mot(12), mot(4), "", "Éa", "eA"};
    const auto tire = [&] { return db::CleFilm{mot(nombre(2) == 0 ? 3 : 8), noms[nombre(noms.size())]}; };
    dao::Transaction transaction(base.base);
    ajouteFilmDe(std::string(70000, 'a'), "Éa");  // its letters are not counted to the end
    for (int i = 0; i < 400; ++i) {
        const db::CleFilm ancien = tire();
        ajouteFilmDe(ancien.titre, ancien.realisateur);
    }
    auto lettres = edit::LettresDuCatalogue::de(c);
    for (int i = 0; i < 50; ++i) {
        const db::CleFilm duLot = tire();
        ajouteFilmDe(duLot.titre, duLot.realisateur);
        lettres.ajoute(duLot);
    }
    struct Ancien {
        db::CleFilm film;
        util::CompteLettres titre, realisateur;
    };
    const auto compte = [](const db::CleFilm& un) {
        return Ancien{un, util::compteLettres(un.titre), util::compteLettres(un.realisateur)};
    };
    std::vector<Ancien> anciens;
    for (dao::Recordset films = edit::ouvreFilmsParTitre(c); !films.Eof(); films.MoveNext())
        anciens.push_back(compte({films.texte("Titre"), films.texte("Realisateur")}));
    std::vector<db::CleFilm> cherches{{std::string(200000, 'a'), "ea"}};
    while (cherches.size() < 300)
        cherches.push_back(tire());
    std::size_t trouves = 0;
    for (const db::CleFilm& cherche : cherches) {
        const Ancien nouveau = compte(cherche);
        std::vector<db::CleFilm> attendus;
        for (const Ancien& ancien : anciens)
            if (util::similarite(nouveau.titre, ancien.titre) > edit::kSeuilRessemblance &&
                util::similarite(nouveau.realisateur, ancien.realisateur) > edit::kSeuilRessemblance)
                attendus.push_back(ancien.film);
        EXPECT_EQ(lettres.prochesParTitre(cherche), attendus) << cherche.titre << " / " << cherche.realisateur;
        EXPECT_EQ(lettres.aUnProche(cherche), !attendus.empty()) << cherche.titre;
        EXPECT_EQ(lettres.proches(cherche).size(), attendus.size()) << cherche.titre;
        trouves += attendus.size();
    }
    EXPECT_GT(trouves, 500U);
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
