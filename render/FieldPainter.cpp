#include "render/FieldPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "render/QtText.h"
#include "render/SansFont.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr QRgb kFieldInk = 0xFF1B2530;

// One path, so that edges that two polygons share leave no seam between them.
QPainterPath FieldPath(const std::vector<std::vector<FieldPoint>>& polygons, const FieldMap& map) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const auto& polygon : polygons) {
        path.moveTo(map(polygon.front()));
        for (std::size_t i = 1; i < polygon.size(); ++i) path.lineTo(map(polygon[i]));
        path.closeSubpath();
    }
    return path;
}

void PaintExtreme(QPainter& painter, const std::vector<FieldPoint>& places, const std::string& text, bool up,
                  const FieldMap& map, const QRectF& area, FieldWords& words) {
    const double size = std::max(4.0, area.width() / 90);
    const QPointF tip(0, up ? -size : size);
    bool told = false;
    for (const FieldPoint& place : places) {
        const QPointF at = map(place);
        if (!area.adjusted(-1, -1, 1, 1).contains(at)) continue;
        painter.setPen(QPen(QColor::fromRgb(kFieldInk), 1));
        painter.setBrush(Qt::white);
        painter.drawPolygon(QPolygonF() << at + tip << at + QPointF(-size, -tip.y()) << at + QPointF(size, -tip.y()));
        painter.setBrush(Qt::NoBrush);
        if (!told) told = words.Place(at, text, true, size + 3);
    }
}

}  // namespace

FieldWords::FieldWords(QPainter& painter, const QRectF& area, double pixels)
    : painter_(painter), area_(area), font_(SansFont(std::max(7.0, pixels))) {}

bool FieldWords::Place(const QPointF& place, const std::string& text, bool must, double clear) {
    const QFontMetricsF metrics(font_, painter_.device());
    const QSizeF size(metrics.horizontalAdvance(Q(text)) + 6, metrics.height() + 2);
    for (const double dy : {-clear - size.height(), clear}) {
        QRectF box(QPointF(place.x() - size.width() / 2, place.y() + (clear > 0 ? dy : -size.height() / 2)), size);
        const double left = area_.left() + 2;
        box.moveLeft(std::clamp(box.left(), left, std::max(left, area_.right() - size.width() - 2)));
        const bool inside = box.top() >= area_.top() && box.bottom() <= area_.bottom();
        const bool free =
            std::none_of(placed_.begin(), placed_.end(), [&](const Placed& other) { return other.At.intersects(box); });
        if (!inside || (!free && !must)) continue;
        placed_.push_back({box, Q(text)});
        return true;
    }
    return false;
}

void FieldWords::Write() const {
    painter_.setFont(font_);
    painter_.setPen(QColor::fromRgb(kFieldInk));
    for (const Placed& words : placed_) {
        painter_.fillRect(words.At, QColor(255, 255, 255, 220));
        painter_.drawText(words.At, Qt::AlignCenter, words.Text);
    }
}

void PaintClasses(QPainter& painter, const FieldPlot& field, const FieldMap& map) {
    painter.setPen(Qt::NoPen);
    for (int cls = 1; cls <= field.Classes(); ++cls) {
        const double level = field.Limits()[static_cast<std::size_t>(cls - 1)];
        painter.setBrush(QColor::fromRgb(field.ColourOf(cls)));
        painter.drawPath(FieldPath(field.RegionAbove(cls == 1 ? std::min(level, field.Least()) : level), map));
    }
    painter.setBrush(Qt::NoBrush);
}

void PaintClassLines(QPainter& painter, const FieldPlot& field, bool painted, bool numbers, const FieldMap& map,
                     FieldWords& words) {
    for (std::size_t i = 1; i + 1 < field.Limits().size(); ++i) {
        const auto lines = field.LineAt(field.Limits()[i]);
        const QColor ink =
            painted ? QColor::fromRgba(0xC01B2530) : QColor::fromRgb(field.ColourOf(static_cast<int>(i)));
        painter.setPen(QPen(ink, painted ? 0.8 : 1.6));
        for (const FieldLine& line : lines) painter.drawLine(map(line.From), map(line.To));
        if (!numbers || lines.empty()) continue;
        // Deliberate: a third along the pieces of the line, so that the numbers of neighbours do not stand in a row.
        const FieldLine& piece = lines[lines.size() * (1 + i % 3) / 4];
        words.Place(map(piece.From), field.LimitText(field.Limits()[i]), false);
    }
}

void PaintExtremes(QPainter& painter, const FieldPlot& field, const FieldMap& map, const QRectF& area,
                   FieldWords& words) {
    PaintExtreme(painter, field.LeastAt(), Text(910023_text, {{"|1", field.ValueText(field.Least())}}), false, map,
                 area, words);
    PaintExtreme(painter, field.GreatestAt(), Text(910024_text, {{"|1", field.ValueText(field.Greatest())}}), true, map,
                 area, words);
}

}  // namespace lithmark
