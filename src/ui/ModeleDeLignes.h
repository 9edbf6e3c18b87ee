#pragma once

#include "ui/Cellule.h"

#include <QAbstractTableModel>
#include <QStringList>

namespace ui {

// A flat list of rows under the headings of its columns. A model says how many rows it has and what stands in each cell.
class ModeleDeLignes : public QAbstractTableModel {
  public:
    explicit ModeleDeLignes(QStringList titres, QObject* parent = nullptr)
        : QAbstractTableModel(parent), m_titres(std::move(titres)) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const final { return parent.isValid() ? 0 : nombre(); }
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const final {
        return parent.isValid() ? 0 : static_cast<int>(m_titres.size());
    }
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const final {
        const Qt::ItemFlags celles = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
        const bool seCoche = index.isValid() && index.column() == 0 && peutEtreCochee(index.row());
        return seCoche ? celles | Qt::ItemIsUserCheckable : celles;
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const final {
        if (!index.isValid()) return {};
        const QVariant propre = autreDonnee(index, role);
        return propre.isValid() ? propre : donnee(cellule(index.row(), index.column()), index, role);
    }
    bool setData(const QModelIndex& index, const QVariant& valeur, int role) final {
        if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable)) return false;
        coche(index.row(), valeur.value<Qt::CheckState>() == Qt::Checked);
        return true;
    }
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation sens, int role) const override {
        if (sens != Qt::Horizontal || role != Qt::DisplayRole) return {};
        return m_titres.value(section);
    }

  protected:
    void metTitres(QStringList titres) { m_titres = std::move(titres); }  // as many
    // All rows may have changed, or some of the first column's ticks; their number is the same.
    void toutChange() {
        if (nombre() > 0) emit dataChanged(index(0, 0), index(nombre() - 1, columnCount() - 1));
    }
    void cochesChangent() {
        if (nombre() > 0) emit dataChanged(index(0, 0), index(nombre() - 1, 0), {Qt::CheckStateRole});
    }
    template <typename Change>
    void recommence(Change change) {
        beginResetModel();
        change();
        endResetModel();
    }

    [[nodiscard]] virtual int nombre() const = 0;
    [[nodiscard]] virtual Cellule cellule(int rang, int colonne) const = 0;
    // Of a role that no cell has; else nothing.
    [[nodiscard]] virtual QVariant autreDonnee(const QModelIndex&, int /*role*/) const { return {}; }
    // The user ticks rows in their first column.
    [[nodiscard]] virtual bool peutEtreCochee(int /*rang*/) const { return false; }
    virtual void coche(int /*rang*/, bool /*oui*/) {}

  private:
    QStringList m_titres;
};

}  // namespace ui
