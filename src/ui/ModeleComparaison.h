#pragma once

#include "ensemble/Fusion.h"
#include "ui/ModeleDeLignes.h"

namespace ui {

// Two films field by field, and which value of each the one film is to have: the checked one.
class ModeleComparaison final : public ModeleDeLignes {
    Q_OBJECT
  public:
    enum Colonne { Champ, Gauche, Droite };
    ModeleComparaison() : ModeleDeLignes({QString(), tr("À gauche (reste)"), tr("À droite")}) {}

    // There is nothing to choose any more; what the two are is said. Nothing for the left one: there is the right one alone.
    void metEnLecture(const QString& gauche, const QString& droite);

    void met(ensemble::PlanDeFusion plan);
    [[nodiscard]] const ensemble::PlanDeFusion& plan() const { return m_plan; }
    // Of a field whose two values are not the same and where there is something to take; else nothing.
    void choisit(int rang, bool droite);
    void bascule(int rang);

  private:
    [[nodiscard]] int nombre() const override {
        return static_cast<int>(m_plan.film.size() + m_plan.possession.size());
    }
    [[nodiscard]] Cellule cellule(int rang, int colonne) const override;
    [[nodiscard]] const ensemble::ChampCompare& champ(int rang) const;
    [[nodiscard]] bool seChoisit(const ensemble::ChampCompare& champ) const;

    ensemble::PlanDeFusion m_plan;
    bool m_enLecture = false, m_seule = false;
};

}  // namespace ui
