#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// What index pages hold of a value: bytes that compare as Jet compares the values (its "General" order, of Access 2000 to
// 2003). Columns follow one another.
//
// A text's letters come first, whatever their case and accents; then the accents, each at its letter's place; then
// apostrophes, hyphens and control characters, each with its place. Trailing blanks count for nothing.
namespace jet::interne {

void ajouteCleNulle(std::string& cle);
void ajouteCleEntiere(std::int32_t valeur, std::string& cle);
// False, the key of no use, for a character whose place in Jet's order is not known here: Latin, Greek, Cyrillic and
// the usual punctuation are.
[[nodiscard]] bool ajouteCleTexte(std::u16string_view texte, std::string& cle);

}  // namespace jet::interne
