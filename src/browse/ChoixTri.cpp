#include "browse/ChoixTri.h"

#include "browse/AffichageApresModification.h"

namespace browse {

void ChoixTri_Click(const Contexte& c) {
    if (!c.liste.occupe && c.liste.ChoixTri.ListIndex != -1) AffichageApresModification(c);
}

}  // namespace browse
