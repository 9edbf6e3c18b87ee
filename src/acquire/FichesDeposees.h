#pragma once

#include "acquire/Contexte.h"

#include <string>
#include <vector>

namespace acquire {

// Sheets that the user dropped on the window or opened with the program, as files with their posters beside them, or as
// folders of them: imported as one folder would be, with its questions. They stay where they are. What could not be
// taken, the notice line says.
void importeFichesDeposees(const Contexte& c, const std::vector<std::string>& chemins);

}  // namespace acquire
