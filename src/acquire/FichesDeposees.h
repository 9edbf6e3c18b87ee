#pragma once

#include "acquire/Contexte.h"

#include <string>
#include <vector>

namespace acquire {

// Sheets that the user dropped on the window, as files with their posters beside them, or as a folder of them: imported
// as that folder would be, with its questions. They stay where they are. Without any the notice line says so.
void importeFichesDeposees(const Contexte& c, const std::vector<std::string>& chemins);

}  // namespace acquire
