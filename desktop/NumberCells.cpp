#include "desktop/NumberCells.h"

#include <QWidget>

namespace lithmark {

QWidget* NumberCells::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const {
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    if (editor != nullptr) editor->setLayoutDirection(shown.direction);
    return editor;
}

void NumberCells::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->displayAlignment.testFlag(Qt::AlignAbsolute)) option->direction = Qt::LeftToRight;
}

}  // namespace lithmark
