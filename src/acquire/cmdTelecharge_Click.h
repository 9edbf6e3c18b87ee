#pragma once

#include "acquire/Contexte.h"

namespace acquire {

// Where the downloader stands in the program folder.
inline constexpr const char* kProgrammeRapatrix = "Le Rapatrix/Rapatrix.exe";

// Hands a web search to the downloader, waits for its end, and imports the sheets that it left in "Tmp"; nothing without
// a text to look for. However this ends, neither its configuration nor a sheet stays there; what was neither added nor
// refused waits in FichesRecues' folder, which the next import is then proposed for.
void cmdTelecharge_Click(const Contexte& c);
void txtRechInternet_KeyDown(const Contexte& c, int code, int majuscule);

// The page was opened: says where to put the downloader when it is not there.
void ouvrePageTelechargement(const Contexte& c);

}  // namespace acquire
