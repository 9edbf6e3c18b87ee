#pragma once

#include "app/Extensions.h"
#include "db/Chemins.h"
#include "platform/dialogues/Dialogues.h"

namespace app {

// Replaces "Extensions.txt" by the first `nombre` rows; tells the user when it cannot be.
void enregistreExtensions(const TableExtensions& table, std::size_t nombre, const db::Chemins& chemins,
                          dialogues::Dialogues& dialogues);

}  // namespace app
