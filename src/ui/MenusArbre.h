#pragma once

#include "app/Etats.h"

#include <QWidget>

class QMenu;

namespace ui {

// The three pop-up menus of the title tree, named as published.
class MenusArbre final {
  public:
    explicit MenusArbre(QWidget* fenetre);
    void montre(app::MenuContextuel menu, const QPoint& endroit);

  private:
    QMenu* m_film;
    QMenu* m_support;
    QMenu* m_genre;
};

}  // namespace ui
