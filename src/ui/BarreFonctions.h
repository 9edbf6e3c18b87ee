#pragma once

#include "ui/Atelier.h"

#include <QWidget>
#include <vector>

class QPushButton;

namespace ui {

// The top of the window: the program's name, and the way to each function.
class BarreFonctions final : public QWidget {
    Q_OBJECT
  public:
    explicit BarreFonctions(const Atelier& atelier, QWidget* parent = nullptr);

  protected:
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    struct Nommee {
        QPushButton* bouton;
        QString texte;
    };
    std::vector<Nommee> m_cedent;  // what is left a drawing where not all texts have room, in that order
};

}  // namespace ui
