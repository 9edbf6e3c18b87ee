#include "BaseDEssai.h"
#include "platform/dao/Enregistrement.h"

#include <gmock/gmock.h>

namespace {

using dao::Application;
using dao::Sens;
using essais::AutreProgramme;
using essais::BaseDEssai;
using testing::ElementsAre;

class EnMemoire final : public dao::Depot {
  public:
    bool ajoute(std::string_view octets) override {
        if (m_octets.size() + octets.size() > limite) return false;
        m_octets += octets;
        return true;
    }
    [[nodiscard]] std::int64_t taille() const override { return static_cast<std::int64_t>(m_octets.size()); }
    std::size_t lit(std::int64_t place, char* tampon, std::size_t octets) const override {
        return m_octets.copy(tampon, octets, static_cast<std::size_t>(place));
    }

    std::size_t limite = SIZE_MAX;

  private:
    std::string m_octets;
};

// Changes are recorded one after the other, so that the last ones can be taken back alone.
struct EnregistrementTest : testing::Test {
    EnregistrementTest() {
        for (const auto titre : {"Avatar", "Brazil", "Casino"})
            essai.film(titre, "x");
    }
    void commence(std::vector<std::string> tables = {"Films", "Personnel"}) {
        suite.emplace(dao::Enregistrement{.depot = depot, .tables = std::move(tables)});
        base.enregistre(&*suite);
    }
    void note(const char* titre, dao::Valeur valeur, const char* champ = "Note") {
        dao::Recordset film = base.OpenRecordset(std::string("SELECT * FROM Films WHERE Titre = \"") + titre + "\"");
        film.Edit();
        film.assigne(champ, valeur);
        film.Update();
    }
    void supprime(const char* titre) {
        base.OpenRecordset(std::string("SELECT * FROM Films WHERE Titre = \"") + titre + "\"").Delete();
    }
    Application defais() { return base.applique(*suite, Sens::Defaire); }
    Application refais() { return base.applique(*suite, Sens::Refaire); }
    std::vector<std::string> lignes() {
        std::vector<std::string> textes;
        for (dao::Recordset film = base.OpenRecordset("SELECT * FROM Films ORDER BY Titre"); !film.Eof();
             film.MoveNext())
            textes.push_back(film.texte("id") + " " + film.texte("Titre") + " " + film.texte("Note"));
        return textes;
    }

    BaseDEssai essai;
    dao::Database& base = essai.base;
    EnMemoire depot;
    std::optional<dao::Enregistrement> suite;
};

}  // namespace

TEST_F(EnregistrementTest, WhatComesBackIsTheRowThatTheRecordsetsKnew) {
    dao::Recordset liste = base.OpenRecordset("SELECT * FROM Films ORDER BY Titre");
    commence();
    supprime("Brazil");
    note("Casino", 9);
    essai.film("Dune", "x");
    const auto apres = lignes();
    ASSERT_EQ(defais(), Application::Faite);
    EXPECT_THAT(lignes(), ElementsAre("1 Avatar ", "2 Brazil ", "3 Casino "));
    liste.MoveNext();
    EXPECT_EQ(liste.texte("Titre"), "Brazil");
    liste.MoveNext();
    EXPECT_EQ(liste.texte("Note"), "");
    EXPECT_EQ(base.OpenRecordset("Films").RecordCount(), 3);
    EXPECT_TRUE(base.OpenRecordset("SELECT * FROM Films WHERE Titre = \"Dune\"").Eof());
    ASSERT_EQ(refais(), Application::Faite);
    EXPECT_EQ(lignes(), apres);
    ASSERT_EQ(defais(), Application::Faite);
    essai.film("Eden", "x");  // the id that was taken back is not given again
    EXPECT_THAT(lignes(), ElementsAre("1 Avatar ", "2 Brazil ", "3 Casino ", "5 Eden "));
}

TEST_F(EnregistrementTest, NothingIsAppliedToRowsThatAreNoLongerWhatTheyWere) {
    AutreProgramme autre(essai.chemin);
    const struct {
        const char* ailleurs;
        Application issue;
    } cas[] = {
        {"UPDATE Films SET Note=3 WHERE id=2", Application::Changees},
        {"UPDATE Films SET Genre='Drame' WHERE id=2", Application::Faite},  // was not changed by the command
        {"DELETE FROM Films WHERE id=2", Application::Changees},
        {"UPDATE Films SET Titre='Autre film' WHERE id=2", Application::Changees},  // another film under that id
        {"UPDATE Films SET Titre='Autre film' WHERE id=1", Application::Changees},  // which the command retitled
        {"INSERT INTO Films (id,Titre) VALUES (3,'Nouveau')", Application::Changees},
        {"UPDATE Films SET Resume='lu' WHERE id=4", Application::Changees},
        {"ALTER TABLE Films RENAME COLUMN Note TO Cote", Application::Faite},  // told by their places
        {"ALTER TABLE Films DROP COLUMN Production", Application::Changees},
    };
    for (const auto& [ailleurs, issue] : cas) {
        SCOPED_TRACE(ailleurs);
        essai.base.Close();
        std::filesystem::remove(essai.chemin);
        dao::DBEngine::CreateDatabase(essai.chemin, essais::kSchema);
        essai.ouvre();
        for (const auto titre : {"Avatar", "Brazil", "Casino"})
            essai.film(titre, "x");
        commence();
        note("Brazil", 7);
        note("Avatar", "Avatar II", "Titre");
        supprime("Casino");
        essai.film("Dune", "x");
        base.enregistre(nullptr);
        AutreProgramme(essai.chemin).execute(ailleurs);
        const std::string avant = essai.dossier.lit("films.mdb");
        EXPECT_EQ(defais(), issue);
        if (issue == Application::Changees) {
            EXPECT_TRUE(essai.dossier.lit("films.mdb") == avant) << "the file was written";
        } else {
            EXPECT_EQ(refais(), Application::Faite);
        }
    }
}

// As want of memory leaves one: what comes after it would never be stored, and what was recorded be forgotten with it.
TEST_F(EnregistrementTest, ATransactionThatWasLeftOpenTakesNothingWithIt) {
    commence();
    note("Avatar", 1);
    base.Execute("BEGIN; SELECT * FROM Films");
    note("Brazil", 2);
    base.Execute("BEGIN; SELECT * FROM Films");
    supprime("Casino");
    essai.ouvre();
    EXPECT_THAT(lignes(), ElementsAre("1 Avatar 1", "2 Brazil 2"));
    ASSERT_EQ(defais(), Application::Faite);
    EXPECT_THAT(lignes(), ElementsAre("1 Avatar ", "2 Brazil ", "3 Casino "));
}

TEST_F(EnregistrementTest, ALargeTransactionIsHandedOverInPieces) {
    const std::string affiche(1 << 20, 'a');
    base.Execute("PRAGMA synchronous=OFF");
    for (int i = 0; i < 40; ++i)
        essai.ajoute("Films", {{"Titre", std::to_string(i)}, {"Affiche", dao::Valeur::octets(affiche)}});
    const auto avant = lignes();
    commence();
    sqlite3_memory_highwater(1);
    {
        dao::Transaction ensemble(base);
        for (dao::Recordset films = base.OpenRecordset("SELECT * FROM Films"); !films.Eof(); films.MoveNext()) {
            films.Edit();
            films.assigne("Note", 5);
            films.Update();
        }
        ensemble.confirme();
    }
    EXPECT_GT(suite->morceaux.size(), 3U);
    EXPECT_LT(depot.taille(), 100000) << "of a changed row the poster is not kept";
    ASSERT_EQ(defais(), Application::Faite);
    EXPECT_EQ(lignes(), avant);
    EXPECT_LT(sqlite3_memory_highwater(0), 30 << 20);
    ASSERT_EQ(refais(), Application::Faite);
    EXPECT_NE(lignes(), avant);
}

TEST_F(EnregistrementTest, ATransactionThatIsGivenUpLeavesNothingToTakeBack) {
    commence();
    note("Avatar", 1);
    {
        const dao::Transaction ensemble(base);
        note("Avatar", 2);
        supprime("Brazil");
    }
    EXPECT_EQ(suite->morceaux.size(), 1U);
    ASSERT_EQ(defais(), Application::Faite);
    EXPECT_THAT(lignes(), ElementsAre("1 Avatar ", "2 Brazil ", "3 Casino "));
}

TEST_F(EnregistrementTest, WhatCannotBeRecordedIsDoneAllTheSame) {
    depot.limite = 10;
    commence();
    { const dao::Transaction lecture(base); }
    EXPECT_EQ(suite->manque, "");
    note("Avatar", 1);
    EXPECT_EQ(suite->manque, "la place manque");
    EXPECT_THAT(lignes(), ElementsAre("1 Avatar 1", "2 Brazil ", "3 Casino "));

    depot.limite = SIZE_MAX;
    base.Execute("CREATE TABLE Sans (Titre TEXT, Realisateur TEXT)");
    commence({"Films", "Sans"});
    essai.ajoute("Sans", {{"Titre", "Sans clé"}});
    EXPECT_EQ(suite->manque, "la table « Sans » n'a pas de clé primaire entière");
    EXPECT_EQ(base.OpenRecordset("Sans").RecordCount(), 1);
}
