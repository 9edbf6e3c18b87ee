#pragma once

#include "ui/Atelier.h"

#include <QWidget>
#include <vector>

class QPushButton;
class QTreeWidget;

namespace ui {

// The safety copies of the open base: a list of them, what the chosen one holds beside today's base, and the way back to
// it. Composed when it first opens.
class FenetreSauvegardes final : public QWidget {
    Q_OBJECT
  public:
    FenetreSauvegardes(const Atelier& atelier, QWidget* parent);

  protected:
    void closeEvent(QCloseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    void suitLEtat();
    void presente();
    void compose();
    [[nodiscard]] QTreeWidget* liste();
    void remplit();
    void activeLesBoutons();
    void compare();
    void revient();

    const Atelier m_atelier;
    QTreeWidget* m_liste = nullptr;
    QPushButton* m_comparer = nullptr;
    QPushButton* m_revenir = nullptr;
    std::vector<app::EtatSauvegardes::Ligne> m_lignes;  // those that the list shows
    int m_presentation = 0;                             // the last one carried out
};

}  // namespace ui
