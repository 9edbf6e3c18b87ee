#pragma once

#include "ui/Atelier.h"
#include "ui/PressePapiers.h"

#include <QObject>

class QKeyEvent;

namespace ui {

// The keys that the window takes beside those of its controls. They are told in the tool tips.
class Raccourcis final : public QObject {
    Q_OBJECT
  public:
    Raccourcis(const Atelier& atelier, QWidget* fenetre);

    // A key that no control wanted; true when it was one of these.
    [[nodiscard]] bool prends(const QKeyEvent& evenement) const;

  protected:
    // A text field with nothing to take back leaves Ctrl+Z to the window.
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    [[nodiscard]] bool surLeFilm() const;

    const Atelier m_atelier;
    const QWidget* m_fenetre;
    const PressePapiers m_pressePapiers;
};

}  // namespace ui
