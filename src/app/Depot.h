#pragma once

#include "app/Contexte.h"

#include <string>

namespace app {

// A picture file for the film of the sheet, dropped on its poster or pasted: attached where there is none, else it takes
// the poster's place, by the rules of the two commands that choose one.
void deposeAffiche(const Contexte& c, const std::string& image);

}  // namespace app
