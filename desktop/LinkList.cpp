#include "desktop/LinkList.h"

#include <QKeyEvent>
#include <algorithm>

#include "render/QtText.h"

namespace lithmark {

namespace {

constexpr int kLinksShown = 6;

}  // namespace

LinkList::LinkList(QWidget* parent) : QListWidget(parent) {
    setWordWrap(true);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setResizeMode(QListView::Adjust);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    viewport()->setCursor(Qt::PointingHandCursor);
    connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        if (OnLink) OnLink(row(item));
    });
}

// Enter opens the line, and does not reach the window's default button.
void LinkList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) return QListWidget::keyPressEvent(event);
    event->accept();
    if (OnLink && currentRow() >= 0) OnLink(currentRow());
}

void LinkList::ShowItems(const std::vector<std::string>& items) {
    bool same = count() == static_cast<int>(items.size());
    for (int i = 0; same && i < count(); ++i) same = item(i)->text() == Q(items[static_cast<std::size_t>(i)]);
    if (same) return;
    clear();
    for (const std::string& text : items) {
        auto* line = new QListWidgetItem(Q(text), this);
        line->setForeground(palette().link());
    }
    updateGeometry();
}

// Links have the ink of light or dark windows.
void LinkList::changeEvent(QEvent* event) {
    QListWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    for (int i = 0; i < count(); ++i) item(i)->setForeground(palette().link());
}

// As high as its lines, up to some; then it scrolls.
QSize LinkList::sizeHint() const {
    int height = 2 * frameWidth();
    for (int i = 0; i < count(); ++i) height += sizeHintForRow(i);
    return {QListWidget::sizeHint().width(),
            std::min(height, kLinksShown * fontMetrics().lineSpacing() + 2 * frameWidth())};
}

// Its lines break anew with its width.
void LinkList::resizeEvent(QResizeEvent* event) {
    QListWidget::resizeEvent(event);
    updateGeometry();
}

}  // namespace lithmark
