#pragma once

#include "view/Contexte.h"

namespace view {

// The gestures in the viewer: its keys (codes as in Windows), among them the step to the next or previous title of the
// tree, its scroll bar, its size and the dragged picture (twips).

void Image1_Click(const Contexte& c);    // the sheet's poster: shows the viewer
void Picture1_Click(const Contexte& c);  // hides it, as closing its window does
void Picture1_KeyDown(const Contexte& c, int code);
void HScroll1_KeyDown(const Contexte& c, int code);
void HScroll1_Change(const Contexte& c);
void frmAffiche_KeyDown(const Contexte& c, int code);
void frmAffiche_Resize(const Contexte& c, int largeur, int hauteur);
// By Ctrl and the wheel, or Ctrl with +, - and 0; the point of the window that stays, in twips.
void zoomeAffiche(const Contexte& c, int crans, int x, int y);
void deplaceAffiche(const Contexte& c, int dx, int dy);  // by the wheel or by dragging

}  // namespace view
