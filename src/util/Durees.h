#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace util {

// The minutes that a running time says: "1H32", "1 h", "1:32", "92", "92 min". Nothing for any other text, and for 0.
[[nodiscard]] std::optional<int> minutesDe(std::string_view duree);
// "1 h 32", "2 h", "45 min".
[[nodiscard]] std::string texteDesMinutes(int minutes);

}  // namespace util
