#pragma once

#include "ui/DelegueLignes.h"

#include <QString>
#include <QVariant>
#include <optional>

namespace ui {

// What a cell of a page's list shows, beside its place.
struct Cellule {
    QString texte;
    bool forte = false, discrete = false;
    std::optional<bool> cochee{};
    QString infobulle{};
    QString entendue{};  // instead of the text, where that is not what a reader is to hear
    bool aDroite = false;
};

// What Qt, and the list's delegate, ask of a model by its role. In the first column the whole row is heard, unless the cell
// says what is.
[[nodiscard]] QVariant donnee(const Cellule& cellule, const QModelIndex& index, int role);

}  // namespace ui
