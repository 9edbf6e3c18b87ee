#pragma once

#include <string>
#include <string_view>

// Tables as text, one line a row: values between quotes, separated by ";" as French spreadsheets expect.
namespace util {

// The value as a spreadsheet takes it for a text. One that begins as a formula would (=, +, -, @, also wide or after
// blanks, or a tab or line end) gets an apostrophe in front; sansProtection takes it away again, from any value.
[[nodiscard]] std::string protegeDesFormules(std::string_view valeur);
[[nodiscard]] std::string sansProtection(std::string_view cellule);

// The value between quotes, its own doubled; line ends stay what they are.
void ajouteCellule(std::string& ligne, std::string_view valeur);

}  // namespace util
