#pragma once

#include "browse/Contexte.h"

namespace browse {

// Shows the sheet of the tree's selected node and makes its film the current one. A heading, no selection, and a film
// deleted meanwhile show the presentation instead. Throws db::RequeteEchouee after its message, or dao::ErreurDao; the
// presentation is shown then.
void AfficheFiche(const Contexte& c);

}  // namespace browse
