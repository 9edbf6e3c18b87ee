#include "browse/CacheFiche.h"

namespace browse {

void CacheFiche(EtatPanneaux& panneaux) {
    panneaux.frameFiche.Visible = false;
}

}  // namespace browse
