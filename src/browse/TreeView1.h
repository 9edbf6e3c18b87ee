#pragma once

#include "browse/Contexte.h"

namespace browse {

// The menu that a right click on the tree asks for.
enum class MenuArbre { Aucun, Film, Support, Genre };

// The events of the title tree. Indexes are those of the nodes, from 1; others are ignored.

void TreeView1_NodeClick(const Contexte& c, int indice);

// A heading that gets ticked is unticked again, with a message.
void TreeView1_NodeCheck(const Contexte& c, int indice, bool coche);

// The right button over a node does first what a click on it does; over none (0) it is for the node chosen before. Over
// the node that is chosen already nothing is shown anew: what the user is typing beside it stays.
[[nodiscard]] MenuArbre TreeView1_MouseUp(const Contexte& c, int indice);

}  // namespace browse
