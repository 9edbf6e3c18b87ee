#pragma once

#include "platform/dao/Condition.h"
#include "platform/dao/Enonce.h"
#include "platform/dao/Jeu.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What a statement needs of the base: from each table a plain scan of a few columns, which a plain index of the file
// answers; the text comparisons, the join and the order are made over what the scans bring.
namespace dao::interne {

struct ColonneLue {
    int colonne = 0;
    std::size_t debut = 0;  // more than 0: only so many bytes are looked at, and read
    bool portee = false;    // kept with the row once the statement has run
};

struct TableDuPlan {
    Table* table = nullptr;
    std::vector<ColonneLue> lues{};
    std::vector<Condition> filtres{};  // that look at this table alone and may be asked as it is scanned
};

struct TriDuPlan {
    Place place;
    bool numerique = false;
    bool decroissant = false;
};

// A film is the same one where its title or director is Null and where it is "": when no row bears the texts that are
// looked for, the one that bears Null for a "" is meant.
struct FilmCherche {
    std::string titre;
    std::string realisateur;
    std::vector<Condition> sansNul{};  // the table's filters, Null taken for ""; empty when no "" is looked for
};

struct Plan {
    std::vector<TableDuPlan> tables;
    bool gauche = false;
    std::vector<std::pair<int, int>> egalites;  // of a join: ranks of read columns in the first and second table
    // The join is of films with their holdings: Null counts as "", unless it stands in title and director both.
    bool joinFilms = false;
    std::vector<Condition> filtresApres;  // asked once a row is joined
    std::vector<TriDuPlan> tris;
    std::vector<int> departages;  // among rows that `tris` leave equal: ranks of read columns in the first table
    bool distinct = false;
    std::vector<ChampDeJeu> champs;   // what the recordset shows
    std::optional<FilmCherche> film;  // the one table is looked up by title and director
};

// Throws ErreurDao 3061 (unknown column), 3078 (unknown table), 3075 (a join that is no chain of equalities).
[[nodiscard]] Plan planifie(Connexion& connexion, const Enonce& enonce);

}  // namespace dao::interne
