#pragma once

#include "browse/Contexte.h"

namespace browse {

inline constexpr int kVoletGeneralites = 0, kVoletAutresInfos = 1, kVoletLesDeux = 2;

// Shows a page of the sheet, or both where the layout has room for both (the page buttons are hidden then).
void AfficheVolet(const Contexte& c, int mode);

void cmdGeneralites_Click(const Contexte& c);
void cmdAutresInfos_Click(const Contexte& c);

}  // namespace browse
