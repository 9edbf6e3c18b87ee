#pragma once

#include "db/Contexte.h"

namespace db {

// Deletes every holding, when the user agrees: all of them or, when that fails, none. Throws dao::ErreurDao.
void cmdSupprInfosPerso_Click(const Contexte& c);

}  // namespace db
