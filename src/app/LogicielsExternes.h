#pragma once

#include "app/Contexte.h"

#include <string>

namespace app {

// The page where extensions get their programs. A change goes into the table and into "Extensions.txt" at once, so that
// no end of the program loses it. Rows of an older file are shown and kept as they stand, whatever they hold.

void montreLogiciels(const Contexte& c);           // the program of the chosen extension, among those of the table
void Combo6_Click(const Contexte& c, int indice);  // 0: another extension is chosen; 1: another program is given to it
void cmdParcourirLogiciel_Click(const Contexte& c);
void cmdAjoutExtension_Click(const Contexte& c);  // with the default program; a refusal leaves what was typed
void cmdSupprExtension_Click(const Contexte& c);

// What was typed for an extension, without the blanks around it nor what "*.avi" and ".avi" put before it.
[[nodiscard]] std::string extensionTapee(const std::string& texte);

}  // namespace app
