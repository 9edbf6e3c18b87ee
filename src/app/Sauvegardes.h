#pragma once

#include "app/Contexte.h"

#include <string>

namespace app {

// The safety copies of the open base: their window, what one of them holds, and the way back to it. A copy is named by
// its line; one that is gone meanwhile, or is another base's by now, is told and the lines are read again.
void cmdSauvegardes_Click(const Contexte& c);
void cmdComparerSauvegarde_Click(const Contexte& c, int ligne);
// Asks first; what is typed asks too, as another base would.
void cmdRevenirSauvegarde_Click(const Contexte& c, int ligne);
void cmdFermerSauvegardes_Click(const Contexte& c);

// The start, where a base does not open. With another base in its place the notice line offers the damaged one's last
// copy; with none, a box does. Nothing where it has no copy, or where its file is not what is wrong with it.
void annonceSauvegarde(const Contexte& c, const std::string& base);
[[nodiscard]] bool accepteLaSauvegarde(const Contexte& c, const std::string& base);  // it stands there by now
// An empty base was made where one was: says so, and offers the last copy.
void annonceBaseRefaite(const Contexte& c);

}  // namespace app
