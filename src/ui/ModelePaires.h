#pragma once

#include "ensemble/PairesAVoir.h"

#include <QAbstractTableModel>

namespace ui {

// The pairs of films that are to be looked at, which live with the page.
class ModelePaires final : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum Colonne { Gauche, Droite, Titre, Realisateur, kColonnes };
    explicit ModelePaires(const ensemble::PairesAVoir& paires) : m_paires(paires) {}

    void change() { beginResetModel(), endResetModel(); }  // after each change of the pairs

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex&) const override { return kColonnes; }
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation sens, int role) const override;

  private:
    const ensemble::PairesAVoir& m_paires;
};

}  // namespace ui
