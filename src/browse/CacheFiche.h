#pragma once

#include "browse/EtatPanneaux.h"

namespace browse {

// Hides the sheet. Its pages keep their own visibility: the next sheet opens on the page that was open.
void CacheFiche(EtatPanneaux& panneaux);

}  // namespace browse
