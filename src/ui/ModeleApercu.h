#pragma once

#include "ensemble/Apercus.h"

#include <QAbstractTableModel>

namespace ui {

// What would change, film by film.
class ModeleApercu final : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum Colonne { Film, Realisateur, Avant, Apres, kColonnes };
    using QAbstractTableModel::QAbstractTableModel;

    void met(std::vector<ensemble::Changement> changements);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex&) const override { return kColonnes; }
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation sens, int role) const override;

  private:
    std::vector<ensemble::Changement> m_changements;
};

}  // namespace ui
