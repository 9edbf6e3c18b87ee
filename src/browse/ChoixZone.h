#pragma once

#include "browse/Contexte.h"

namespace browse {

// The events of the zone list.

void ChoixZone_Click(const Contexte& c);     // an entry was selected, by the user or by the program
void ChoixZone_DropDown(const Contexte& c);  // the list opens: "Recherche" leaves it; the listing stays until a pick
void ChoixZone_CloseUp(const Contexte& c);   // the list closed: where nothing was picked, it names what the tree shows

}  // namespace browse
