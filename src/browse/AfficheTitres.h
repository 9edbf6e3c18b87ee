#pragma once

#include "browse/Contexte.h"

namespace browse {

// Fills a tree from a listing, under the headings of a sort, aside: the window lives on meanwhile and shows the old tree. Then
// listing and tree take the place of the old ones at once. Throws dao::ErreurDao when the listing cannot be read: both are
// as they were.
void AfficheTitres(const Contexte& c, dao::Recordset liste, int tri);

// A tree without nodes.
void videLesTitres(const Contexte& c);

// The share of each heading beside its text, or no longer. Nothing else of the window changes.
void AffStats_Click(const Contexte& c);

}  // namespace browse
