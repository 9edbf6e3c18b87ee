#pragma once

#include "platform/dao/Magasin.h"
#include "platform/dao/Plan.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace dao::interne {

// For each row of a statement, its row of each table.
using LignesParTable = Par<RangTable, std::vector<RangLigne>>;

// The rows of a statement in its order: for each, its row of each table, among those that this table's store keeps.
struct Resultat {
    Par<RangTable, Magasin> magasins{};
    LignesParTable lignes{};
    // The same rows by the first table's key: where each of them stands. Of a plan that `suitLaCle`; empty where it
    // is their own order.
    std::vector<std::uint32_t> places{};
};

[[nodiscard]] Resultat execute(Connexion& connexion, const Plan& plan);

// The rows of `plan` from those of another plan, where nothing was changed since: what is not kept of the first column to
// order by is read, and the rest is shared. None where they have not the same rows.
[[nodiscard]] std::optional<Resultat> reordonne(Connexion& connexion, const Plan& plan, const Plan& ancien,
                                                const Resultat& resultat);

}  // namespace dao::interne
