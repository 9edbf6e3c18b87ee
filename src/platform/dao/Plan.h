#pragma once

#include "platform/dao/Enonce.h"
#include "platform/dao/Jeu.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What a statement needs of the base: from each table a plain scan of a few columns, which a plain index of the file
// answers and SQLite narrows by the conditions on that table; the join and the order are made over what the scans bring.
namespace dao::interne {

struct TableDuPlan {
    Table* table = nullptr;
    Par<RangLu, RangColonne> lues{};
    std::string condition{};           // of SQLite; empty: every row
    std::vector<Valeur> parametres{};  // of the condition, from ?2 on
};

struct ColonneDuPlan {
    RangTable table;
    RangLu rang;
    friend bool operator==(const ColonneDuPlan&, const ColonneDuPlan&) = default;
};

struct TriDuPlan {
    ColonneDuPlan colonne;
    bool numerique = false;
};

// Null and "" are one in a key: when no row bears the texts that are looked for, the one that bears Null for a "" is meant.
struct CleCherchee {
    std::string premiere;
    std::string seconde;
    std::string sansNul{};  // the condition, Null taken for ""; empty when no "" is looked for
};

struct Plan {
    Par<RangTable, TableDuPlan> tables;
    bool gauche = false;
    std::vector<std::pair<RangLu, RangLu>> egalites;  // of a join: in the first and in the second table
    bool joinCles = false;       // by the keys of both tables: Null counts as "", unless it stands in the whole key
    std::vector<RangLu> nulles;  // of a left join: what must be Null in the second table, once its rows are joined
    std::vector<TriDuPlan> tris;
    std::vector<RangLu> departages;  // among rows that `tris` leave equal: columns of the first table
    bool distinct = false;
    Par<RangChamp, ChampDeJeu> champs;  // what the recordset shows
    std::optional<CleCherchee> cle;     // the one table is looked up by its key

    // The first column to order by, unless it is that of the index in whose order rows come, by title.
    [[nodiscard]] std::optional<TriDuPlan> groupes() const;
    // The columns to order by: of rows that are in one group, or of all.
    [[nodiscard]] std::vector<TriDuPlan> ordre() const;
    // Rows of one group, or all, stand by the first table's key, then by their ids.
    [[nodiscard]] bool suitLaCle() const;
    // Both bring the same rows of the same tables, and show the same of them; each has its own order.
    [[nodiscard]] bool aLesLignesDe(const Plan& autre) const;
};

// `portees`: columns to be kept with the rows, where a table has them.
// Throws ErreurDao 3061 (unknown column), 3078 (unknown table), 3075 (a condition that is asked of both tables at once).
[[nodiscard]] Plan planifie(Connexion& connexion, const Enonce& enonce, std::span<const std::string_view> portees = {});

}  // namespace dao::interne
