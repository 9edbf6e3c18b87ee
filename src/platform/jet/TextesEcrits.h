#pragma once

#include <string>
#include <string_view>

namespace jet::interne {

// A text as a Jet 4 base can hold it.
struct Unites {
    std::u16string unites;
    bool fidele = true;  // false: bytes that are no UTF-8 were taken as code page 1252, or a mark at its head left out
};
[[nodiscard]] Unites enUnites(std::string_view utf8);

// Its bytes in the file. Compressed, Latin-1 takes a byte for a character; what cannot be stays as it is.
[[nodiscard]] std::string texteJet(std::u16string_view unites, bool comprime);

}  // namespace jet::interne
