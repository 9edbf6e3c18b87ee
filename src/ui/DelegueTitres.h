#pragma once

#include <QStyledItemDelegate>

namespace ui {

// Paints a row of the title tree: headings in semibold with the number of their films, films plainly with the letters that
// the filter found and, at the right, a small drawing for each of rated, reserved, lent and owned. Its tool tip says what
// the drawings say, and who made the film when; that of a heading what does not fit.
class DelegueTitres final : public QStyledItemDelegate {
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

}  // namespace ui
