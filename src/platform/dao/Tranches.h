#pragma once

#include "platform/dao/Connexion.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace dao::interne {

// What Database::litTranche does; `derniere` is the first column's value in the last row that was met, none at the beginning.
[[nodiscard]] bool litTranche(Connexion& connexion, const Table& table, std::span<const std::string_view> colonnes,
                              std::optional<Valeur>& derniere, std::size_t lignes,
                              const std::function<void(std::span<const std::string>)>& visite);

}  // namespace dao::interne
