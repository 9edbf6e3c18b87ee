#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace architecture {

// Reads every source of a tree laid out as src/ is and says where it breaks the house's arrows, or where the window calls
// a command without what app puts around it: one line a fault, "room/file:line: what is wrong", in the order of the
// files' names; empty when the house stands.
[[nodiscard]] std::vector<std::string> fautes(const std::filesystem::path& src);

}  // namespace architecture
