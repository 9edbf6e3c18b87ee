#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

// The foot of the window, always there and always as high: the counts, and beside them the notice, or the work that lasts
// over it. Nothing above moves when one of them comes or goes.
class Pied final : public QWidget {
    Q_OBJECT
  public:
    Pied(const Atelier& atelier, QWidget* comptes, QWidget* parent = nullptr);
};

}  // namespace ui
