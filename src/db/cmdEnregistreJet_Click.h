#pragma once

#include "db/Contexte.h"

namespace db {

// Writes the open base as a genuine Jet base of Access 2000 to 2003, for other programs: a copy, which the user names.
void cmdEnregistreJet_Click(const Contexte& c);

}  // namespace db
