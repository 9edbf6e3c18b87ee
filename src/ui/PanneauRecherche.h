#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

// The search: a text, the fields it is looked for in, and among which films.
class PanneauRecherche final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauRecherche(const Atelier& atelier, QWidget* parent = nullptr);

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void showEvent(QShowEvent* evenement) override;

  private:
    [[nodiscard]] QLayout* champs(const Atelier& atelier);
    [[nodiscard]] QLayout* portee(const Atelier& atelier);

    const Atelier m_atelier;
    QLineEdit* m_texte;
};

}  // namespace ui
