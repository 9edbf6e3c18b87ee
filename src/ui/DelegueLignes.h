#pragma once

#include <QStyledItemDelegate>

class QTreeView;

namespace ui {

// A row in one sentence, for who hears it: what its columns show, from the first to the last.
[[nodiscard]] QString ligneLue(const QModelIndex& index);

// Asked of a model beside what Qt asks: how a row is written.
enum RoleDeLigne { kLigneDiscrete = Qt::UserRole + 100, kLigneForte };

// As much of a text as a row can show; laying out megabytes would hold the window.
[[nodiscard]] QString texteDeLigne(std::string_view texte);

// The rows of a page's list: as far apart as the rest of the window, what does not fit told by a tool tip.
class DelegueLignes final : public QStyledItemDelegate {
    Q_OBJECT
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* peintre, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* evenement, QAbstractItemView* vue, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

// A list of such rows.
[[nodiscard]] QTreeView* vueDeLignes(const char* nom, const QString& pourLecteur, QAbstractItemModel* modele);

}  // namespace ui
