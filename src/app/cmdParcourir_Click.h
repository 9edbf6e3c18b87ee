#pragma once

#include "db/Chemins.h"
#include "db/EtatStockage.h"
#include "platform/dialogues/Dialogues.h"

namespace app {

// Chooses the folder of poster files; a cancelled choice changes nothing, nor does one in "Tmp", which is refused.
void cmdParcourir_Click(db::EtatStockage& stockage, const db::Chemins& chemins, dialogues::Dialogues& dialogues);

}  // namespace app
