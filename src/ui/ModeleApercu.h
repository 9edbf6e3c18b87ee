#pragma once

#include "ensemble/Apercus.h"
#include "ui/ModeleDeLignes.h"

namespace ui {

// What would change, film by film.
class ModeleApercu final : public ModeleDeLignes {
    Q_OBJECT
  public:
    enum Colonne { Film, Realisateur, Avant, Apres };
    ModeleApercu() : ModeleDeLignes({tr("Film"), tr("Réalisateur"), tr("Avant"), tr("Après")}) {}

    void met(std::vector<ensemble::Changement> changements) {
        recommence([&] { m_changements = std::move(changements); });
    }

  private:
    [[nodiscard]] int nombre() const override { return static_cast<int>(m_changements.size()); }
    [[nodiscard]] Cellule cellule(int rang, int colonne) const override;

    std::vector<ensemble::Changement> m_changements;
};

}  // namespace ui
