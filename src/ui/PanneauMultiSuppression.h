#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

// Deletion by ticking in the title tree.
class PanneauMultiSuppression final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauMultiSuppression(const Atelier& atelier, QWidget* parent = nullptr);
};

}  // namespace ui
