#pragma once

#include <QString>

namespace ui {

// The text as it is shown: a line neither begins with a sign that French sets off by a blank (; : ! ? ») nor ends with an
// opening «. As long as the text itself, letter for letter, for what measures and cuts it.
[[nodiscard]] QString sansSigneIsole(QString texte);

}  // namespace ui
