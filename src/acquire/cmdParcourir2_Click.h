#pragma once

#include "acquire/Contexte.h"

#include <string>

namespace acquire {

// The folder to import from, chosen or typed, and how many sheets it holds.

void cmdParcourir2_Click(const Contexte& c);  // a cancelled choice changes nothing
void txtCheminAjoutAuto_Change(const Contexte& c);

// Before an import: a path of Windows leads nowhere here and opens the choice. False when it is still there then.
[[nodiscard]] bool remplaceCheminWindows(const Contexte& c);

// The folder that txtCheminAjoutAuto names, from the root; empty for none.
[[nodiscard]] std::string dossierDesFiches(const Contexte& c);

// Says how many sheets that folder holds; nothing where none is named.
void montreNombreDeFiches(const Contexte& c);

}  // namespace acquire
