#pragma once

#include "export/Contexte.h"

namespace exportation {

// Writes the list of the owned titles, as plain text here or as an RTF document by CreeFichierRTF, and opens it.
//
// The text list is written whole or not at all: stopped by the user, or where it cannot be written, the command ends
// without a word and what stood there still stands. Throws db::RequeteEchouee when the listing cannot be opened,
// dao::ErreurDao when it cannot be read.
void cmdCreerListe_Click(const Contexte& c);

}  // namespace exportation
