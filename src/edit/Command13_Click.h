#pragma once

#include "edit/Contexte.h"

#include <string>

namespace edit {

// The buttons at the top of the add panel, each of which opens one way of adding films. 0: automatic import and web
// search; 1: manual entry, of an empty sheet. Back to add mode whatever was being modified. Throws db::RequeteEchouee
// after its message.
void Command13_Click(const Contexte& c, int indice);

// The page of manual entry corrects that film from now on, and names it.
void passeEnCorrection(const Contexte& c, const std::string& titre);

}  // namespace edit
