#pragma once

#include "db/EtatStockage.h"
#include "platform/dialogues/Dialogues.h"

namespace app {

// Chooses the folder of poster files; a cancelled choice changes nothing.
void cmdParcourir_Click(db::EtatStockage& stockage, dialogues::Dialogues& dialogues);

}  // namespace app
