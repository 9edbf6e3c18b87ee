#pragma once

#include <string>
#include <string_view>

namespace util {

// The text as an HTML page shows it, also between the quotes of an attribute: markup is text, signs of control go, bytes
// that are no UTF-8 become U+FFFD. Line ends stay.
[[nodiscard]] std::string enHtml(std::string_view texte);

[[nodiscard]] std::string enBase64(std::string_view octets);

}  // namespace util
