#pragma once

#include "edit/Contexte.h"

namespace edit {

// Deletes the current film, with its holding when the sheet shows it as owned. Poster files stay. Nothing happens without
// a current film. Throws db::RequeteEchouee after its message, or dao::ErreurDao; film and holding are then both there
// still.
void cmdSupprimerTitre_Click(const Contexte& c);

}  // namespace edit
