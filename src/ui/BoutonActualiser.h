#pragma once

#include <QPushButton>

namespace ui {

// A flat square button with an arrow that turns back on itself.
class BoutonActualiser final : public QPushButton {
    Q_OBJECT
  public:
    explicit BoutonActualiser(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* evenement) override;
};

}  // namespace ui
