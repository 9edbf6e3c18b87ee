#pragma once

#include "ui/ModeleDeLignes.h"
#include "voisins/Examen.h"

#include <vector>

namespace ui {

// The films of another program's collection: what the base has of each, and whether it is to be added. Those that the user
// has to judge come first.
class ModeleVoisins final : public ModeleDeLignes {
    Q_OBJECT
  public:
    enum Colonne { Film, Realisateur, Annee, Exemplaire, Sort };
    explicit ModeleVoisins(voisins::Examen examen, QObject* parent = nullptr);

    [[nodiscard]] const voisins::Examen& examen() const { return m_examen; }
    void metOptions(bool possedes, bool complete);
    // Ticks or unticks what can be added.
    void bascule(const QModelIndex& index);
    void cocheTout(bool oui);

  signals:
    void change();

  private:
    [[nodiscard]] int nombre() const override { return static_cast<int>(m_ordre.size()); }
    [[nodiscard]] Cellule cellule(int ligne, int colonne) const override;
    [[nodiscard]] bool peutEtreCochee(int ligne) const override;
    void coche(int ligne, bool oui) override;
    [[nodiscard]] std::size_t rang(int ligne) const { return m_ordre[static_cast<std::size_t>(ligne)]; }

    voisins::Examen m_examen;
    std::vector<std::size_t> m_ordre;
};

}  // namespace ui
