#pragma once

#include "ui/Atelier.h"

namespace ui {

// Reads the sheets of the folder that the page names, with progress and stop, and shows over the window of that widget what
// an import would do with each.
void ouvreApercuDesFiches(const Atelier& atelier, QWidget* widget);

}  // namespace ui
