#include "platform/dao/Table.h"

#include "platform/dao/Analyse.h"
#include "platform/dao/Connexion.h"
#include "platform/dao/Erreurs.h"

#include <array>
#include <optional>
#include <utility>

#include <sqlite3.h>

namespace dao::interne {

namespace {

// A film is found by these pairs, whichever of the two tables it is looked for in.
constexpr std::array<std::pair<std::string_view, std::string_view>, 2> kCles{
    {{"Titre", "Realisateur"}, {"Titre2", "Realisateur2"}}};

bool estNumerique(std::string type) {
    for (char& c : type)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
    for (const std::string_view mot : {"INT", "REAL", "FLOA", "DOUB", "NUM", "DEC", "BYTE", "SINGLE"}) {
        if (type.find(mot) != std::string::npos) return true;
    }
    return false;
}

// The column that is the row id, which one primary key of whole numbers is unless SQLite gave it an index of its own.
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

// A column that bears a name of the row id hides it. Where all of them do, rows could be taken for each other.
std::string nomDeLigne(Connexion& connexion, const Table& table) {
    for (const std::string_view nom : {"rowid", "_rowid_", "oid"}) {
        if (table.rang(nom) < 0) return std::string(nom);
    }
    if (const auto cle = cleEntiere(connexion, table.nom)) return nomEntreGuillemets(*cle);
    jette(kErreurFormat, "Les lignes de la table « " + table.nom +
                             " » ne peuvent pas être distinguées : ses colonnes « rowid », « _rowid_ » et « oid » "
                             "cachent leur numéro, et elle n'a pas de clé primaire entière.");
}

}  // namespace

std::string nomEntreGuillemets(std::string_view nom) {
    std::string resultat = "\"";
    for (const char c : nom)
        resultat.append(c == '"' ? 2 : 1, c);
    return resultat + '"';
}

int Table::rang(std::string_view colonne) const {
    for (std::size_t i = 0; i < colonnes.size(); ++i) {
        if (egalSansCasseAscii(colonnes[i].nom, colonne)) return static_cast<int>(i);
    }
    return -1;
}

std::string Table::nomSql() const {
    return nomEntreGuillemets(nom);
}

std::string Table::colonneSql(int rangDeColonne) const {
    return nomEntreGuillemets(colonnes[static_cast<std::size_t>(rangDeColonne)].nom);
}

std::unique_ptr<Table> litTable(Connexion& connexion, std::string_view nom) {
    auto table = std::make_unique<Table>();
    {
        Requete forme = connexion.prepare(
            "SELECT name FROM pragma_table_list WHERE schema='main' AND type='table' AND wr=0 AND name=?1 COLLATE "
            "NOCASE");
        forme.lie(1, Valeur(nom));
        if (!forme.avance()) return nullptr;
        table->nom = forme.valeur(0).texte();
    }
    Requete colonnes = connexion.prepare("SELECT name, type FROM pragma_table_info(?1)");
    colonnes.lie(1, Valeur(table->nom));
    while (colonnes.avance())
        table->colonnes.push_back({colonnes.valeur(0).texte(), estNumerique(colonnes.valeur(1).texte())});
    table->ligneSql = nomDeLigne(connexion, *table);
    for (const auto& [titre, realisateur] : kCles) {
        if (table->rang(titre) < 0 || table->rang(realisateur) < 0) continue;
        table->titre = table->rang(titre);
        table->realisateur = table->rang(realisateur);
    }
    return table;
}

}  // namespace dao::interne
