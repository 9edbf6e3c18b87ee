#pragma once

#include "ui/Atelier.h"
#include "ui/VueTitres.h"

#include <QWidget>

namespace ui {

// The left side: what is listed, in which order, the title tree and the two counts.
class PanneauListe final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauListe(const Atelier& atelier, QWidget* parent = nullptr);
    [[nodiscard]] VueTitres* titres() const { return m_titres; }

  private:
    [[nodiscard]] QLayout* choix();
    [[nodiscard]] QWidget* cadreTitres();
    [[nodiscard]] QLayout* comptes();
    void suisLesGestes();

    const Atelier m_atelier;
    VueTitres* m_titres = nullptr;
};

}  // namespace ui
