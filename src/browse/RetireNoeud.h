#pragma once

#include "browse/EtatListe.h"

namespace browse {

// Takes a film's node out of the tree with its tick and its selection; what is ticked and selected after it follows.
// No node is the chosen one afterwards.
void retireNoeud(EtatListe& liste, int indice);

}  // namespace browse
