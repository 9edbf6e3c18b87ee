#pragma once

#include "platform/dao/Magasin.h"
#include "platform/dao/Plan.h"

#include <cstdint>
#include <vector>

namespace dao::interne {

inline constexpr std::uint32_t kSansLigne = UINT32_MAX;  // a join's row without a partner

// The rows of a statement in its order: for each, the place of its row of each table in that table's store.
struct Resultat {
    std::vector<Magasin> magasins{};
    std::vector<std::vector<std::uint32_t>> lignes{};  // for each table
};

[[nodiscard]] Resultat execute(Connexion& connexion, const Plan& plan);

// Where a read column's value lies in its table's store; -1 when it is not kept.
[[nodiscard]] int rangPorte(const TableDuPlan& table, int rangLu);

}  // namespace dao::interne
