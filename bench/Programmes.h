#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace bench {

// The figures that one measured program declared, by name.
using Figures = std::map<std::string, double>;

// Runs one of the programs that stand beside this one, with no display, and waits for it. Throws when it fails.
[[nodiscard]] Figures lance(const std::string& programme, const std::vector<std::string>& arguments);

// Of one program run several times: its shortest times, which the rest of the machine disturbed least, and the largest of
// its peaks.
[[nodiscard]] Figures retenues(const std::vector<Figures>& passages);

}  // namespace bench
