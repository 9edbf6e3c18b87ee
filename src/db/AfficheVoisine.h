#pragma once

#include <optional>
#include <string>
#include <string_view>

// In both, a name that leads anywhere counts by its last part; a link is no poster.
namespace db {

// The file of a poster in that folder, which ends with a separator.
[[nodiscard]] std::optional<std::string> afficheDans(const std::string& dossier, std::string_view nom);

// The file of a poster that came with its base and is not in the images folder: in "Images" beside that base, or right
// beside it. Such a file is only read.
[[nodiscard]] std::optional<std::string> afficheVoisine(const std::string& base, std::string_view nom);

}  // namespace db
