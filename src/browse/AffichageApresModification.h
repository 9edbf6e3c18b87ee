#pragma once

#include "browse/Contexte.h"

namespace browse {

// The common refresh: the presentation, then the listing of the current zone and sort, narrowed by the search while
// "Recherche" is selected.
void AffichageApresModification(const Contexte& c);

// Lists all films. The sort stays, where they have it.
void listeTousLesFilms(const Contexte& c);

}  // namespace browse
