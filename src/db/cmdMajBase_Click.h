#pragma once

#include "db/Contexte.h"

namespace db {

// Brings every poster to the storage chosen for new ones. Stopped or killed anywhere, each film still has its poster, and
// the next conversion goes on. Throws dao::ErreurDao when the films cannot be read, systeme::FinDuProgramme as the
// compaction does.
void cmdMajBase_Click(const Contexte& c);

}  // namespace db
