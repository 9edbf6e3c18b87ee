#pragma once

#include "browse/Contexte.h"

namespace browse {

// Fills the tree from the listing recordset, under the headings of a sort, in one pass. Throws dao::ErreurDao when the
// listing cannot be read.
void AfficheTitres(const Contexte& c, int tri);

// A tree without nodes.
void videLesTitres(const Contexte& c);

// The share of each heading beside its text, or no longer. Nothing else of the window changes.
void AffStats_Click(const Contexte& c);

}  // namespace browse
