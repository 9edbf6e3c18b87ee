#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

class ListeDeroulante;

// The settings: where posters are kept, programs, the program itself.
class PanneauConfig final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauConfig(const Atelier& atelier, QWidget* parent = nullptr);

  private:
    [[nodiscard]] QLayout* images(const Atelier& atelier);
    [[nodiscard]] QLayout* logiciels(const Atelier& atelier);
    [[nodiscard]] ListeDeroulante* listeLogiciels(const Atelier& atelier, int indice);
    [[nodiscard]] QLayout* nouvelleExtension(const Atelier& atelier);
    [[nodiscard]] QLayout* programme(const Atelier& atelier);
    [[nodiscard]] QLayout* sauvegardes(const Atelier& atelier);
};

}  // namespace ui
