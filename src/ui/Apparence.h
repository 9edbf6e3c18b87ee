#pragma once

#include <string>

namespace ui {

// Dresses the application: its style where the desktop brings none of its own, and Qt's own texts in French whatever the
// locale, from the program folder or else from Qt's.
void habille(const std::string& dossierProgramme);

}  // namespace ui
