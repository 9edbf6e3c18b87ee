#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

// The search, a strip above the page of what the list holds: a text, the fields it is looked for in, and among which
// films.
class PanneauRecherche final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauRecherche(const Atelier& atelier, QWidget* parent = nullptr);

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void showEvent(QShowEvent* evenement) override;

  private:
    [[nodiscard]] QWidget* champs(const Atelier& atelier);
    [[nodiscard]] QWidget* portee(const Atelier& atelier);

    const Atelier m_atelier;
    QLineEdit* m_texte;
};

}  // namespace ui
