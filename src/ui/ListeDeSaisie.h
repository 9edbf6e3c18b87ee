#pragma once

#include "ui/Boutons.h"

namespace ui {

// A list that may be typed in: it suggests its entries, and keeps what is typed to the letter.
[[nodiscard]] ListeDeroulante* listeDeSaisie();

}  // namespace ui
