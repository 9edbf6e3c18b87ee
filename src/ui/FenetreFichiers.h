#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

// frmFichiersFilm: a button for each attached file of the film shown, and one to close. Its title follows the film; the
// file buttons stay greyed as long as nothing launches a file.
class FenetreFichiers final : public QWidget {
    Q_OBJECT
  public:
    explicit FenetreFichiers(const Atelier& atelier, QWidget* parent);
};

}  // namespace ui
