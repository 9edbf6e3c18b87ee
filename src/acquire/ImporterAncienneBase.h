#pragma once

#include "acquire/Contexte.h"

namespace acquire {

// The films, holdings and posters of a previous installation, brought into the open base. Nothing of the previous
// installation is written to; a second import of it adds nothing.

// The third button of the add panel: what the import does, and whether to go on.
void proposeImportAncienneBase(const Contexte& c);

// Asks for the folder, and for what its settings name and is not there; says which base and which images these are,
// imports, reports, and shows the base as it is then.
void ImporterAncienneBase(const Contexte& c);

}  // namespace acquire
