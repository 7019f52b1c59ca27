// SymbolCells: cells that hold a symbol as reports write it and show it in print.
#pragma once

#include <QStyledItemDelegate>

namespace lithmark {

class SymbolCells : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace lithmark
