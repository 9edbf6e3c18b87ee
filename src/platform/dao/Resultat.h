#pragma once

#include "platform/dao/Magasin.h"
#include "platform/dao/Plan.h"

#include <vector>

namespace dao::interne {

// The rows of a statement in its order: for each, its row of each table, among those that this table's store keeps.
struct Resultat {
    Par<RangTable, Magasin> magasins{};
    Par<RangTable, std::vector<RangLigne>> lignes{};
};

[[nodiscard]] Resultat execute(Connexion& connexion, const Plan& plan);

}  // namespace dao::interne
