#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

// The strip at the bottom that keeps the last exported file at hand, until the user closes it.
class BandeExport final : public QWidget {
    Q_OBJECT
  public:
    explicit BandeExport(const Atelier& atelier, QWidget* parent = nullptr);
};

}  // namespace ui
