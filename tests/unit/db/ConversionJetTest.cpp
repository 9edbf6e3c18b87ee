#include "db/ConversionJet.h"
#include "doubles/CollectionJet.h"
#include "doubles/DossierTemporaire.h"
#include "doubles/EcranMuet.h"
#include "platform/dao/DBEngine.h"

#include <filesystem>
#include <map>

#include <glib.h>
#include <gmock/gmock.h>
#include <sqlite3.h>

namespace {

namespace fs = std::filesystem;
using ::testing::ContainerEq;

// The fields of a row by their names; nothing for Null. A poster is "STO <bytes> <sha256>".
using LigneJson = std::map<std::string, std::optional<std::string>>;

// The rows that a table of real data is said to hold, in their order. Throws when the file cannot be understood.
std::vector<LigneJson> litCollection(const std::string& chemin, const std::string& table) {
    std::ifstream flux(chemin, std::ios::binary);
    const std::string json{std::istreambuf_iterator<char>(flux), {}};
    sqlite3* base = nullptr;
    sqlite3_stmt* lignes = nullptr;
    sqlite3_open(":memory:", &base);
    sqlite3_prepare_v2(
        base,
        "SELECT l.key, c.key, CASE c.type WHEN 'object' THEN json_extract(c.value, '$.prefixe') || ' ' ||"
        " json_extract(c.value, '$.octets') || ' ' || json_extract(c.value, '$.sha256') ELSE c.value END"
        " FROM json_each(?1, '$.' || ?2) AS l, json_each(l.value) AS c ORDER BY l.key",
        -1, &lignes, nullptr);
    sqlite3_bind_text(lignes, 1, json.data(), static_cast<int>(json.size()), SQLITE_STATIC);
    sqlite3_bind_text(lignes, 2, table.data(), static_cast<int>(table.size()), SQLITE_STATIC);
    const auto texte = [lignes](int colonne) {
        const auto* octets = reinterpret_cast<const char*>(sqlite3_column_text(lignes, colonne));
        return octets ? std::optional(std::string(octets, sqlite3_column_bytes(lignes, colonne))) : std::nullopt;
    };
    std::vector<LigneJson> resultat;
    int etat = SQLITE_ROW;
    while ((etat = sqlite3_step(lignes)) == SQLITE_ROW) {
        resultat.resize(sqlite3_column_int64(lignes, 0) + 1);
        resultat.back()[texte(1).value_or("")] = texte(2);
    }
    sqlite3_finalize(lignes);
    sqlite3_close(base);
    if (etat != SQLITE_DONE) throw std::runtime_error("not understood: " + chemin);
    return resultat;
}

// A value in the form in which the real data tell it.
std::string enJson(const std::string& champ, const dao::Valeur& valeur) {
    if (champ != "Affiche" || !valeur.estOctets()) return valeur.texte();
    const std::string octets = valeur.texte().substr(3);
    char* somme =
        g_compute_checksum_for_data(G_CHECKSUM_SHA256, reinterpret_cast<const guchar*>(octets.data()), octets.size());
    const std::string texte = valeur.texte().substr(0, 3) + " " + std::to_string(octets.size()) + " " + somme;
    g_free(somme);
    return texte;
}

// The same fields as those rows.
std::vector<LigneJson> litTable(dao::Database& base, const std::string& table, const std::vector<LigneJson>& modele) {
    std::vector<LigneJson> lignes;
    for (dao::Recordset lues = base.OpenRecordset(table); !lues.Eof(); lues.MoveNext()) {
        LigneJson& ligne = lignes.emplace_back();
        for (const auto& [champ, attendue] : modele.at(0)) {
            const dao::Valeur valeur = lues.valeur(champ);
            ligne[champ] = valeur.estNull() ? std::nullopt : std::optional(enJson(champ, valeur));
        }
    }
    return lignes;
}

class ConversionJetTest : public ::testing::Test {
  protected:
    doubles::DossierTemporaire dossier;
    doubles::EcranMuet ecran;
    ecran::Progression progression;
    db::ConversionJet convertit{progression, ecran};

    // A base made of these bytes.
    db::IssueJet convertitOctets(const std::string& octets) {
        return convertit(dossier.ecrit("jet.mdb", octets), dossier.chemin("neuve.mdb"));
    }
};

TEST_F(ConversionJetTest, EveryFieldOfEveryRealBaseIsCarriedExactly) {
    const auto bases = doubles::basesJetReelles();
    if (bases.empty()) GTEST_SKIP() << "no real data";
    for (const fs::path& reelle : bases) {
        SCOPED_TRACE(reelle.filename().string());
        const db::IssueJet issue = convertit(reelle, dossier.chemin("neuve.mdb"));
        ASSERT_TRUE(issue.estFaite()) << issue.echec.value_or("");
        dao::Database base = dao::DBEngine::OpenDatabase(dossier.chemin("neuve.mdb"));
        for (const char* table : {"Films", "Personnel"}) {
            const auto attendues = litCollection(fs::path(reelle).replace_extension("json"), table);
            const auto lues = litTable(base, table, attendues);
            ASSERT_EQ(lues.size(), attendues.size()) << table;
            for (std::size_t i = 0; i < lues.size(); ++i)
                EXPECT_THAT(lues[i], ContainerEq(attendues[i])) << table << " " << i;
        }
        for (dao::Recordset films = base.OpenRecordset("Films"); !films.Eof(); films.MoveNext())
            EXPECT_TRUE(films.valeur("Note").estNull() || films.valeur("Note").estNombre()) << films.texte("Titre");
        base.Close();
        fs::remove(dossier.chemin("neuve.mdb"));
    }
    EXPECT_EQ(bases.size(), 8U);
    EXPECT_EQ(progression.Value, progression.Max);
    EXPECT_EQ(ecran.soufflesHorsTravail, 0);
}

TEST_F(ConversionJetTest, NullsNumbersPostersAndPathsAreWhatTheyWere) {
    const db::IssueJet issue = convertitOctets(doubles::collectionJet(3, 230001).octets());
    EXPECT_EQ(issue.rapport.texte(),
              "3 films, 2 possessions, 3 affiches dans la base.\nTable non reprise : Notes diverses.\n"
              "Champ non repris : Films.Format.");
    dao::Database base = dao::DBEngine::OpenDatabase(dossier.chemin("neuve.mdb"));
    dao::Recordset films = base.OpenRecordset("Films");
    films.Move(2);
    EXPECT_EQ(films.valeur("Affiche"), dao::Valeur::octets("STO" + doubles::imageJet(2, 230001)));
    EXPECT_EQ(films.texte("Resume"), std::string(5000, 'r') + " L'œuvre \"Été 2\"\r\nfin");
    EXPECT_EQ(films.valeur("Note"), dao::Valeur(7));
    EXPECT_EQ(films.valeur("Acteurs"), dao::Valeur(""));
    EXPECT_TRUE(films.valeur("Production").estNull());
    EXPECT_EQ(base.OpenRecordset("Personnel").texte("Fichier1"), "D:\\Films\\été.avi");
}

TEST_F(ConversionJetTest, WhatIsMissingIsNamedAndNothingIsLeft) {
    doubles::BaseJet sansTable;
    sansTable.table("Films", {{"Titre"}});
    doubles::BaseJet sansLignes = doubles::collectionJet(3);
    sansLignes.lignesDeclarees = 4;
    doubles::BaseJet sansChamp = sansTable;
    sansChamp.table("Personnel", {{"Titre2"}});
    const std::vector<std::pair<doubles::BaseJet, std::string>> cas{
        {sansLignes, "La table « Films » est incomplète : 3 lignes lues sur 4 annoncées."},
        {sansChamp, "Le champ « Realisateur » manque dans la table « Films »."},
        {doubles::BaseJet(), "La table « Films » manque."}};
    for (const auto& [base, raison] : cas) {
        EXPECT_EQ(convertitOctets(base.octets()).echec, raison);
        EXPECT_FALSE(dossier.existe("neuve.mdb")) << raison;
    }
}

// One breath in the middle of the copying, one in the middle of the reading back.
TEST_F(ConversionJetTest, StoppedAnywhereItLeavesNothing) {
    for (const int souffle : {20, 50}) {
        ecran.souffles = 0;
        ecran.arretApres = souffle;
        const db::IssueJet issue = convertitOctets(doubles::collectionJet(30).octets());
        EXPECT_TRUE(issue.interrompu);
        EXPECT_EQ(ecran.souffles, souffle);
        EXPECT_FALSE(dossier.existe("neuve.mdb"));
    }
}

TEST_F(ConversionJetTest, ABaseThatChangesMeanwhileIsNotWhatWasRead) {
    ecran.pendantSouffle = [this] { fs::last_write_time(dossier.chemin("jet.mdb"), fs::file_time_type::clock::now()); };
    EXPECT_EQ(convertitOctets(doubles::collectionJet(3).octets()).echec,
              "Un autre programme a modifié la base pendant sa lecture.");
    EXPECT_FALSE(dossier.existe("neuve.mdb"));
}

}  // namespace
