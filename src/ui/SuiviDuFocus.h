#pragma once

#include "ui/Atelier.h"

#include <QPointer>

namespace ui {

// Where the keys go after a command: where the command asked, else where they went before it, and to the title tree
// when that can no longer take them. A control that is hidden or disabled never keeps them.
class SuiviDuFocus final {
  public:
    SuiviDuFocus(QWidget& fenetre, QWidget& arbre) : m_fenetre(fenetre), m_arbre(arbre) {}

    void releve() { m_avant = m_fenetre.focusWidget(); }  // before a command
    void donne(const std::string& demande);               // after it; the name of a control, or empty

  private:
    [[nodiscard]] bool peutPrendre(const QWidget* widget) const;

    QWidget& m_fenetre;
    QWidget& m_arbre;
    QPointer<QWidget> m_avant;
};

// Tab enters a group of option buttons at its checked one; the arrows go from one to the next, as ever.
void entreParLeChoisi(Liaison& liaison, QWidget& fenetre);

// Tab goes from `apres` into the zone, and through it as it is read.
void suisAuClavier(QWidget* apres, const QWidget& zone);

}  // namespace ui
