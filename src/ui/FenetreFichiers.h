#pragma once

#include "ui/Atelier.h"

#include <QWidget>
#include <array>

class QPushButton;

namespace ui {

// frmFichiersFilm: a button for each attached file of the film shown, and one to close. Its title and its buttons follow
// the film while it is open.
class FenetreFichiers final : public QWidget {
    Q_OBJECT
  public:
    explicit FenetreFichiers(const Atelier& atelier, QWidget* parent);

  protected:
    void closeEvent(QCloseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    QPushButton* boutonFichier(std::size_t indice);
    void suisLeFilm();
    void presente();

    const Atelier m_atelier;
    std::array<QPushButton*, 3> m_fichiers{};
    int m_presentation = 0;  // the last one carried out
    bool m_placee = false;   // it has had its first place on the screen
};

}  // namespace ui
