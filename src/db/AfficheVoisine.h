#pragma once

#include "platform/fichiers/Fichiers.h"

#include <optional>
#include <string>
#include <string_view>

namespace db {

// The file of a poster that came with its base and is not in the images folder: in "Images" beside that base, or right
// beside it. `affiche` is the column's value. Such a file is only read.
[[nodiscard]] std::optional<fichiers::Place> afficheVoisine(const std::string& base, std::string_view affiche);

}  // namespace db
