#pragma once

#include <QAbstractButton>

namespace ui {

// A short fact in a rounded frame that leads to where it is changed. Bold, it is told by a full dot; what asks for
// attention is filled with the accent colour. Elided where it does not fit, and told whole by its tool tip.
class BoutonPuce final : public QAbstractButton {
    Q_OBJECT
  public:
    enum class Genre { Etat, Appel, Annonce };
    explicit BoutonPuce(Genre genre, QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    bool event(QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    struct Habit {
        QColor fond, bord, encre;
    };
    [[nodiscard]] Habit habit() const;
    [[nodiscard]] int retrait() const;  // of the text, left
    [[nodiscard]] QString texteMontre() const;

    const Genre m_genre;
};

}  // namespace ui
