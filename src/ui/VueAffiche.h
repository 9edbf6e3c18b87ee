#pragma once

#include "platform/ecran/Controles.h"
#include "ui/ImagesQt.h"
#include "ui/Liaison.h"

#include <QWidget>

class QLabel;

namespace ui {

// The poster of the sheet, drawn sharp at the size of its frame.
class VueAffiche final : public QWidget {
    Q_OBJECT
  public:
    VueAffiche(ImagesQt& images, QWidget* parent);
    [[nodiscard]] std::unique_ptr<Lien> lien(ecran::Image& etat);

  signals:
    void cliquee();

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    class LienImage;
    [[nodiscard]] QSize pixels() const;

    ImagesQt& m_images;
};

// The frame of the poster: the published box of 2895 by 4455 twips, enlarged with the window; without a picture, a quiet
// surface with the status caption.
class CadreAffiche final : public QWidget {
    Q_OBJECT
  public:
    explicit CadreAffiche(ImagesQt& images, QWidget* parent = nullptr);

    [[nodiscard]] VueAffiche* image() const { return m_image; }
    [[nodiscard]] QLabel* statut() const { return m_statut; }
    // Takes the largest size that fits, the published one where there is room for it.
    void tiensDans(const QSize& place);
    void montreImage(bool visible);

  signals:
    void statutClique();  // the status caption, or the surface around it, while no picture hides it

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    VueAffiche* m_image;
    QLabel* m_statut;
};

}  // namespace ui
