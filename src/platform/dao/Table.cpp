#include "platform/dao/Table.h"

#include "platform/dao/Connexion.h"
#include "platform/dao/Erreurs.h"
#include "util/Ascii.h"
#include "util/Sql.h"

#include <optional>
#include <utility>

namespace dao::interne {

namespace {

bool estNumerique(std::string_view typeEnCapitales) {
    for (const std::string_view mot : {"INT", "REAL", "FLOA", "DOUB", "NUM", "DEC", "BYTE", "SINGLE"}) {
        if (typeEnCapitales.find(mot) != std::string_view::npos) return true;
    }
    return false;
}

// A column that bears a name of the row id hides it. Where all of them do, rows could be taken for each other.
std::string nomDeLigne(Connexion& connexion, const Table& table) {
    for (const std::string_view nom : {"rowid", "_rowid_", "oid"}) {
        if (!table.rang(nom)) return std::string(nom);
    }
    if (const auto cle = cleEntiere(connexion, table.nom)) return util::entreGuillemets(*cle);
    jette(kErreurFormat, "Les lignes de la table « " + table.nom +
                             " » ne peuvent pas être distinguées : ses colonnes « rowid », « _rowid_ » et « oid » "
                             "cachent leur numéro, et elle n'a pas de clé primaire entière.");
}

}  // namespace

std::optional<std::string> cleEntiere(Connexion& connexion, const std::string& table) {
    Requete colonnes = connexion.prepare("SELECT name, upper(type) FROM pragma_table_info(?1) WHERE pk<>0");
    colonnes.lie(1, Valeur(table));
    if (!colonnes.avance() || colonnes.valeur(1).texte() != "INTEGER") return std::nullopt;
    std::string nom = colonnes.valeur(0).texte();
    if (colonnes.avance()) return std::nullopt;
    Requete index = connexion.prepare("SELECT 1 FROM pragma_index_list(?1) WHERE origin='pk'");
    index.lie(1, Valeur(table));
    return index.avance() ? std::nullopt : std::optional(std::move(nom));
}

std::optional<RangColonne> Table::rang(std::string_view colonne) const {
    for (const RangColonne rang : colonnes.rangs()) {
        if (util::egalSansCasseAscii(colonnes[rang].nom, colonne)) return rang;
    }
    return std::nullopt;
}

void Table::adopteCle(const std::vector<Cle>& cles) {
    for (const Cle& declaree : cles) {
        const auto premiere = rang(declaree.premiere), seconde = rang(declaree.seconde);
        if (premiere && seconde) cle = CleDeTable{*premiere, *seconde};
    }
    suivi.index.oublie();
}

// Not pragma_table_list: it works out the columns of every view, and a view of a few lines can have it work for hours. A
// table without row ids is the one that has the name of an index.
std::unique_ptr<Table> litTable(Connexion& connexion, std::string_view nom) {
    auto table = std::make_unique<Table>();
    {
        Requete forme = connexion.prepare(
            "SELECT name FROM sqlite_schema WHERE type='table' AND rootpage<>0 AND name=?1 COLLATE NOCASE "
            "AND NOT EXISTS (SELECT 1 FROM pragma_index_info(name))");
        forme.lie(1, Valeur(nom));
        if (!forme.avance()) return nullptr;
        table->nom = forme.valeur(0).texte();
        table->nomSql = util::entreGuillemets(table->nom);
    }
    Requete colonnes = connexion.prepare("SELECT name, upper(type) FROM pragma_table_info(?1)");
    colonnes.lie(1, Valeur(table->nom));
    while (colonnes.avance()) {
        std::string colonne = colonnes.valeur(0).texte();
        std::string sql = util::entreGuillemets(colonne);
        table->colonnes.push_back({std::move(colonne), std::move(sql), estNumerique(colonnes.valeur(1).texte())});
    }
    table->ligneSql = nomDeLigne(connexion, *table);
    return table;
}

}  // namespace dao::interne
