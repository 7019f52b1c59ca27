#include "desktop/PictureView.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

#include "desktop/GraphicWords.h"
#include "desktop/Sizes.h"
#include "render/QtText.h"
#include "render/drawings/Drawings.h"
#include "render/drawings/Symbols.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// A picture as large as its place allows, in its own proportions.
void DrawPicture(QPainter& painter, const QRect& area, const QPixmap& picture) {
    const QSize size = picture.size().scaled(area.size(), Qt::KeepAspectRatio);
    const QPoint corner = area.center() - QPoint(size.width() / 2, size.height() / 2);
    painter.drawPixmap(QRect(corner, size), picture);
}

// "a = 4.00 m; b = 3.00 m"
QString InWords(const DrawnForm& form) {
    QStringList words;
    for (const DrawnBox& box : form.Boxes())
        if (!box.Symbol.empty())
            words.append(SpokenSymbol(box.Symbol) + QStringLiteral(" = ") +
                         (box.Faulty ? QStringLiteral("?") : (box.Text + QLatin1Char(' ') + box.Unit).trimmed()));
    return words.join(QStringLiteral("; "));
}

}  // namespace

PictureView::PictureView(const Control& control, QWidget* parent)
    : QWidget(parent), control_(control), drawn_(control) {
    setMinimumSize(sizes::kPictureWidth, sizes::kPictureHeight);
    setLayoutDirection(Qt::LeftToRight);
    setMouseTracking(true);
    MakeGraphic(*this, Q(Text(913603_text)));
    // The dimension of the box with the focus is marked.
    connect(qApp, &QApplication::focusChanged, this, [this] { update(); });
}

void PictureView::Follow() {
    drawn_.Follow();
    if (variant_ != control_.Variant) {
        variant_ = control_.Variant;
        scale_ = 0;
    }
    TellGraphic(*this, InWords(drawn_));
    update();
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setLayoutDirection(Qt::LeftToRight);
    if (const DrawingFunction draw = FindDrawing(control_.Drawing)) {
        Sketch sketch(painter, rect(), drawn_, ThemeOf(palette()), scale_);
        draw(sketch);
        numbers_ = sketch.Finish();
    } else if (const QPixmap picture(QString::fromStdString(control_.Text)); !picture.isNull()) {
        DrawPicture(painter, rect(), picture);
    }
}

void PictureView::resizeEvent(QResizeEvent* event) {
    scale_ = 0;
    QWidget::resizeEvent(event);
}

const Control* PictureView::BoxAt(const QPointF& place) const {
    for (const DrawnNumber& number : numbers_)
        if (number.At.contains(place)) return number.Box;
    return nullptr;
}

void PictureView::mousePressEvent(QMouseEvent* event) {
    if (const Control* box = BoxAt(event->position()); box != nullptr && OnPick) OnPick(*box);
}

void PictureView::mouseMoveEvent(QMouseEvent* event) {
    setCursor(BoxAt(event->position()) != nullptr ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

}  // namespace lithmark
