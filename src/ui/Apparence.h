#pragma once

#include <string>

namespace ui {

// Dresses the application: its style and its colours, and Qt's own texts in French whatever the locale, from the program
// folder or else from Qt's. A desktop's own palette is kept, as far as its texts can be read. The style is the program's
// whatever the desktop's: its widgets paint themselves to match it; only QT_STYLE_OVERRIDE is stronger.
void habille(const std::string& dossierProgramme);

// Follows the light or dark colours that the desktop wishes for, from now on and for as long as the application lives.
void suisLaTeinteDuBureau();

}  // namespace ui
