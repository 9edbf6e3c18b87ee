#pragma once

#include "ui/ImagesQt.h"

#include <QScrollBar>
#include <QWidget>

namespace ui {

// The code that Windows gives to a key the viewer knows; 0 for any other, and for one held with Ctrl or Alt.
[[nodiscard]] int codeWindows(const QKeyEvent& evenement);

// Picture1: the poster at its own size in logical pixels, dragged or clicked. Only what is to be seen is painted.
class ImageAffiche final : public QWidget {
    Q_OBJECT
  public:
    ImageAffiche(ImagesQt& images, QWidget* parent);

  signals:
    void cliquee();
    void glissee(const QPoint& deplacement);  // since the last time
    void touche(int code);

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    ImagesQt& m_images;
    QPoint m_prise, m_derniere;  // on the screen, as the picture itself moves
    bool m_glisse = false;
};

// HScroll1: Page Up and Page Down are the viewer's, the other keys a scroll bar's own.
class BarreAffiche final : public QScrollBar {
    Q_OBJECT
  public:
    explicit BarreAffiche(QWidget* parent);

    void metUtile(bool aDefiler);  // it shows while there is something to scroll, or while it has the focus

  signals:
    void touche(int code);

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;  // left to the window, which scrolls by pixels

  private:
    bool m_utile = true;
};

}  // namespace ui
