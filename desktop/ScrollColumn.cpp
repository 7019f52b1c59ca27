#include "desktop/ScrollColumn.h"

#include <QEvent>
#include <QScrollBar>

namespace lithmark {

namespace {

constexpr int kLeastShown = 120;

}  // namespace

ScrollColumn::ScrollColumn(QWidget* content, QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    // What has the focus scrolls into sight by itself; the area itself needs none.
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
}

QSize ScrollColumn::sizeHint() const {
    return widget()->sizeHint().expandedTo(minimumSizeHint());
}

// No line is ever cut at its end, with the bar or without.
QSize ScrollColumn::minimumSizeHint() const {
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(), kLeastShown};
}

// The area watches what it holds.
bool ScrollColumn::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

}  // namespace lithmark
