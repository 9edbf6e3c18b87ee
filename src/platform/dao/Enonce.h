#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A SELECT of the program, taken apart: what it says, nothing yet of the tables that a base holds.
namespace dao::interne {

struct NomDeColonne {
    std::string table{};  // empty when not qualified
    std::string nom;
};

// One of the conditions that a row must meet: what it asks of a column, or of several.
struct Terme {
    enum class Epreuve {
        Egal,         // a = "x"
        Different,    // a <> "x"
        Contient,     // INSTR(a, "x")+INSTR(b, "x")>0
        CommencePar,  // a LIKE "x*"
        EstNul        // a IS NULL
    };
    Epreuve epreuve = Epreuve::Egal;
    std::vector<NomDeColonne> colonnes{};
    std::string texte{};
};

struct Jointure {
    bool gauche = false;  // LEFT JOIN: the first table's rows stay without a partner
    std::string table;
    std::vector<std::pair<NomDeColonne, NomDeColonne>> egalites;
};

struct Enonce {
    bool distinct = false;  // DISTINCTROW changes nothing: a row of the statement is already a row of its tables
    std::vector<NomDeColonne> colonnes;  // empty: *
    std::string table;
    std::optional<Jointure> jointure;
    std::vector<Terme> termes;  // all of them hold
    std::vector<NomDeColonne> tris;
};

// Throws ErreurDao 3075 when the text is no statement of this kind.
[[nodiscard]] Enonce analyseEnonce(std::string_view texte);

}  // namespace dao::interne
