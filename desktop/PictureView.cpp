#include "desktop/PictureView.h"

#include <QPainter>
#include <QPixmap>

#include "desktop/Icons.h"
#include "desktop/ProblemDrawing.h"
#include "ui/frmstress.h"

namespace lithmark {

namespace {

// A picture as large as its place allows, in its own proportions.
void DrawPicture(QPainter& painter, const QRect& area, const QPixmap& picture) {
    const QSize size = picture.size().scaled(area.size(), Qt::KeepAspectRatio);
    const QPoint corner = area.center() - QPoint(size.width() / 2, size.height() / 2);
    painter.drawPixmap(QRect(corner, size), picture);
}

}  // namespace

PictureView::PictureView(const Form& form, const Control& control, QWidget* parent)
    : QWidget(parent), form_(form), control_(control) {
    setMinimumSize(300, 260);
    setLayoutDirection(Qt::LeftToRight);
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setLayoutDirection(Qt::LeftToRight);
    if (const auto* stress = dynamic_cast<const frmstress*>(&form_))
        DrawStressProblem(painter, rect(), stress->optLoadType.Selected());
    else if (control_.Name == "imgLogo")
        DrawLogo(painter, rect());
    else if (const QPixmap picture(QString::fromStdString(control_.Text)); !picture.isNull())
        DrawPicture(painter, rect(), picture);
}

}  // namespace lithmark
