#pragma once

#include "browse/Contexte.h"

#include <string_view>

namespace browse {

// The box that a poster fills as far as its shape allows, in twips.
inline constexpr int kLargeurAffiche = 2895;
inline constexpr int kHauteurAffiche = 4455;

// What the sheet says in place of a poster. Only the first offers to add one.
inline constexpr std::string_view kPasDImage = "Pas d'image \r\n(Cliquez pour ajouter)";
inline constexpr std::string_view kImageIllisible = "Image illisible ou trop grande \r\n(Cliquez pour remplacer)";
inline constexpr std::string_view kImageNonMontree = "L'affiche ne peut pas être montrée";

// Loads the temporary poster file as the sheet's and the viewer's picture, fitted and centred in its box; without one,
// the caption that says why.
void ChargeAffiche(const Contexte& c);

}  // namespace browse
