#pragma once

#include "ensemble/Sante.h"
#include "ui/Cellule.h"

#include <QAbstractItemModel>

namespace ui {

// An examination of the base: its kinds, and under each its lines. Rows are made as they are asked for.
class ModeleSante final : public QAbstractItemModel {
    Q_OBJECT
  public:
    enum Colonne { Titre, Realisateur, Detail, kColonnes };
    using QAbstractItemModel::QAbstractItemModel;

    void met(ensemble::Examen examen);
    void met(ensemble::Constat constat);  // in the place of its kind
    [[nodiscard]] const ensemble::Examen& examen() const { return m_examen; }
    // Of a kind's row or of one of its lines; a line has both.
    [[nodiscard]] const ensemble::Constat* constat(const QModelIndex& index) const;
    [[nodiscard]] const ensemble::LigneDeSante* ligne(const QModelIndex& index) const;

    [[nodiscard]] QModelIndex index(int rang, int colonne, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex&) const override { return kColonnes; }
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation sens, int role) const override;

  private:
    [[nodiscard]] static Cellule cellule(const ensemble::Constat& constat, int colonne);
    [[nodiscard]] static Cellule cellule(const ensemble::LigneDeSante& ligne, int colonne);

    ensemble::Examen m_examen;
};

}  // namespace ui
