#include "BaseDEssai.h"

#include <algorithm>
#include <array>
#include <span>

namespace {

using essais::AutreProgramme;
using essais::BaseDEssai;
using essais::numeroErreur;
using Liste = std::vector<std::string>;

struct JeuxTest : testing::Test {
    JeuxTest() {
        dao::Transaction transaction(base);
        for (const auto titre : {"Avatar", "Brazil", "Casino", "Dune"})
            essai.film(titre, "x");
        transaction.confirme();
    }
    BaseDEssai essai;
    dao::Database& base = essai.base;
};

const char* const kParTitre = "SELECT * FROM Films ORDER BY Titre ASC ;";

}  // namespace

TEST_F(JeuxTest, MovesLikeAKeyset) {
    dao::Recordset jeu = base.OpenRecordset(kParTitre);
    EXPECT_EQ(jeu.texte("Titre"), "Avatar");  // opened on its first record
    jeu.Move(3);
    EXPECT_EQ(jeu.texte("Titre"), "Dune");
    jeu.Move(-2);
    EXPECT_EQ(jeu.texte("Titre"), "Brazil");
    jeu.Move(100);
    EXPECT_TRUE(jeu.Eof());
    EXPECT_EQ(numeroErreur([&] { jeu.MoveNext(); }), dao::kErreurAucunEnregistrement);
    EXPECT_EQ(numeroErreur([&] { (void)jeu.texte("Titre"); }), dao::kErreurAucunEnregistrement);
    jeu.Move(-1);
    EXPECT_EQ(jeu.texte("Titre"), "Dune");
    jeu.Move(-100);
    EXPECT_FALSE(jeu.Eof());
    EXPECT_EQ(numeroErreur([&] { (void)jeu.texte("Titre"); }), dao::kErreurAucunEnregistrement);
    dao::Recordset vide = base.OpenRecordset("SELECT * FROM Films WHERE Titre = \"rien\"");
    EXPECT_TRUE(vide.Eof());
    EXPECT_EQ(numeroErreur([&] { vide.MoveFirst(); }), dao::kErreurAucunEnregistrement);
}

TEST_F(JeuxTest, ADeletedRowKeepsItsSlotAndItsIdIsNotGivenAgain) {
    dao::Recordset liste = base.OpenRecordset(kParTitre);
    dao::Recordset autre =
        base.OpenRecordset("SELECT * FROM films WHERE titre =\"dune\" and Realisateur =\"X\" ORDER BY Titre ASC ;");
    autre.Delete();
    essai.film("Nouveau", "x");  // would take the last row's id
    EXPECT_EQ(liste.RecordCount(), 4);
    liste.Move(3);
    EXPECT_EQ(numeroErreur([&] { (void)liste.texte("Titre"); }), dao::kErreurEnregistrementSupprime);
    EXPECT_EQ(numeroErreur([&] { (void)liste.vue(liste.colonne("Titre")); }), dao::kErreurEnregistrementSupprime);
    EXPECT_EQ(numeroErreur([&] { (void)liste.texte("Resume"); }), dao::kErreurEnregistrementSupprime);
    EXPECT_EQ(numeroErreur([&] { liste.Edit(); }), dao::kErreurEnregistrementSupprime);
    EXPECT_EQ(numeroErreur([&] { liste.Delete(); }), dao::kErreurEnregistrementSupprime);
    EXPECT_EQ(essai.lit(kParTitre), (Liste{"Avatar", "Brazil", "Casino", "Nouveau"}));
}

TEST_F(JeuxTest, KeptValuesFollowEveryonesUpdates) {
    dao::Recordset liste = base.OpenRecordset(kParTitre);
    dao::Recordset films = base.OpenRecordset("Films");
    films.Edit();
    films.Fields("titre") = "Zodiac";
    EXPECT_EQ(liste.texte("Titre"), "Avatar");
    EXPECT_EQ(films.texte("Titre"), "Zodiac");  // what is being written
    films.Update();
    EXPECT_EQ(liste.texte("Titre"), "Zodiac");
    EXPECT_EQ(liste.vue(liste.colonne("Titre")), "Zodiac");
    AutreProgramme(essai.chemin).execute("UPDATE Films SET Titre='Alien' WHERE id=1; DELETE FROM Films WHERE id=2");
    EXPECT_EQ(films.RecordCount(), 3);
    liste.MoveFirst();
    EXPECT_EQ(liste.texte("Titre"), "Alien");
    liste.MoveNext();
    EXPECT_EQ(numeroErreur([&] { (void)liste.texte("Titre"); }), dao::kErreurEnregistrementSupprime);
}

// Fields that the records do not carry are read ahead, for as many records as the walk is long.
TEST_F(JeuxTest, AWalkReadsAheadAndFollowsEveryChange) {
    base.Execute("DELETE FROM Films; DELETE FROM Personnel");
    {
        dao::Transaction transaction(base);
        for (int i = 100; i < 300; ++i) {
            const std::string n = std::to_string(i);
            essai.ajoute("Films", {{"Titre", n}, {"Realisateur", "x"}, {"Resume", i % 2 ? dao::Valeur() : "r" + n}});
            essai.ajoute("Personnel", {{"Titre2", n}, {"Realisateur2", "x"}, {"Divers", "d" + n}});
        }
        transaction.confirme();
    }
    dao::Recordset jeu = base.OpenRecordset(
        "SELECT * FROM Films INNER JOIN Personnel ON Films.Titre = Personnel.Titre2 and "
        "Films.realisateur=Personnel.realisateur2 ORDER BY titre2 asc ;");
    const dao::Colonne titre = jeu.colonne("Titre"), divers = jeu.colonne("Divers"), resume = jeu.colonne("Resume");
    for (int i = 100; i < 300; ++i, jeu.MoveNext()) {
        const std::string n = std::to_string(i);
        if (i == 252) {  // deleted below
            EXPECT_EQ(numeroErreur([&] { (void)jeu.vue(resume); }), dao::kErreurEnregistrementSupprime);
            continue;
        }
        EXPECT_EQ(jeu.vue(titre), n);
        EXPECT_EQ(jeu.vue(divers), i == 251 ? "ici" : "d" + n);
        EXPECT_EQ(jeu.vue(resume), i == 254 ? "ailleurs" : i % 2 ? "" : "r" + n);
        if (i != 250) continue;
        dao::Recordset autre = base.OpenRecordset("SELECT * FROM Personnel WHERE Titre2 = \"251\"");
        autre.Edit();
        autre.assigne("Divers", "ici");
        autre.Update();
        base.OpenRecordset("SELECT * FROM Films WHERE Titre = \"252\"").Delete();
        AutreProgramme(essai.chemin)
            .execute("UPDATE Films SET Resume = 'ailleurs' WHERE Titre = '254'");  // not locked out
        (void)jeu.RecordCount();  // the time at which other programs' changes are looked for
    }
    EXPECT_TRUE(jeu.Eof());
}

TEST_F(JeuxTest, TheSortedColumnMayBeEditedWhileWalking) {
    dao::Recordset liste = base.OpenRecordset("SELECT titre FROM films ORDER BY titre");
    for (; !liste.Eof(); liste.MoveNext()) {
        liste.Edit();
        liste.Fields("Titre") = std::string("z") + liste.texte("Titre");
        liste.Update();
    }
    EXPECT_EQ(essai.lit(kParTitre), (Liste{"zAvatar", "zBrazil", "zCasino", "zDune"}));
}

TEST_F(JeuxTest, UpdateWritesOnlyWhatWasAssigned) {
    dao::Recordset jeu = base.OpenRecordset(kParTitre);
    const auto octets = dao::Valeur::octets(std::string("STO\0\xff\xd8", 6));
    jeu.Edit();
    jeu.Fields("Affiche") = octets;
    jeu.Fields("Resume") = std::string_view("caf\xe9\0x", 6);  // no UTF-8, and a zero
    jeu.Fields("Note") = 7;
    AutreProgramme(essai.chemin).execute("UPDATE Films SET Genre='Drame'");
    jeu.Update();
    EXPECT_EQ(jeu.valeur("Affiche"), octets);
    EXPECT_EQ(jeu.texte("Resume"), std::string("caf\xe9\0x", 6));
    EXPECT_EQ(jeu.valeur("Note"), dao::Valeur(7));
    EXPECT_EQ(jeu.texte("Genre"), "Drame");
    EXPECT_TRUE(jeu.valeur("Annee").estNull());
    EXPECT_EQ(numeroErreur([&] { jeu.Update(); }), dao::kErreurEditSansEdition);
    EXPECT_EQ(numeroErreur([&] { jeu.Fields("Note") = 1; }), dao::kErreurEditSansEdition);
    jeu.Edit();
    EXPECT_EQ(numeroErreur([&] { jeu.Fields("Support") = "DVD"; }), dao::kErreurChampIntrouvable);
    jeu.Fields("Note") = dao::Valeur();
    jeu.MoveNext();  // leaves the edition
    EXPECT_EQ(numeroErreur([&] { jeu.Update(); }), dao::kErreurEditSansEdition);
    EXPECT_EQ(jeu.texte("Support"), "");
}

TEST_F(JeuxTest, ARowOfAJoinIsEditedThroughItsTables) {
    essai.possede("dune", "X");
    const std::string joint =
        "SELECT * FROM Films INNER JOIN Personnel ON Films.Titre = Personnel.Titre2 AND "
        "Films.realisateur=Personnel.realisateur2";
    dao::Recordset jeu = base.OpenRecordset(joint);
    jeu.Edit();
    jeu.Fields("Genre") = "SF";
    jeu.Fields("Support") = "DVD";
    jeu.Update();
    EXPECT_EQ(essai.lit("SELECT * FROM Films WHERE Genre = \"sf\""), Liste{"Dune"});
    EXPECT_EQ(essai.lit("SELECT * FROM Personnel WHERE Support = \"dvd\"", "Titre2"), Liste{"dune"});
    jeu.Delete();  // the holding; the catalogue keeps its film
    EXPECT_EQ(numeroErreur([&] { (void)jeu.texte("Titre"); }), dao::kErreurEnregistrementSupprime);
    EXPECT_EQ(base.OpenRecordset("Films").RecordCount(), 4);
    EXPECT_EQ(base.OpenRecordset("Personnel").RecordCount(), 0);
    EXPECT_EQ(base.OpenRecordset(joint).RecordCount(), 0);
}

TEST_F(JeuxTest, AddNewJoinsTheEndAndKeepsTheCurrentRecord) {
    dao::Recordset vivant = base.OpenRecordset("Films");
    dao::Recordset jeu = base.OpenRecordset("SELECT * FROM Films WHERE Titre = \"Eden\" AND Realisateur = \"x\"");
    jeu.AddNew();
    jeu.Fields("Titre") = "Eden";
    jeu.Fields("Realisateur") = "x";
    jeu.Update();
    EXPECT_EQ(jeu.RecordCount(), 1);
    jeu.MoveFirst();
    EXPECT_EQ(jeu.texte("Titre"), "Eden");
    EXPECT_EQ(vivant.RecordCount(), 5);
    EXPECT_EQ(vivant.texte("Titre"), "Avatar");
    vivant.Move(4);
    EXPECT_EQ(vivant.texte("Titre"), "Eden");
    vivant.Delete();
    EXPECT_EQ(numeroErreur([&] { (void)vivant.texte("Titre"); }), dao::kErreurEnregistrementSupprime);
    vivant.Move(-1);
    EXPECT_EQ(vivant.texte("Titre"), "Dune");
}

TEST_F(JeuxTest, DistinctRecordsCannotBeChanged) {
    dao::Recordset jeu = base.OpenRecordset("SELECT DISTINCT Titre FROM Films");
    EXPECT_EQ(numeroErreur([&] { jeu.Edit(); }), dao::kErreurNonModifiable);
    EXPECT_EQ(numeroErreur([&] { jeu.Delete(); }), dao::kErreurNonModifiable);
}

// The index in memory must follow additions, renames, deletions, rollbacks and other programs.
TEST_F(JeuxTest, LookUpsFollowEveryChange) {
    const auto trouve = [&](const std::string& titre) {
        return base
            .OpenRecordset("SELECT * FROM films WHERE titre =\"" + titre +
                           "\" and Realisateur =\"x\" ORDER BY Titre ASC ;")
            .RecordCount();
    };
    for (const char* table : {"Films", "Films", "Personnel"})
        base.prepareLesRecherches(table);
    EXPECT_EQ(numeroErreur([&] { base.prepareLesRecherches("Absente"); }), dao::kErreurTableIntrouvable);
    EXPECT_EQ(trouve("dune"), 1);
    essai.film("Eden", "X");
    EXPECT_EQ(trouve("EDEN"), 1);
    dao::Recordset films = base.OpenRecordset("Films");
    films.Edit();
    films.Fields("Titre") = "Alien";
    films.Update();
    EXPECT_EQ(trouve("avatar"), 0);
    EXPECT_EQ(trouve("alien"), 1);
    dao::Recordset liste = base.OpenRecordset("SELECT * FROM Films");
    {
        const dao::Transaction transaction(base);
        films.Delete();
        EXPECT_EQ(numeroErreur([&] { (void)liste.texte("Titre"); }), dao::kErreurEnregistrementSupprime);
        essai.film("Fargo", "x");
        EXPECT_EQ(trouve("alien"), 0);
        EXPECT_EQ(trouve("fargo"), 1);
        EXPECT_EQ(films.RecordCount(), 5);
    }
    EXPECT_EQ(trouve("alien"), 1);
    EXPECT_EQ(trouve("fargo"), 0);
    EXPECT_EQ(films.RecordCount(), 5);
    EXPECT_EQ(films.texte("Titre"), "Alien");
    EXPECT_EQ(liste.texte("Titre"), "Alien");
    AutreProgramme(essai.chemin).execute("UPDATE Films SET Titre='Gilda' WHERE id=1");
    EXPECT_EQ(trouve("alien"), 0);
    EXPECT_EQ(trouve("gilda"), 1);
    dao::Transaction transaction(base);
    for (int i = 0; i < 300; ++i)
        essai.film("Film " + std::to_string(i), "x");  // it grows
    for (int i = 0; i < 300; ++i)
        ASSERT_EQ(trouve("film " + std::to_string(i)), 1);
}

// The keys are the program's to name; without them rows are found all the same.
TEST(Cles, AreThoseThatWereDeclared) {
    const doubles::DossierTemporaire dossier;
    dao::DBEngine::CreateDatabase(
        dossier.chemin("livres.mdb"),
        "CREATE TABLE Livres (id INTEGER PRIMARY KEY, Nom TEXT, Auteur TEXT, Genre TEXT);"
        "INSERT INTO Livres VALUES (1,'Nana','Zola','a'),(2,'Iliade',NULL,'a'),(3,'nana','zola ','a'),"
        "(4,'Aube','x','a')");
    for (const bool declarees : {false, true}) {
        dao::Database base = dao::DBEngine::OpenDatabase(dossier.chemin("livres.mdb"));
        if (declarees) base.declareCles({{"nom", "AUTEUR"}, {"Titre", "Realisateur"}});
        const auto lus = [&](const std::string& clauses) {
            Liste ids;
            for (dao::Recordset jeu = base.OpenRecordset("SELECT * FROM Livres " + clauses); !jeu.Eof(); jeu.MoveNext())
                ids.push_back(jeu.texte("id"));
            return ids;
        };
        EXPECT_EQ(lus("WHERE Nom=\"NANA\" AND Auteur=\"Zola\""), (Liste{"1", "3"}));
        EXPECT_EQ(lus("WHERE Nom=\"iliade\" AND Auteur=\"\""), declarees ? Liste{"2"} : Liste{});
        EXPECT_EQ(lus("ORDER BY Genre"), declarees ? (Liste{"4", "2", "1", "3"}) : (Liste{"1", "2", "3", "4"}));
    }
}

TEST_F(JeuxTest, AFullDiskUndoesTheWholeTransaction) {
    base.Execute("PRAGMA max_page_count=12");
    dao::Recordset films = base.OpenRecordset("Films");
    EXPECT_EQ(films.RecordCount(), 4);
    {
        dao::Transaction transaction(base);
        essai.film("Eden", "x");
        films.Edit();
        films.Fields("Resume") = std::string(100000, 'r');
        EXPECT_EQ(numeroErreur([&] { films.Update(); }), dao::kErreurDisque);
    }
    EXPECT_FALSE(base.enTransaction());
    EXPECT_EQ(films.RecordCount(), 4);
    EXPECT_EQ(essai.lit(kParTitre), (Liste{"Avatar", "Brazil", "Casino", "Dune"}));
    EXPECT_EQ(numeroErreur([&] { films.Update(); }), dao::kErreurDisque);  // alone too
    EXPECT_TRUE(films.valeur("Annee").estNull());
    base.Execute("PRAGMA max_page_count=1000000");
    films.Update();
    EXPECT_EQ(films.texte("Resume").size(), 100000U);
}

TEST_F(JeuxTest, ClosedObjectsSaySo) {
    dao::Recordset jeu = base.OpenRecordset(kParTitre);
    dao::Recordset ferme = base.OpenRecordset("Films");
    ferme.Close();
    ferme.Close();
    EXPECT_EQ(numeroErreur([&] { ferme.MoveFirst(); }), dao::kErreurObjetFerme);
    base.Close();
    base.Close();
    EXPECT_EQ(numeroErreur([&] { (void)jeu.texte("Titre"); }), dao::kErreurObjetFerme);
    EXPECT_EQ(numeroErreur([&] { (void)jeu.RecordCount(); }), dao::kErreurObjetFerme);
    EXPECT_EQ(numeroErreur([&] { (void)base.OpenRecordset("Films"); }), dao::kErreurObjetFerme);
}

TEST(Valeur, NumbersReadAndWritePlainly) {
    for (const auto& [reel, texte] : {std::pair(7., "7"), {7.5, "7.5"}, {-0.0, "0"}, {0.1, "0.1"}, {1e6, "1000000"}})
        EXPECT_EQ(dao::Valeur(reel).texte(), texte);
    for (const auto& [texte, reel] : {std::pair("7/10", 7.),
                                      {" 12 px", 12},
                                      {"-3.5", -3.5},
                                      {"+2", 2},
                                      {"", 0},
                                      {"inf", 0},
                                      {"nan", 0},
                                      {"x", 0},
                                      {".5", 0.5}})
        EXPECT_EQ(dao::Valeur(texte).nombre(), reel) << texte;
}

TEST_F(JeuxTest, HandsEveryRowOverWithoutKeepingIt) {
    base.Execute(
        "DELETE FROM Films WHERE Titre='Brazil'; UPDATE Films SET Realisateur=NULL, Note=7 WHERE Titre='Dune'");
    static constexpr std::array<std::string_view, 3> kColonnes{"titre", "Realisateur", "Note"};
    Liste lus;
    base.parcourt("Films", kColonnes, [&](long long id, std::span<const std::string_view> textes) {
        std::string ligne = std::to_string(id);
        for (const std::string_view texte : textes)
            ligne.append("|").append(texte);
        lus.push_back(ligne);
    });
    std::ranges::sort(lus);
    EXPECT_EQ(lus, (Liste{"1|Avatar|x|", "3|Casino|x|", "4|Dune||7"}));
    static constexpr std::array<std::string_view, 1> kInconnue{"Nulle part"};
    EXPECT_EQ(numeroErreur([&] { base.parcourt("Films", kInconnue, [](auto, auto) {}); }), dao::kErreurParametre);
}

TEST_F(JeuxTest, BreathesAmidRowsThatItHandsOverOrLeavesOut) {
    base.Execute(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<2000) "
        "INSERT INTO Films(Titre) SELECT i FROM n");
    dao::Recordset films = base.OpenRecordset(kParTitre);
    unsigned souffles = 0;
    base.respireAvec([&] {
        films.MoveFirst();
        ++souffles;
        EXPECT_FALSE(films.texte("Titre").empty());  // what is painted may read the base
    });
    for (const char* condition : {"Affiche LIKE 'STO*'", "Titre='nulle part'"}) {
        souffles = 0;
        EXPECT_TRUE(base.OpenRecordset(std::string("SELECT * FROM Films WHERE ") + condition).Eof()) << condition;
        EXPECT_GE(souffles, 2000 / dao::Cadence::kLignes) << condition;
    }
    unsigned depuis = 0, auPlus = 0;
    base.respireAvec([&depuis] { depuis = 0; });
    static constexpr std::array<std::string_view, 1> kColonnes{"Titre"};
    base.parcourt("Films", kColonnes, [&](auto, auto) { auPlus = std::max(auPlus, ++depuis); });
    EXPECT_EQ(auPlus, dao::Cadence::kLignes);
}
