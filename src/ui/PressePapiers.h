#pragma once

#include "ui/Atelier.h"

class QKeyEvent;

namespace ui {

// Ctrl+C on the poster takes the picture, elsewhere on the sheet its text; Ctrl+V of a picture gives it to the film. Only
// what the controls themselves leave comes here: a field copies and pastes its own text.
class PressePapiers {
  public:
    PressePapiers(const Atelier& atelier, const QWidget* fenetre) : m_atelier(atelier), m_fenetre(fenetre) {}
    [[nodiscard]] bool prends(const QKeyEvent& evenement) const;

  private:
    [[nodiscard]] bool copie() const;
    [[nodiscard]] bool colle() const;

    const Atelier m_atelier;
    const QWidget* m_fenetre;
};

}  // namespace ui
