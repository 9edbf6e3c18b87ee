#pragma once

#include "platform/texteriche/TexteRiche.h"

#include <array>
#include <cstdint>
#include <optional>

namespace exportation {

inline constexpr const char* kPoliceListe = "Arial";

// A pair of tags, "<t>" and "</t>", and what it does to the text between them. What it does not name stays as it is.
struct Balise {
    char lettre;
    const char* nom;  // what is being formatted, as the user reads it
    int taille;
    std::optional<std::uint32_t> couleur;
    std::optional<texteriche::Alignement> alignement;
    bool gras = false, italique = false;  // true: sets it

    [[nodiscard]] texteriche::Style appliqueeA(texteriche::Style style) const {
        style.police = kPoliceListe;
        style.taille = taille;
        style.couleur = couleur.value_or(style.couleur);
        style.gras |= gras;
        style.italique |= italique;
        return style;
    }
};

// In the order in which they are applied.
inline constexpr std::array<Balise, 6> kBalises{{
    {'g', "des genres", 11, 0xFFFF00, texteriche::Alignement::Centre, true},
    {'t', "des titres", 18, 0x0000FF, {}},
    {'r', "des réalisateurs", 12, {}, texteriche::Alignement::Droite},
    {'d', "des durées", 11, {}, {}, false, true},
    {'a', "des acteurs", 9, 0xFF0000, {}},
    {'f', "des résumés", 11, 0x000000, {}},
}};

}  // namespace exportation
