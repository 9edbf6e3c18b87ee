#include "browse/CacheFiche.h"

namespace browse {

void CacheFiche(EtatPanneaux& panneaux) {
    if (!panneaux.figes) panneaux.frameFiche.Visible = false;
}

}  // namespace browse
