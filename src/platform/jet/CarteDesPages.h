#pragma once

#include "platform/jet/Pages.h"

#include <cstdint>
#include <vector>

namespace jet::interne {

// The pages that a map lists, in ascending order. A map is a row of some page: either the first page's number and a bit
// for each page from there on, or the numbers of pages that hold such bits.
[[nodiscard]] std::vector<std::uint32_t> pagesDeLaCarte(Pages& pages, Pointeur carte);

}  // namespace jet::interne
