#include "browse/ChoixTri.h"

namespace browse {

void ChoixTri::Click() {
    if (!m_liste.occupe && m_liste.ChoixTri.ListIndex != -1) m_affichageApresModification();
}

}  // namespace browse
