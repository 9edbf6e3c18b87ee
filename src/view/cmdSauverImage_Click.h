#pragma once

#include "view/Contexte.h"

#include <string>

namespace view {

// Saves the poster shown as a file of the user's choice. Nothing is read again: the temporary poster is copied. Answers
// the whole path of the file, "" when none was made.
std::string cmdSauverImage_Click(const Contexte& c);

}  // namespace view
