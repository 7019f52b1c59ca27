#include "desktop/PictureView.h"

#include <QPainter>

#include "desktop/ProblemDrawing.h"
#include "ui/frmstress.h"

namespace lithmark {

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
}

}  // namespace lithmark
