#pragma once

#include "edit/Contexte.h"

#include <string>

namespace edit {

// The user's gestures in the holdings part of the sheet: each makes the validate button visible, and nothing is written
// before that one is pressed. The indexes are those of Combo7, Text10 and Command2.

void Option1_Click(const Contexte& c);  // owned or not, as Option1 tells after the click
void Combo7_Change(const Contexte& c, int indice);
void Text10_Change(const Contexte& c, int indice);

// Chooses the attached file of a slot, 0 to 2; the file is neither copied nor checked.
void Command2_Click(const Contexte& c, int indice);
void attacheFichier(const Contexte& c, int indice, const std::string& fichier);  // one that was chosen otherwise

}  // namespace edit
