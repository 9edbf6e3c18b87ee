#pragma once

#include "platform/jet/Pages.h"

#include <cstdint>
#include <string>
#include <vector>

namespace jet::interne {

// The types of a field, by their number in the file.
enum class Type : std::uint8_t {
    Booleen = 0x01,
    Octet = 0x02,
    Entier16 = 0x03,
    Entier32 = 0x04,
    Monetaire = 0x05,
    Reel32 = 0x06,
    Reel64 = 0x07,
    Date = 0x08,
    Binaire = 0x09,
    Texte = 0x0a,
    Ole = 0x0b,
    Memo = 0x0c,
    Identifiant = 0x0f,
    Decimal = 0x10,
};

struct Colonne {
    std::string nom;
    Type type{};
    bool fixe = false;            // stands at a place of its own in every row; else among the variable fields
    std::uint16_t numero = 0;     // among all fields that the table ever had: its bit in a row's Null mask
    std::uint16_t variable = 0;   // its number among the variable fields
    std::uint16_t placeFixe = 0;  // counted from after the row's number of fields
    std::uint16_t taille = 0;     // of a fixed field, in bytes
    std::uint8_t echelle = 0;     // digits after a decimal's point
};

struct Definition {
    std::uint32_t page = 0;  // its first page, which every data page of the table names
    std::uint32_t lignes = 0;
    Pointeur carte;                 // to the map of its data pages
    std::uint16_t colonnesMax = 0;  // of a row: with the fields that the table had once
    bool aDesVariables = false;
    std::vector<Colonne> colonnes;
};

[[nodiscard]] bool estUneDefinition(Octets page);
// The definition that starts on that page.
[[nodiscard]] Definition litDefinition(Pages& pages, std::uint32_t page);

}  // namespace jet::interne
