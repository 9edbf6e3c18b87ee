#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

// The tools that look after the base.
class PanneauOutils final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauOutils(const Atelier& atelier, QWidget* parent = nullptr);
};

}  // namespace ui
