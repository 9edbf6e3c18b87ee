#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

class BarreAffiche;
class Etiquette;
class ImageAffiche;

// frmAffiche, the poster at full size in a window of its own. It is composed when it first opens; until then, and while
// it is hidden, following the sheet costs it nothing.
class FenetreAffiche final : public QWidget {
    Q_OBJECT
  public:
    FenetreAffiche(const Atelier& atelier, QWidget* parent);

  protected:
    void closeEvent(QCloseEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;

  private:
    class LienAffiche;

    [[nodiscard]] view::EtatAffiche& etat() const { return m_atelier.etats().affiche; }
    void lit();
    void ecrit();
    void compose();
    void boutons();
    void ecoute();
    void dimensionne();
    void resteALEcran(const QPoint& centre);
    void place();
    void presente();
    void suisTaille();
    void montreImage(bool visible);
    void zoome(int crans, const QPoint& endroit);

    const Atelier m_atelier;
    ImageAffiche* m_image = nullptr;  // with the others, null until the first opening
    BarreAffiche* m_barre = nullptr;
    QWidget* m_bandeau = nullptr;  // behind the buttons and the scroll bar
    QWidget* m_pied = nullptr;
    Etiquette* m_taille = nullptr;
    std::string m_titre;
    int m_numero = -1;        // of the picture shown
    int m_presentation = 0;   // the last one carried out
    int m_valeurMontree = 0;  // of the scroll bar
    int m_roule = 0;          // of a notch of the wheel, in eighths of a degree
    bool m_placee = false;    // it has had its first place on the screen
};

}  // namespace ui
