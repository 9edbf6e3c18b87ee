#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

// The line at the bottom that tells what was just done or set aside, with what can be done about it.
class BandeAvis final : public QWidget {
    Q_OBJECT
  public:
    explicit BandeAvis(const Atelier& atelier, QWidget* parent = nullptr);

  private:
    void annonce();  // to screen readers, once for each notice

    const ecran::EtatAvis& m_etat;
    QWidget* m_texte;
    int m_annonce = 0;
};

}  // namespace ui
