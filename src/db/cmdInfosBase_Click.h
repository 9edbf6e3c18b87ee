#pragma once

#include "db/Base.h"
#include "platform/dialogues/Dialogues.h"

namespace db {

// Tells how many films have their poster in a file, and how many in the base. Throws dao::ErreurDao.
void cmdInfosBase_Click(Base& base, dialogues::Dialogues& dialogues);

}  // namespace db
