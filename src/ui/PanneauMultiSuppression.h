#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

// Deletion by ticking in the title tree: a band that stays over the sheets that are looked at meanwhile.
class PanneauMultiSuppression final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauMultiSuppression(const Atelier& atelier, QWidget* parent = nullptr);

  private:
    [[nodiscard]] QWidget* bande(const Atelier& atelier);
};

}  // namespace ui
