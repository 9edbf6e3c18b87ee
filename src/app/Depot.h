#pragma once

#include "app/Contexte.h"

#include <string>
#include <vector>

namespace app {

// A picture file for the film of the sheet, dropped on its poster or pasted: attached where there is none, else it takes
// the poster's place, by the rules of the two commands that choose one.
void deposeAffiche(const Contexte& c, const std::string& image);

// Sheets that were dropped, or opened with the program. The page of entry, whose controls an import fills, gives way to
// the list of what was added.
void importeFichesDeposees(const Contexte& c, const std::vector<std::string>& chemins);

}  // namespace app
