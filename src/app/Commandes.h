#pragma once

#include "app/Contexte.h"

namespace app {

// Commands of lower rooms that need one more thing around them.

// Opening another base first asks what to do with what is being typed.
void cmdChargeOuvreBase_Click(const Contexte& c);

// Where posters are files: chooses their folder. A cancelled choice changes nothing, nor does one in "Tmp", which is
// refused.
void cmdParcourir_Click(const Contexte& c);

void cmdSauverImage_Click(const Contexte& c);  // and tells where the poster was saved
void Label12_Click(const Contexte& c);  // gives a poster to the film that has none, replaces one that cannot be read

// Gestures on a node of a tree that was filled anew meanwhile do nothing: it bears another film by now.
void TreeView1_NodeClick(const Contexte& c, int indice);
void TreeView1_NodeCheck(const Contexte& c, int indice, bool coche);
void TreeView1_MouseUpDroit(const Contexte& c, int indice);  // asks for a menu: etats.menu

// The notice line: what it offers to do, and its end.
void cmdAvis_Click(const Contexte& c, int indice);
void cmdFermerAvis_Click(const Contexte& c);

}  // namespace app
