#pragma once

#include <string>
#include <string_view>

namespace util {

// A file's name or path as it can be shown: in one line, and in the order of its letters. A sign that breaks a line is a
// blank, and one that turns letters round, so that a program would seem a film, is U+FFFD.
[[nodiscard]] std::string nomMontrable(std::string_view nom);

}  // namespace util
