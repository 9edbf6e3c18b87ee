#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

// The function panels: adding, and behind two pages the tools and the configuration.
class PanneauFonctions final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauFonctions(const Atelier& atelier, QWidget* parent = nullptr);

  private:
    [[nodiscard]] QWidget* onglets(const Atelier& atelier);
};

}  // namespace ui
