#pragma once

#include "db/Contexte.h"

#include <string>

namespace db {

// Asks where a file is to be written. The whole path: "~" is understood, a bare name lies in the program folder; empty
// when the user gives up. A path of Windows opens the choice of a place for that file name; given up, it is typed again.
// As in `demande`, the extension that is to be appended is not part of the answer.
[[nodiscard]] std::string demandeCheminAEcrire(const Contexte& c, const dialogues::DemandeChemin& demande);

}  // namespace db
