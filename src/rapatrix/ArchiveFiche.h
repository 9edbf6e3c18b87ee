#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rapatrix {

// What one archive may hold, in bytes: more is no film's sheet.
inline constexpr std::size_t kTailleMaxFiche = 1 << 20;
inline constexpr std::size_t kTailleMaxAffiche = 10 << 20;
inline constexpr std::size_t kTailleMaxArchive = 20 << 20;  // once unpacked; packed as well

// One sheet and its poster, as they came.
struct FicheRecue {
    std::string nom;  // UTF-8, one name without extension, fit for any file system
    std::string fiche;
    std::string affiche;  // empty: none
};

// The sheets (".film") of a .zip with the poster (".jpg") of the same name each; where there is one sheet and one poster,
// they belong together whatever their names. Of a name in the archive its last part counts; every other file is passed
// over. Nothing when the bytes are no whole .zip, hold no sheet, or exceed a bound above.
[[nodiscard]] std::optional<std::vector<FicheRecue>> ouvreArchive(std::string_view octets);

// Puts them in the folder, the poster before its sheet, each file whole or not there; a name that something bears
// already gets " (2)" and so on. How many sheets stand there now: fewer than given when the disk refuses one.
[[nodiscard]] std::size_t depose(const std::vector<FicheRecue>& fiches, const std::string& dossier);

}  // namespace rapatrix
