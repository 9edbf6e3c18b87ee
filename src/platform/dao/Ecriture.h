#pragma once

#include "platform/dao/Connexion.h"

#include <string>
#include <utility>
#include <vector>

// Changes to one row, each whole or not at all, with what is known of the table kept in step.
namespace dao::interne {

using Assignees = std::vector<std::pair<RangColonne, Valeur>>;  // columns and their values

long long ajouteLigne(Connexion& connexion, Table& table, const Assignees& assignees);  // answers the row id
void modifieLigne(Connexion& connexion, Table& table, long long ligne, const Assignees& assignees);  // throws 3167
void supprimeLigne(Connexion& connexion, Table& table, long long ligne);                             // throws 3167

// The value of one field of a row. Throws 3167 when the row is gone.
[[nodiscard]] Valeur litChamp(Connexion& connexion, const Table& table, RangColonne colonne, long long ligne);
[[noreturn]] void jetteSupprime();

// Builds the index of the keys unless it stands; nothing for a table without a key.
void prepareIndex(Connexion& connexion, Table& table);
// The rows whose key may be these two texts, in row id order; the table must have a key.
[[nodiscard]] std::vector<long long> candidats(Connexion& connexion, Table& table, std::string_view premiere,
                                               std::string_view seconde);

}  // namespace dao::interne
