#pragma once

#include "platform/dao/IndexDeCles.h"
#include "platform/dao/Rangs.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace dao {
struct Cle;
}

namespace dao::interne {

class Connexion;

struct ColonneDeTable {
    std::string nom;
    std::string sql;         // the name between the file engine's quotes
    bool numerique = false;  // declared so: its values order as numbers

    friend bool operator==(const ColonneDeTable&, const ColonneDeTable&) = default;
};

// What happened to a table's rows since the base was opened, as far as the open recordsets must know.
// A row id is never given twice while the base is open: a recordset's slot never meets another row under its id.
struct Suivi {
    [[nodiscard]] bool ecriteDepuis(long long ligne, std::uint64_t version) const {
        if (ecrites.empty()) return false;
        const auto trouvee = ecrites.find(ligne);
        return trouvee != ecrites.end() && trouvee->second > version;
    }
    [[nodiscard]] bool estSupprimee(long long ligne) const { return !supprimees.empty() && supprimees.contains(ligne); }

    std::unordered_map<long long, std::uint64_t> ecrites;
    std::unordered_set<long long> supprimees;
    std::vector<long long> supprimeesEnCours;  // by the open transaction
    long long plusHaute = 0;
    std::uint64_t derniereEcriture = 0;  // the version of the last change
    std::optional<long> compte;
    IndexDeCles index;
};

// What was known of a table's rows and is no more, to be given back without holding anybody up.
struct AncienSuivi {
    IndexDeCles index;
    std::unordered_map<long long, std::uint64_t> ecrites;
};

// The columns of a declared key.
struct CleDeTable {
    RangColonne premiere, seconde;
};

// One table of an open base: its columns, and the follow-up of its rows.
struct Table {
    // None: no such column. Names are compared without case.
    [[nodiscard]] std::optional<RangColonne> rang(std::string_view colonne) const;
    [[nodiscard]] const std::string& colonneSql(RangColonne colonne) const { return colonnes[colonne].sql; }
    [[nodiscard]] std::string clesSql() const { return colonneSql(cle->premiere) + "," + colonneSql(cle->seconde); }
    [[nodiscard]] bool estCle(RangColonne colonne) const {
        return cle && (colonne == cle->premiere || colonne == cle->seconde);
    }
    [[nodiscard]] bool memeForme(const Table& autre) const { return nom == autre.nom && colonnes == autre.colonnes; }
    void adopteCle(const std::vector<Cle>& cles);  // the last of these whose columns it has

    std::string nom;
    std::string nomSql;    // between the file engine's quotes
    std::string ligneSql;  // what the row id is called: "rowid", or another of its names when a column bears that one
    Par<RangColonne, ColonneDeTable> colonnes;
    std::optional<CleDeTable> cle{};
    std::optional<bool> aCleEntiere{};  // once it was looked
    Suivi suivi{};
};

// The column that is the row id, which one primary key of whole numbers is unless SQLite gave it an index of its own.
[[nodiscard]] std::optional<std::string> cleEntiere(Connexion& connexion, const std::string& table);

}  // namespace dao::interne
