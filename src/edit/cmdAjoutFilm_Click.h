#pragma once

#include "edit/Contexte.h"

namespace edit {

// Checks the manual entry and stores it. In add mode the film and its holding are added, the films of the day listed with
// the new one selected, and the page emptied for the next; in modify mode (caption of the button) the current film and
// its holding are rewritten, and the film shown again. Both rows are written, with the poster, or none of them. Throws
// db::RequeteEchouee after its message, or dao::ErreurDao.
void cmdAjoutFilm_Click(const Contexte& c);

}  // namespace edit
