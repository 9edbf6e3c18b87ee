#pragma once

#include "edit/Contexte.h"

namespace edit {

// Stores the holdings part of the sheet as the current film's holding, or deletes that one where the film is no longer
// owned; nothing where no film is current. The film is shown again where the listing still has it, and the keys go to the
// list. Throws db::RequeteEchouee after its message, or dao::ErreurDao.
void cmdValiderInfosPossessions_Click(const Contexte& c);

}  // namespace edit
