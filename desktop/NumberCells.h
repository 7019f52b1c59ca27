// NumberCells: cells of a table in which numbers run from left to right in every language: a sign stands before them.
#pragma once

#include <QStyledItemDelegate>

namespace lithmark {

// Numbers are the cells that stand at the right in every language (Qt::AlignAbsolute); words are left as they are.
class NumberCells : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace lithmark
