#pragma once

#include "platform/jet/Octets.h"

#include <string>

// The characters of stored texts: Jet 4 keeps UTF-16 or, after FF FE, one byte a character with 00 going over to two
// bytes and back; Jet 3 keeps code page 1252.
namespace jet::interne {

[[nodiscard]] std::string enUtf8(Octets texte, bool jet4);

// A poster: each character is the byte that stands for it in code page 1252.
struct Affiche {
    std::string octets;
    bool alteree = false;  // some characters are not in the code page: they became "?"
};
[[nodiscard]] bool estUneAffiche(Octets texte, bool jet4);  // begins with "STO"
[[nodiscard]] Affiche enOctets(Octets texte, bool jet4);

}  // namespace jet::interne
