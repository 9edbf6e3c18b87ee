#pragma once

#include "ui/Atelier.h"
#include "ui/VueTitres.h"

#include <QWidget>

namespace ui {

// The left side: what is listed, in which order, and the title tree.
class PanneauListe final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauListe(const Atelier& atelier, QWidget* parent = nullptr);
    [[nodiscard]] VueTitres* titres() const { return m_titres; }
    [[nodiscard]] QWidget* comptes();  // for the window's foot

  private:
    [[nodiscard]] QWidget* choix();
    [[nodiscard]] QWidget* cadreTitres();
    [[nodiscard]] QWidget* raisonDuVide();
    void suisLesGestes();

    const Atelier m_atelier;
    VueTitres* m_titres = nullptr;
};

}  // namespace ui
