#pragma once

#include "ensemble/PairesAVoir.h"
#include "ui/ModeleDeLignes.h"

namespace ui {

// The pairs of films that are to be looked at, which live with the page.
class ModelePaires final : public ModeleDeLignes {
    Q_OBJECT
  public:
    enum Colonne { Gauche, Droite, Titre, Realisateur };
    explicit ModelePaires(const ensemble::PairesAVoir& paires)
        : ModeleDeLignes({tr("Film"), tr("ressemble à"), tr("Titre"), tr("Réali")}), m_paires(paires) {}

    void change() {
        recommence([] {});
    }  // after each change of the pairs

  private:
    [[nodiscard]] int nombre() const override { return static_cast<int>(m_paires.nombre()); }
    [[nodiscard]] Cellule cellule(int rang, int colonne) const override;

    const ensemble::PairesAVoir& m_paires;
};

}  // namespace ui
