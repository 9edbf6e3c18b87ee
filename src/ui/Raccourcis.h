#pragma once

#include "ui/Atelier.h"

class QKeyEvent;

namespace ui {

// The keys that the window takes beside those of its controls. They are told in the tool tips.
class Raccourcis final {
  public:
    Raccourcis(const Atelier& atelier, QWidget* fenetre);

    // A key that no control wanted; true when it was one of these.
    [[nodiscard]] bool prends(const QKeyEvent& evenement) const;

  private:
    [[nodiscard]] bool surLeFilm() const;

    const Atelier m_atelier;
    const QWidget* m_fenetre;
};

}  // namespace ui
