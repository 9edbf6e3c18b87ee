#pragma once

#include "db/ChampsPublies.h"
#include "platform/dao/Recordset.h"

#include <array>
#include <optional>
#include <string>

namespace ensemble {

// What a holding says, field by field in the order of db::kChampsDePossession.
using ValeursDePossession = std::array<std::string, db::kChampsDePossession.size()>;

[[nodiscard]] ValeursDePossession litPossession(const dao::Recordset& ligne);
void ecritPossession(dao::Recordset& ligne, const ValeursDePossession& valeurs);

// Both in one: what the first does not say is taken from the second, and the files of both find room. Nothing where they
// contradict each other, or have more files than there is room for: no single holding could say it all.
[[nodiscard]] std::optional<ValeursDePossession> jointes(const ValeursDePossession& une,
                                                         const ValeursDePossession& autre);

}  // namespace ensemble
