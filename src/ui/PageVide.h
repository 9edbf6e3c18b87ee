#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

class Etiquette;

// Beside an empty list: why it is empty, where the eye is.
class PageVide final : public QWidget {
    Q_OBJECT
  public:
    explicit PageVide(const Atelier& atelier, QWidget* parent = nullptr);

    void suis(bool pageDesFilms);  // the page of the listing's films is what is shown

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    const Atelier m_atelier;
    QWidget* m_signe;
    Etiquette* m_raison;
};

}  // namespace ui
