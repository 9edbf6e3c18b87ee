#pragma once

#include "ui/Liaison.h"

#include <QWidget>
#include <optional>

namespace ui {

// The rating as ten stars. The mouse gives it by a click; with the keys, which have one stop here, the arrows, Home and
// End propose a rating from 0, none, to 10, Enter gives it, and Escape or leaving drops what was proposed.
class EtoilesNote final : public QWidget {
    Q_OBJECT
  public:
    explicit EtoilesNote(QWidget* parent = nullptr);
    [[nodiscard]] std::unique_ptr<Lien> lien(const double& note);

    // What the stars show now: the star under the mouse, what the keys propose, or the rating.
    [[nodiscard]] double montree() const;
    [[nodiscard]] QString texte() const;  // "8 sur 10", "Pas de notation"

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    void etoileCliquee(int etoile);  // 1 to 10
    void noteChoisie(int note);      // 0 to 10

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;
    void leaveEvent(QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;

  private:
    class LienNote;
    [[nodiscard]] double cote() const;
    [[nodiscard]] int etoileSous(const QPointF& endroit) const;  // 0 for none
    void propose(std::optional<int> note);
    void annonce();

    double m_note = 0;
    std::optional<int> m_proposee;  // by the keys
    int m_survol = 0;
    int m_pressee = 0;
};

}  // namespace ui
