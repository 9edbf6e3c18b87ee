#pragma once

#include <QAbstractTableModel>
#include <QStringList>

namespace ui {

// A flat list of rows under the headings of its columns.
class ModeleDeLignes : public QAbstractTableModel {
  public:
    explicit ModeleDeLignes(QStringList titres) : m_titres(std::move(titres)) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const final { return parent.isValid() ? 0 : nombre(); }
    [[nodiscard]] int columnCount(const QModelIndex& = {}) const final { return static_cast<int>(m_titres.size()); }
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override {
        return QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    }
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation sens, int role) const override {
        if (sens != Qt::Horizontal || role != Qt::DisplayRole) return {};
        return m_titres.value(section);
    }

  protected:
    void metTitres(QStringList titres) { m_titres = std::move(titres); }  // as many
    [[nodiscard]] virtual int nombre() const = 0;

  private:
    QStringList m_titres;
};

}  // namespace ui
