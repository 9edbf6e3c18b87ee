#pragma once

#include "db/Contexte.h"

namespace db {

// Tells how many films have their poster in a file, and how many in the base. Throws dao::ErreurDao.
void cmdInfosBase_Click(const Contexte& c);

}  // namespace db
