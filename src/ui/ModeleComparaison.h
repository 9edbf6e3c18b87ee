#pragma once

#include "ensemble/Fusion.h"

#include <QAbstractTableModel>

namespace ui {

// Two films field by field, and which value of each the one film is to have: the checked one.
class ModeleComparaison final : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum Colonne { Champ, Gauche, Droite, kColonnes };
    using QAbstractTableModel::QAbstractTableModel;

    void met(ensemble::PlanDeFusion plan);
    [[nodiscard]] const ensemble::PlanDeFusion& plan() const { return m_plan; }
    // Of a field whose two values are not the same and where there is something to take; else nothing.
    void choisit(int rang, bool droite);
    void bascule(int rang);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex&) const override { return kColonnes; }
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation sens, int role) const override;

  private:
    [[nodiscard]] const ensemble::ChampCompare& champ(int rang) const;

    ensemble::PlanDeFusion m_plan;
};

}  // namespace ui
