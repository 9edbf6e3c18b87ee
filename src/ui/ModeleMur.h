#pragma once

#include "ui/Infobulles.h"
#include "ui/MurDAffiches.h"

#include <QAbstractListModel>

namespace ui {

// The tiles as rows: what they are called.
class ModeleMur final : public QAbstractListModel {
    Q_OBJECT
  public:
    explicit ModeleMur(MurDAffiches& mur) : QAbstractListModel(&mur), m_mur(mur) {}

    void commence() { beginResetModel(); }
    void finis() { endResetModel(); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : m_mur.mur().nombre();
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) return {};
        if (role == Qt::DisplayRole) return m_mur.titre(index.row());
        if (role == Qt::AccessibleTextRole) return m_mur.nom(index.row());
        return role == Qt::ToolTipRole ? enInfobulle(m_mur.nom(index.row())) : QVariant();
    }

  private:
    MurDAffiches& m_mur;
};

}  // namespace ui
