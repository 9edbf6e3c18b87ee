#pragma once

#include "ui/Atelier.h"

#include <QWidget>

class QLabel;

namespace ui {

// What the right side shows before a film is chosen: in an empty base what the program is and what to do first; else no
// more than what can be done with the page of the listing above it.
class PanneauAccueil final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauAccueil(const Atelier& atelier, QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    [[nodiscard]] QWidget* premiersPas(const Atelier& atelier);

    QWidget* m_signe = nullptr;
};

}  // namespace ui
