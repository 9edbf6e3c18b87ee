#pragma once

#include "ui/Atelier.h"

class QMenu;

namespace ui {

// The three pop-up menus of the title tree, named as published.
class MenusArbre final {
  public:
    MenusArbre(const Atelier& atelier, QWidget* fenetre);
    void montre(app::MenuContextuel menu, const QPoint& endroit);

  private:
    QMenu* m_film;
    QMenu* m_support;
    QMenu* m_genre;
};

}  // namespace ui
