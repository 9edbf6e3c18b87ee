#pragma once

#include "db/Chemins.h"
#include "db/EtatStockage.h"

namespace app {

// Removes what killed runs left of files that they were writing, from the folders that the program writes to: its own,
// "Tmp", the images' and the base's. Nothing else goes.
void effaceRestes(const db::Chemins& chemins, const db::EtatStockage& stockage);

}  // namespace app
