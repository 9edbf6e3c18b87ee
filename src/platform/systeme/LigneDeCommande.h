#pragma once

#include <optional>
#include <string>
#include <vector>

namespace systeme {

// The words of a command line as a shell would cut them: blanks separate, quotes and backslashes protect, and nothing
// else means anything ("$", "*", ";" stand for themselves). Empty when a quote stays open; a blank line has no word.
[[nodiscard]] std::optional<std::vector<std::string>> decoupe(const std::string& ligne);

}  // namespace systeme
