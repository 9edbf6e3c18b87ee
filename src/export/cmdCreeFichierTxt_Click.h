#pragma once

#include "export/Contexte.h"

namespace exportation {

// Writes the sheet on the screen to a text file of the user's choice. The name proposed is the title as it stands, with
// signs that the system may refuse; a file that cannot be written brings no box, and leaves what stood there.
void cmdCreeFichierTxt_Click(const Contexte& c);

}  // namespace exportation
