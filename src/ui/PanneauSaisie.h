#pragma once

#include "ui/Atelier.h"

#include <QWidget>

class QPushButton;

namespace ui {

// The manual entry of a sheet.
class PanneauSaisie final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauSaisie(const Atelier& atelier, QWidget* parent = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    [[nodiscard]] QLayout* grille();
    [[nodiscard]] QLayout* resume();
    [[nodiscard]] QLayout* bas();
    [[nodiscard]] QWidget* affichette();
    [[nodiscard]] QWidget* texte(std::size_t indice);
    [[nodiscard]] QWidget* liste(const char* nom, ecran::Liste& etat);

    const Atelier m_atelier;
    QPushButton* m_ajouter = nullptr;
    QWidget* m_affichette = nullptr;
};

}  // namespace ui
