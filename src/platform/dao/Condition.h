#pragma once

#include "platform/dao/AccesValeur.h"
#include "platform/dao/Enonce.h"
#include "platform/dao/TexteJet.h"

#include <memory>
#include <string>
#include <vector>

namespace dao::interne {

// Where a column's value lies while a statement runs: which table, and which of the columns read from it.
struct Place {
    int table = 0;
    int rang = 0;
};

// The rows that a condition looks at: for each table its read values, in the order of their ranks.
struct LignesVues {
    const ValeurVue* tables[2] = {nullptr, nullptr};
};

// An expression whose columns are found and whose literals are made ready. Evaluated with Jet's three truths: Null is
// neither true nor false, and a condition keeps a row only when it is true.
class Condition {
  public:
    using Genre = Expression::Genre;
    Genre genre = Genre::Nul;
    Place place{};                         // Colonne
    std::string texte{};                   // Texte
    std::string cle{};                     // Texte: its Jet key
    bool nulEstVide = false;               // Colonne: Null reads as ""
    std::string plis{};                    // Texte that INSTR looks for: folded
    double nombre = 0;                     // Nombre
    std::shared_ptr<const Motif> motif{};  // Comme
    std::vector<Condition> termes{};

    [[nodiscard]] bool estVraie(const LignesVues& lignes) const;
    [[nodiscard]] ValeurVue valeur(const LignesVues& lignes) const;
    // Which tables it looks at, a bit for each.
    [[nodiscard]] unsigned tables() const;

  private:
    [[nodiscard]] ValeurVue connecteur(const LignesVues& lignes) const;
    [[nodiscard]] ValeurVue comparaison(const LignesVues& lignes) const;
    [[nodiscard]] ValeurVue calcul(const LignesVues& lignes) const;
};

}  // namespace dao::interne
