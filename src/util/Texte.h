#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Text is UTF-8. A character here is what the user sees as a letter: a letter with its combining accents, an emoji with
// its modifiers, count as one. Bytes that are no UTF-8 are carried through unharmed, each counting as one character.
namespace util {

[[nodiscard]] std::size_t longueur(std::string_view texte);                      // in characters
[[nodiscard]] std::string coupe(std::string_view texte, std::size_t nombre);     // the first `nombre` characters
[[nodiscard]] std::vector<std::string_view> caracteres(std::string_view texte);  // views into `texte`

// Case by characters, one to one: ß stays ß, so that the number of characters never changes.
[[nodiscard]] std::string minuscules(std::string_view texte);
[[nodiscard]] std::string majuscules(std::string_view texte);
// Equal but for letter case.
[[nodiscard]] bool egalSansCasse(std::string_view gauche, std::string_view droite);
// The same key for all texts that egalSansCasse calls equal.
[[nodiscard]] std::string cleSansCasse(std::string_view texte);

// As sentences for the user name something: « Alien ».
[[nodiscard]] inline std::string entreChevrons(std::string_view nom) {
    return "« " + std::string(nom) + " »";
}

// é ë è ê -> e, â à ä -> a, ï î -> i, ô ö -> o, ù ü û -> u, ç -> c; lower-case letters only, nothing else.
[[nodiscard]] std::string sansAccents(std::string_view texte);

[[nodiscard]] std::string remplace(std::string_view texte, std::string_view cherche, std::string_view par);
[[nodiscard]] bool commencePar(std::string_view texte, std::string_view debut);
[[nodiscard]] bool finitPar(std::string_view texte, std::string_view fin);

// The line that starts at `place`, which goes on to the next one, behind CR LF, LF or CR.
[[nodiscard]] std::string_view ligneSuivante(std::string_view texte, std::size_t& place);

[[nodiscard]] bool estUtf8(std::string_view octets);
// Windows-1252 (81 8D 8F 90 9D as U+0081 and so on) to UTF-8 and back; what 1252 lacks becomes "?".
[[nodiscard]] std::string depuis1252(std::string_view octets);
[[nodiscard]] std::string vers1252(std::string_view texte);
// U+FFFD stands for a half of a character without its other half.
[[nodiscard]] std::string depuisUtf16(std::u16string_view unites);
// A text of the outside world, always UTF-8 in the end: it is UTF-8 when it starts with a byte order mark (which is
// dropped) or is valid UTF-8 with characters beyond ASCII; UTF-16 or UTF-32 with their mark; otherwise Windows-1252, and
// so are the bytes of a marked text that are no UTF-8.
[[nodiscard]] std::string decodeTexteExterne(std::string_view octets);
// A text of two or four bytes to the character: UTF-16 or UTF-32 with their mark, or UTF-16 that shows by its zero
// bytes. U+FFFD stands where the bytes say no character. Nothing for a text of any other kind.
[[nodiscard]] std::optional<std::string> decodeTexteLarge(std::string_view octets);

}  // namespace util
