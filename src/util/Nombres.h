#pragma once

#include <string>
#include <string_view>

namespace util {

// The lenient numeric conversion: leading blanks ignored, the longest numeric prefix taken ("12 px" is 12), 0 without one.
// The decimal separator is the point.
[[nodiscard]] double Val(std::string_view texte);
// Val cut toward zero and held within an int's range.
[[nodiscard]] int valEntier(std::string_view texte);
// To the nearest integer, halves to the even neighbour (6.5 is 6, 7.5 is 8).
[[nodiscard]] int arrondiPair(double nombre);
// Cut, not rounded, to n decimals: Fix(x * 10^n) / 10^n.
[[nodiscard]] double tronque(double nombre, int decimales);
// The shortest plain text of a number, without a leading blank, with the given decimal separator ("7.5", "10").
[[nodiscard]] std::string texteDuNombre(double nombre, std::string_view separateur = ".");

// The count phrase: `singulier` for 0 and 1, `pluriel` otherwise, each "#" replaced by the number.
[[nodiscard]] std::string phraseCompte(long nombre, std::string_view singulier, std::string_view pluriel);

}  // namespace util
