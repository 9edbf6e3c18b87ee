#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

// Adding films: the three ways, each with its page.
class PanneauAjout final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauAjout(const Atelier& atelier, QWidget* parent = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    [[nodiscard]] QLayout* manieres(const Atelier& atelier);
    [[nodiscard]] QWidget* pageAutomatique(const Atelier& atelier);
    [[nodiscard]] QLayout* fiches(const Atelier& atelier);
    [[nodiscard]] QLayout* dossierDesFiches(const Atelier& atelier);
    [[nodiscard]] QLayout* internet(const Atelier& atelier);
    [[nodiscard]] QWidget* pageAncienneVersion(const Atelier& atelier);

    const Atelier m_atelier;
    QLineEdit* m_rechercheInternet = nullptr;
};

}  // namespace ui
