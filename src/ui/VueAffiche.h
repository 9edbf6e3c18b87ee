#pragma once

#include "platform/ecran/Controles.h"
#include "ui/ImagesQt.h"
#include "ui/Liaison.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace ui {

class Etiquette;

// The poster of the sheet, drawn sharp at the size of its frame, and hardly larger than it is. While the next one is
// loaded the last one stays.
class VueAffiche final : public QWidget {
    Q_OBJECT
  public:
    VueAffiche(ImagesQt& images, QWidget* parent);
    [[nodiscard]] std::unique_ptr<Lien> lien(ecran::Image& etat);

    static constexpr double kAgrandissementMax = 1.3;  // of a picture

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
    QPixmap m_derniere;    // painted last
    QSize m_placeMontree;  // its size on the screen
};

// The frame of the poster: the published box of 2895 by 4455 twips, larger or smaller with the window. Without a picture
// it is a poster drawn of the film's names, with the status caption and the button that adds one.
class CadreAffiche final : public QWidget {
    Q_OBJECT
  public:
    explicit CadreAffiche(ImagesQt& images, QWidget* parent = nullptr);

    [[nodiscard]] VueAffiche* image() const { return m_image; }
    [[nodiscard]] QLabel* statut() const { return m_statut; }
    [[nodiscard]] QPushButton* ajouter() const { return m_ajouter; }
    // Takes the largest size that fits and that the picture fills. A picture on its way changes nothing.
    void tiensDans(const QSize& place);
    void montreImage(bool visible);
    void metNoms(const QString& titre, const QString& realisateur);

  signals:
    void statutClique();  // the status caption, its button or the surface around it, while no picture hides it

  protected:
    bool event(QEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    void composeDessin();

    ImagesQt& m_images;
    VueAffiche* m_image;
    Etiquette *m_titre, *m_realisateur;  // of the drawn poster
    QLabel* m_statut;
    QPushButton* m_ajouter;
    QRectF m_clap;
};

}  // namespace ui
