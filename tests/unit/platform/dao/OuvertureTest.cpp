#include "BaseDEssai.h"
#include "doubles/DossierTemporaire.h"
#include "doubles/Mort.h"
#include "doubles/SansPrivileges.h"
#include "platform/dao/Copie.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <numeric>

#include <sys/stat.h>

namespace {

using essais::AutreProgramme;
using essais::BaseDEssai;
using essais::numeroErreur;
namespace fs = std::filesystem;

std::string octetsDe(const std::string& chemin) {
    std::ifstream fichier(chemin, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichier), {}};
}

int numeroDOuverture(const std::string& chemin) {
    return numeroErreur([&] { (void)dao::DBEngine::OpenDatabase(chemin); });
}

int sansDroits(const std::function<int()>& action) {
    const doubles::SansPrivileges ordinaire;
    return action();
}

}  // namespace

TEST(Ouverture, TellsFilesThatAreNoBaseAndLeavesThemAlone) {
    BaseDEssai essai;
    essai.film("Dune", "x");
    essai.base.Close();
    const std::string base = octetsDe(essai.chemin);
    EXPECT_EQ(numeroDOuverture(essai.dossier.chemin("absent.mdb")), dao::kErreurFichierIntrouvable);
    EXPECT_FALSE(essai.dossier.existe("absent.mdb"));
    ASSERT_EQ(mkfifo(essai.dossier.chemin("tube.mdb").c_str(), 0600), 0);
    for (const std::string& autre :
         {essai.dossier.chemin(), essai.dossier.chemin("tube.mdb"), std::string("/dev/zero"), std::string("/dev/tty")})
        EXPECT_EQ(numeroDOuverture(autre), dao::kErreurFormat) << autre;
    std::string autreProgramme = base;
    autreProgramme[70] = 'Z';  // the application id
    std::string demiSchema = base;
    demiSchema.replace(100, 3000, 3000, '\x7f');
    for (const std::string& contenu :
         {std::string(), std::string("SQLite format 3"), std::string(5000, 'x'), base.substr(0, 50),
          base.substr(0, base.size() / 2), base.substr(0, base.size() - 1), autreProgramme, demiSchema,
          std::string("SQLite format 3\0", 16) + std::string(4096, '\xff')}) {
        const std::string chemin = essai.dossier.ecrit("autre.mdb", contenu);
        EXPECT_EQ(numeroDOuverture(chemin), dao::kErreurFormat) << contenu.size();
        EXPECT_EQ(octetsDe(chemin), contenu);
    }
    EXPECT_EQ(numeroDOuverture(essai.chemin), 0);
    EXPECT_EQ(octetsDe(essai.chemin), base) << "opening changes nothing";
}

TEST(Ouverture, TellsALockedBaseFromAReadOnlyOne) {
    BaseDEssai essai;
    essai.base.Close();
    AutreProgramme autre(essai.chemin);
    autre.execute("BEGIN EXCLUSIVE");
    EXPECT_EQ(numeroDOuverture(essai.chemin), dao::kErreurFichierDejaUtilise);
    autre.execute("ROLLBACK");
    const std::string dossier = essai.dossier.chemin();
    fs::permissions(dossier, fs::perms(0777));
    fs::permissions(essai.chemin, fs::perms(0666));
    EXPECT_EQ(sansDroits([&] { return numeroDOuverture(essai.chemin); }), 0);
    fs::permissions(essai.chemin, fs::perms(0444));
    EXPECT_EQ(sansDroits([&] { return numeroDOuverture(essai.chemin); }), dao::kErreurLectureSeule);
    fs::permissions(essai.chemin, fs::perms(0666));
    fs::permissions(dossier, fs::perms(0555));
    EXPECT_EQ(sansDroits([&] { return numeroDOuverture(essai.chemin); }), dao::kErreurLectureSeule);
}

TEST(Ouverture, ALockTakenLaterIsToldAndStopsTheUpdateAlone) {
    BaseDEssai essai;
    essai.film("Dune", "x");
    dao::Recordset films = essai.base.OpenRecordset("Films");
    AutreProgramme autre(essai.chemin);
    autre.execute("BEGIN IMMEDIATE");
    films.Edit();
    films.Fields("Genre") = "SF";
    EXPECT_EQ(numeroErreur([&] { films.Update(); }), dao::kErreurVerrouille);
    EXPECT_EQ(numeroErreur([&] { essai.base.BeginTrans(); }), dao::kErreurVerrouille);
    autre.execute("ROLLBACK");
    films.Update();  // the edition was kept
    EXPECT_EQ(essai.lit("SELECT * FROM Films", "Genre"), std::vector<std::string>{"SF"});
    autre.execute("BEGIN EXCLUSIVE");
    try {
        (void)essai.base.OpenRecordset("SELECT * FROM Films ORDER BY Titre ASC");
        ADD_FAILURE() << "nothing was thrown";
    } catch (const dao::ErreurDao& erreur) {
        EXPECT_EQ(erreur.numero, dao::kErreurLectureVerrouillee);
        EXPECT_EQ(erreur.description, "Lecture impossible : la base est verrouillée par un autre programme.");
    }
    autre.execute("ROLLBACK");
    EXPECT_EQ(films.texte("Titre"), "Dune");
}

// A file that nobody else sees any more is neither read nor written, and not called read-only.
TEST(Ouverture, ABaseThatLeftItsPlaceIsToldAndComesBack) {
    BaseDEssai essai;
    essai.film("Dune", "x");
    dao::Recordset films = essai.base.OpenRecordset("Films");
    EXPECT_EQ(essai.base.emplacement(), dao::Emplacement::EnPlace);
    const std::string ailleurs = essai.dossier.chemin("ailleurs.mdb");
    const auto chaqueAppel = [&] {
        return std::array{numeroErreur([&] { (void)essai.base.OpenRecordset("SELECT * FROM Films"); }),
                          numeroErreur([&] { films.MoveFirst(); }), numeroErreur([&] { essai.base.BeginTrans(); }),
                          numeroErreur([&] {
                              films.Edit();
                              films.assigne("Genre", "SF");
                              films.Update();
                          })};
    };
    constexpr int kAbsente = dao::kErreurFichierIntrouvable;
    constexpr std::array kTous{kAbsente, kAbsente, kAbsente, kAbsente};
    fs::rename(essai.chemin, ailleurs);
    EXPECT_EQ(essai.base.emplacement(), dao::Emplacement::Absente);
    EXPECT_EQ(chaqueAppel(), kTous);
    fs::copy_file(ailleurs, essai.chemin);
    EXPECT_EQ(essai.base.emplacement(), dao::Emplacement::Remplacee);
    EXPECT_EQ(chaqueAppel(), kTous);
    fs::rename(ailleurs, essai.chemin);
    EXPECT_EQ(chaqueAppel()[0], 0);
    EXPECT_EQ(essai.lit("SELECT * FROM Films"), std::vector<std::string>{"Dune"});
}

TEST(Ouverture, RowsAreFoundByAKeyThatNoColumnHides) {
    constexpr const char* kCachees = "rowid TEXT, _rowid_ TEXT, oid TEXT, Titre TEXT, Realisateur TEXT";
    struct Cas {
        std::string colonnes;
        bool acceptee;
    };
    for (const Cas& cas :
         {Cas{std::string("Cle INTEGER PRIMARY KEY, ") + kCachees, true}, Cas{kCachees, false},
          Cas{std::string("Cle TEXT PRIMARY KEY, ") + kCachees, false},
          Cas{std::string("Cle INTEGER PRIMARY KEY DESC, ") + kCachees, false},
          Cas{std::string("Cle INTEGER, Autre INTEGER, ") + kCachees + ", PRIMARY KEY (Cle, Autre)", false},
          Cas{"ROWID INTEGER PRIMARY KEY, _rowid_ TEXT, oid TEXT, Titre TEXT, Realisateur TEXT", true}}) {
        doubles::DossierTemporaire dossier;
        dao::DBEngine::CreateDatabase(dossier.chemin("b.mdb"), "CREATE TABLE Films (" + cas.colonnes + ")");
        dao::Database base = dao::DBEngine::OpenDatabase(dossier.chemin("b.mdb"));
        base.Execute("INSERT INTO Films (Titre, _rowid_, oid) VALUES ('Dune', 'x', 'x'), ('Alien', 'x', 'x')");
        if (!cas.acceptee) {
            EXPECT_EQ(numeroErreur([&] { (void)base.OpenRecordset("Films"); }), dao::kErreurFormat) << cas.colonnes;
            continue;
        }
        dao::Recordset films = base.OpenRecordset("SELECT * FROM Films WHERE titre =\"Dune\"");
        films.Delete();
        dao::Recordset restants = base.OpenRecordset("Films");
        ASSERT_EQ(restants.RecordCount(), 1) << cas.colonnes;
        EXPECT_EQ(restants.texte("Titre"), "Alien");
        restants.AddNew();
        restants.assigne("Titre", "Brazil");
        restants.Update();
        EXPECT_EQ(base.OpenRecordset("SELECT * FROM Films ORDER BY Titre").RecordCount(), 2);
    }
}

TEST(Ouverture, AKilledProgramLeavesTheOldState) {
    BaseDEssai essai;
    essai.film("Dune", "x");
    essai.base.Close();
    EXPECT_TRUE(doubles::meurtEnRoute([&] {
        dao::Database base = dao::DBEngine::OpenDatabase(essai.chemin);
        base.Execute("PRAGMA cache_size=5");  // so that pages reach the file before the end
        base.BeginTrans();
        dao::Recordset films = base.OpenRecordset("Films");
        films.Edit();
        films.Fields("Titre") = "Alien";
        films.Update();
        for (int i = 0; i < 200; ++i) {
            films.AddNew();
            films.Fields("Titre") = "Film";
            films.Fields("Resume") = std::string(2000, 'r');
            films.Update();
        }
        doubles::meurs();
    }));
    EXPECT_TRUE(essai.dossier.existe("films.mdb-journal"));
    essai.ouvre();
    EXPECT_EQ(essai.lit("SELECT * FROM Films"), std::vector<std::string>{"Dune"});
    EXPECT_FALSE(essai.dossier.existe("films.mdb-journal"));
}

TEST(Ouverture, WhatTheFileHoldsDoesNotActByItself) {
    BaseDEssai essai;
    essai.base.Execute(
        "CREATE TRIGGER t AFTER UPDATE ON Films BEGIN DELETE FROM Personnel; END;"
        "CREATE VIEW Vue AS SELECT * FROM Films");
    essai.film("Dune", "x");
    essai.possede("Dune", "x");
    dao::Recordset films = essai.base.OpenRecordset("Films");
    films.Edit();
    films.Fields("Genre") = "SF";
    films.Update();
    EXPECT_EQ(essai.base.OpenRecordset("Personnel").RecordCount(), 1);
    EXPECT_EQ(numeroErreur([&] { (void)essai.base.OpenRecordset("Vue"); }), dao::kErreurTableIntrouvable);
}

TEST(Ouverture, ABaseAndItsCopyAreAsPrivateAsTheUserWants) {
    const doubles::DossierTemporaire dossier;
    const mode_t avant = umask(077);
    dao::DBEngine::CreateDatabase(dossier.chemin("b.mdb"), essais::kSchema);
    umask(avant);
    dao::DBEngine::CompactDatabase(dossier.chemin("b.mdb"), dossier.chemin("copie.mdb"));
    for (const char* nom : {"b.mdb", "copie.mdb"})
        EXPECT_EQ(fs::status(dossier.chemin(nom)).permissions() & fs::perms(077), fs::perms::none) << nom;
}

// The window reads the base while it is compacted, and another program may: what it stores meanwhile is not lost.
TEST(Ouverture, ACompactionLetsOthersReadAndGivesUpWhereTheyWrote) {
    BaseDEssai essai;
    essai.film("Dune", "x");
    const std::string copie = essai.dossier.chemin("copie.mdb");
    AutreProgramme autre(essai.chemin);
    int remplacements = 0;
    const auto compacte = [&](const char* pendant) {
        dao::DBEngine::CompactDatabase(
            essai.chemin, copie,
            [&] {
                ++remplacements;
                EXPECT_EQ(autre.essaie("BEGIN IMMEDIATE"), SQLITE_BUSY);
            },
            [&](const std::function<void()>& travail) {
                EXPECT_EQ(essai.lit("SELECT * FROM Films"), std::vector<std::string>{"Dune"});
                travail();
                autre.execute(pendant);
            });
    };
    compacte("");
    EXPECT_EQ(remplacements, 1);
    EXPECT_TRUE(fs::remove(copie));
    EXPECT_EQ(numeroErreur([&] { compacte("UPDATE Films SET Titre='Dune 2'"); }), dao::kErreurVerrouille);
    EXPECT_EQ(remplacements, 1);
    EXPECT_FALSE(fs::exists(copie));
    EXPECT_EQ(essai.lit("SELECT * FROM Films"), std::vector<std::string>{"Dune 2"});
}

// What stands beside the base came with it. SQLite rolls a journal back, then deletes the file that its end names.
TEST(Ouverture, NoJournalLeadsToAnotherFile) {
    BaseDEssai essai;
    essai.film("Dune", "x");
    essai.base.Close();
    const std::string base = octetsDe(essai.chemin), victime = essai.dossier.ecrit("victime.txt", "victime");
    const auto entier = [](std::size_t valeur) {
        std::string octets;
        for (int bits = 24; bits >= 0; bits -= 8)
            octets += static_cast<char>(valeur >> bits & 0xFF);
        return octets;
    };
    const std::string marque = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";
    constexpr std::size_t kPage = 4096;
    std::string tete = marque + entier(0) + entier(0) + entier(base.size() / kPage) + entier(512) + entier(kPage);
    tete.resize(512);
    const auto somme = std::accumulate(victime.begin(), victime.end(), std::size_t{0});
    essai.dossier.ecrit("films.mdb-journal", tete + entier(0x40000000 / kPage + 1) + victime + entier(victime.size()) +
                                                 entier(somme) + marque);
    EXPECT_EQ(numeroDOuverture(essai.chemin), dao::kErreurFormat);
    EXPECT_TRUE(fs::exists(victime));
    const std::string journal = essai.dossier.chemin("films.mdb-journal");
    fs::remove(journal);
    fs::create_symlink(essai.dossier.chemin("neuf"), journal);
    EXPECT_EQ(numeroDOuverture(essai.chemin), dao::kErreurFormat);
    fs::remove(journal);
    ASSERT_EQ(mkfifo(journal.c_str(), 0600), 0);
    EXPECT_EQ(numeroDOuverture(essai.chemin), dao::kErreurFormat);
    EXPECT_EQ(numeroErreur([&] { (void)dao::DBEngine::contenuDe(essai.chemin); }), dao::kErreurFormat)
        << "a safety copy that came from elsewhere";
    fs::remove(journal);
    essai.dossier.ecrit("films.mdb-journal", tete);
    EXPECT_EQ(numeroDOuverture(essai.chemin), 0) << "one that a killed program left";
    EXPECT_EQ(octetsDe(essai.chemin), base);
    EXPECT_FALSE(essai.dossier.existe("neuf"));
}

// Views are never looked into: the columns of this one take hours to work out.
TEST(Ouverture, AViewOfManyMirrorsHoldsNobodyUp) {
    BaseDEssai essai;
    std::string vue = "CREATE VIEW Vue AS WITH c0(x) AS (SELECT 1)";
    for (int i = 1; i < 40; ++i) {
        const std::string avant = "SELECT * FROM c" + std::to_string(i - 1);
        vue += ", c" + std::to_string(i) + " AS (" + avant + " UNION ALL " + avant + ")";
    }
    essai.base.Execute(vue + " SELECT * FROM c39");
    essai.film("Dune", "x");
    essai.base = dao::DBEngine::OpenDatabase(essai.chemin);
    EXPECT_EQ(essai.lit("SELECT * FROM Films"), std::vector<std::string>{"Dune"});
    essai.base.Close();
    dao::DBEngine::CompactDatabase(essai.chemin, essai.dossier.chemin("copie.mdb"));
    EXPECT_EQ(numeroDOuverture(essai.dossier.chemin("copie.mdb")), 0);
}

TEST(Ouverture, CreateRefusesAnExistingFile) {
    BaseDEssai essai;
    EXPECT_EQ(numeroErreur([&] { dao::DBEngine::CreateDatabase(essai.chemin, essais::kSchema); }),
              dao::kErreurFichierExiste);
    const std::string autre = essai.dossier.chemin("autre.mdb");
    EXPECT_NE(numeroErreur([&] { dao::DBEngine::CreateDatabase(autre, "CREATE TABLE Films ("); }), 0);
    EXPECT_FALSE(fs::exists(autre));
}

// Posters are read when `Affiche` is asked for, and never before: not by a listing, not by a search, not to tell their kind.
TEST(Ouverture, ListingsReadNoPoster) {
    BaseDEssai essai;
    constexpr int kFilms = 100;
    constexpr std::size_t kTailleAffiche = 200000;
    {
        dao::Transaction transaction(essai.base);
        for (int i = 0; i < kFilms; ++i) {
            essai.ajoute("Films", {{"Titre", "Film " + std::to_string(i)},
                                   {"Realisateur", "x"},
                                   {"Acteurs", "Bleu"},
                                   {"Affiche", dao::Valeur::octets("STO" + std::string(kTailleAffiche, '\xff'))}});
            essai.possede("Film " + std::to_string(i), "x");
        }
        transaction.confirme();
    }
    essai.base = {};
    essai.ouvre();
    const auto octetsLus = [] {
        std::ifstream io("/proc/self/io");
        std::string nom;
        long long nombre = 0;
        io >> nom >> nombre;  // rchar
        return nombre;
    };
    for (const std::string enonce :
         {"SELECT * FROM Films ORDER BY Titre ASC",
          "SELECT * FROM Films WHERE INSTR(Titre, \"bleu\")+INSTR(Acteurs, \"bleu\")>0 ORDER BY Titre ASC",
          "SELECT * FROM Films INNER JOIN Personnel ON Films.Titre = Personnel.Titre2 AND "
          "Films.realisateur=Personnel.realisateur2 ORDER BY Genre ASC, Titre2 ASC",
          "SELECT titre FROM films where Affiche like 'STO*' order by titre"}) {
        const long long avant = octetsLus();
        EXPECT_EQ(essai.lit(enonce).size(), static_cast<std::size_t>(kFilms));
        EXPECT_LT(octetsLus() - avant, 2'000'000) << enonce;  // the posters are 20 MB
    }
    EXPECT_EQ(essai.base.OpenRecordset("Films").texte("Affiche").size(), kTailleAffiche + 3);
}
