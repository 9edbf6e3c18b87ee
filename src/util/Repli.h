#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Text as a quick search compares it: letters alone count, without case or accents; œ is oe, æ ae, ß ss, ø o; apostrophes,
// hyphens and every kind of blank are one blank. A character folds to the same letters wherever it stands.
namespace util {

// Appends the folded text, which is UTF-8 whatever `texte` holds: bytes that are none stand for Latin-1.
void ajouteRepli(std::string_view texte, std::string& repli);

// A folded text that remembers where each of its bytes comes from.
struct RepliSitue {
    std::string texte;
    std::vector<std::uint32_t> debuts, fins;  // for each byte: the bytes of the source that it stands for
};
[[nodiscard]] RepliSitue repliSitue(std::string_view texte);

}  // namespace util
