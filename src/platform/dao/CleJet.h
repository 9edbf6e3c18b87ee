#pragma once

#include <string>
#include <string_view>

// Jet's text comparison as bytes: two texts compare as their keys compare, byte by byte, and are equal when these are.
//
// Letters come first, whatever their case and accents; then accents; then apostrophes and hyphens, passed over until
// there and met by position. Trailing blanks are cut; œ is oe, æ is ae, ß is ss. Bytes that are no UTF-8 stand for the
// Latin-1 characters of the same value. A key is never empty (the empty key is left to Null, which comes first), and
// holds no zero byte, so that keys of several columns can be chained by one.
namespace dao::interne {

void ajouteCleJet(std::string_view texte, std::string& cle);
[[nodiscard]] std::string cleJet(std::string_view texte);

// The same key without the table of ready characters: what the tests hold the quick way against.
[[nodiscard]] std::string cleJetLente(std::string_view texte);

}  // namespace dao::interne
