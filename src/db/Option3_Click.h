#pragma once

#include "db/Contexte.h"

namespace db {

// Where new posters go was chosen, by the user or by the settings: gives the images folder its default when it has none
// (and makes that folder), and enables the folder's controls when posters go there.
void Option3_Click(const Contexte& c);

}  // namespace db
