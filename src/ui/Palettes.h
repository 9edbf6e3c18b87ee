#pragma once

#include <QPalette>

namespace ui {

// The program's own colours, where the desktop brings none.
[[nodiscard]] QPalette paletteClaire();
[[nodiscard]] QPalette paletteSombre();

// The palette with every text legible on its surface: what already is stays as it is.
[[nodiscard]] QPalette rendueLisible(QPalette palette);

}  // namespace ui
