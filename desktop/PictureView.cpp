#include "desktop/PictureView.h"

#include <QPainter>
#include <QPixmap>

#include "desktop/Sizes.h"
#include "desktop/drawings/Drawings.h"

namespace lithmark {

namespace {

// A picture as large as its place allows, in its own proportions.
void DrawPicture(QPainter& painter, const QRect& area, const QPixmap& picture) {
    const QSize size = picture.size().scaled(area.size(), Qt::KeepAspectRatio);
    const QPoint corner = area.center() - QPoint(size.width() / 2, size.height() / 2);
    painter.drawPixmap(QRect(corner, size), picture);
}

}  // namespace

PictureView::PictureView(const Control& control, QWidget* parent) : QWidget(parent), control_(control) {
    setMinimumSize(sizes::kPictureWidth, sizes::kPictureHeight);
    setLayoutDirection(Qt::LeftToRight);
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setLayoutDirection(Qt::LeftToRight);
    if (const DrawingFunction draw = FindDrawing(control_.Drawing))
        draw(painter, rect(), control_.Variant);
    else if (const QPixmap picture(QString::fromStdString(control_.Text)); !picture.isNull())
        DrawPicture(painter, rect(), picture);
}

}  // namespace lithmark
