#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

// The top of the window: the program's name, and the way to each function.
class BarreFonctions final : public QWidget {
    Q_OBJECT
  public:
    explicit BarreFonctions(const Atelier& atelier, QWidget* parent = nullptr);
};

}  // namespace ui
