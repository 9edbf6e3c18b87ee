#pragma once

#include <functional>
#include <string>
#include <vector>

namespace fichiers {

// As synchronise of Fichiers.h, for so many files that only to look at them lasts: `souffle` is called between two.
[[nodiscard]] bool synchronise(const std::vector<std::string>& chemins, const std::function<void()>& souffle);

}  // namespace fichiers
