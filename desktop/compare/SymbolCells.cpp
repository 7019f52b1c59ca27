#include "desktop/compare/SymbolCells.h"

#include <QPainter>

#include "desktop/Sizes.h"
#include "desktop/answer/SymbolPainter.h"

namespace lithmark {

void SymbolCells::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const std::string symbol = index.data().toString().toStdString();
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    if (chosen) painter->fillRect(option.rect, option.palette.highlight());
    if (symbol.empty()) return;
    painter->save();
    painter->setFont(option.font);
    painter->setPen(option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
    painter->setLayoutDirection(Qt::LeftToRight);
    const bool mirrored = option.direction == Qt::RightToLeft;
    PaintSymbol(*painter, QRectF(option.rect).adjusted(4, 0, -4, 0), symbol, mirrored ? Qt::AlignRight : Qt::AlignLeft);
    painter->restore();
}

QSize SymbolCells::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize plain = QStyledItemDelegate::sizeHint(option, index);
    const int width = SymbolWidth(option.font, index.data().toString().toStdString()) + sizes::kEdge;
    return {width, plain.height()};
}

}  // namespace lithmark
