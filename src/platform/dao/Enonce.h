#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A SELECT of the program as a tree: what it says, nothing yet of the tables that a base holds.
namespace dao::interne {

struct NomDeColonne {
    std::string table{};  // empty when not qualified
    std::string nom;
};

struct Expression {
    enum class Genre {
        Texte,
        Nombre,
        Nul,
        Colonne,  // leaves
        Ou,
        Et,
        Non,  // conditions
        Egal,
        Different,
        Inferieur,
        InferieurOuEgal,
        Superieur,
        SuperieurOuEgal,
        Comme,
        EstNul,
        EstNonNul,
        Plus,
        Moins,
        Instr
    };

    Genre genre = Genre::Nul;
    std::string texte{};
    double nombre = 0;
    NomDeColonne colonne{};
    std::vector<Expression> termes{};
};

struct Jointure {
    bool gauche = false;  // LEFT JOIN: the first table's rows stay without a partner
    std::string table;
    Expression condition;
};

struct Tri {
    NomDeColonne colonne;
    bool decroissant = false;
};

struct Enonce {
    bool distinct = false;  // DISTINCTROW changes nothing: a row of the statement is already a row of its tables
    std::vector<NomDeColonne> colonnes;  // empty: *
    std::string table;
    std::optional<Jointure> jointure;
    std::optional<Expression> condition;
    std::vector<Tri> tris;
};

// Throws ErreurDao 3075 when the text is no statement of this kind.
[[nodiscard]] Enonce analyseEnonce(std::string_view texte);

}  // namespace dao::interne
