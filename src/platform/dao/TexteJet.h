#pragma once

#include <string>
#include <string_view>

// What INSTR does with text. Letter case is ignored and accents count. INSTR agrees with "=" on letters: œ is oe, æ ae,
// ß ss, and an accent may stand in its letter or after it. Every other character is itself, the blanks, apostrophes and
// hyphens that "=" passes over included.
namespace dao::interne {

// Appends the text as INSTR compares it, in its composed form; bytes that are no UTF-8 stay as they are.
void plie(std::string_view texte, std::string& resultat);

// Whether the already folded `aiguille` stands in `texte`. A letter is not found where an accent follows it.
[[nodiscard]] bool contient(std::string_view texte, std::string_view aiguillePliee);

}  // namespace dao::interne
