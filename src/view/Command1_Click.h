#pragma once

#include "view/Contexte.h"

namespace view {

// The button of the sheet: shows frmFichiersFilm.
void cmdFichiersFilm_Click(const Contexte& c);

// The buttons of frmFichiersFilm: finds an attached file of the current film on whatever volume it now lies, and opens it
// with the program of its extension, or with the desktop's own. 0 to 2: that file; 3: hides the window.
void Command1_Click(const Contexte& c, int indice);

}  // namespace view
