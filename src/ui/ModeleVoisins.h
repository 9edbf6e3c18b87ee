#pragma once

#include "voisins/Examen.h"

#include <QAbstractTableModel>
#include <vector>

namespace ui {

// The films of another program's collection: what the base has of each, and whether it is to be added. Those that the user
// has to judge come first.
class ModeleVoisins final : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum Colonne { Film, Realisateur, Annee, Exemplaire, Sort, kColonnes };
    explicit ModeleVoisins(voisins::Examen examen, QObject* parent = nullptr);

    [[nodiscard]] const voisins::Examen& examen() const { return m_examen; }
    void metOptions(bool possedes, bool complete);
    // Ticks or unticks what can be added.
    void bascule(const QModelIndex& index);
    void cocheTout(bool oui);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex&) const override { return kColonnes; }
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& valeur, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation sens, int role) const override;

  signals:
    void change();

  private:
    [[nodiscard]] std::size_t rang(const QModelIndex& index) const;

    voisins::Examen m_examen;
    std::vector<std::size_t> m_ordre;
};

}  // namespace ui
