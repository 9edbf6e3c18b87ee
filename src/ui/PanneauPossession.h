#pragma once

#include "ui/Atelier.h"

#include <QWidget>

class QPushButton;

namespace ui {

// The page of the user's own copy: owned or not, where it is, to whom it is lent, its files.
class PanneauPossession final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauPossession(const Atelier& atelier, QWidget* parent = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    [[nodiscard]] QLayout* choix();
    [[nodiscard]] QWidget* suite();
    [[nodiscard]] QWidget* exemplaire();
    [[nodiscard]] QLayout* ou();
    [[nodiscard]] QLayout* qui();
    [[nodiscard]] QLayout* fichiers();
    [[nodiscard]] QWidget* texte(std::size_t indice, const QString& nom);
    [[nodiscard]] QWidget* liste(std::size_t indice);
    [[nodiscard]] QLayout* fichier(std::size_t indice);

    const Atelier m_atelier;
    QPushButton* m_valider = nullptr;
};

// What can be done with the sheet, whichever of its pages is shown.
class PanneauActions final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauActions(const Atelier& atelier, QWidget* parent = nullptr);
};

}  // namespace ui
