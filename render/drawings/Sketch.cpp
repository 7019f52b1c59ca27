#include "render/drawings/Sketch.h"

#include <algorithm>
#include <cmath>

#include "render/drawings/Symbols.h"

namespace lithmark {

namespace {

constexpr double kFocusWidth = 2.5, kGap = 5, kPlate = 3, kTick = 5, kIndexSize = 0.7;
// Below the first a drawing has room for symbols only; below the second, as on a card, for none, and all that is as
// large as letters elsewhere is a part of the picture.
constexpr double kLeastDrawnWidth = 260, kLeastHeight = 200, kPlainWidth = 180, kPlainHeight = 130;
constexpr double kPlainLine = 1.0 / 14, kPlainHead = 0.55, kPlainDot = 0.6, kPlainPen = 1.8;
// A number goes out of the way of lines as far as this, a pixel for each that it would hide; more for those of a load.
constexpr double kOutOfTheWay = 60, kLoadWeight = 3;

QPointF Across(const QPointF& from, const QPointF& to) {
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    return length < 1e-6 ? QPointF(1, 0) : QPointF(-way.y() / length, way.x() / length);
}

}  // namespace

Sketch::Sketch(QPainter& painter, const QRectF& area, const DrawnForm& form, Theme theme, double& scale)
    : Painter(painter),
      Area(area),
      Form(form),
      Record(form.Record()),
      theme_(theme),
      scale_(scale),
      symbolsOnly_(area.width() < kLeastDrawnWidth || area.height() < kLeastHeight),
      plain_(area.width() < kPlainWidth || area.height() < kPlainHeight) {}

QPen Sketch::Pen(Ink ink, double width, Qt::PenStyle style) const {
    return QPen(Colour(ink), plain_ ? std::min(width, kPlainPen) : width, style);
}

double Sketch::LineHeight() const {
    return plain_ ? std::max(4.0, Area.height() * kPlainLine) : QFontMetricsF(Painter.font()).height() + 2;
}

double Sketch::Steady(double fit) {
    if (scale_ > fit || scale_ < fit / 2) scale_ = fit;
    return scale_;
}

void Sketch::Line(const QPointF& from, const QPointF& to, const QPen& pen) {
    // Faint lines may run under a number.
    if (pen.color().alpha() == 255) strokes_.push_back({{from, to}, 1});
    Painter.setPen(pen);
    Painter.drawLine(from, to);
}

void Sketch::Arrow(const QPointF& from, const QPointF& to, const QPen& pen) {
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    if (length < 1) return;
    const double size = std::min(length, (5 + 3 * pen.widthF()) * (plain_ ? kPlainHead : 1));
    const QPointF along = way / length * size, across = Across(from, to) * size * 0.38;
    // An axis may be hidden in part, the arrow of a load must be seen.
    strokes_.push_back({{from, to}, pen.widthF() > 1 ? kLoadWeight : 1});
    Painter.setPen(pen);
    Painter.drawLine(from, to - along * 0.8);
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(pen.color());
    Painter.drawPolygon(QPolygonF({to, to - along + across, to - along - across}));
}

void Sketch::Polygon(const QPolygonF& polygon, const QPen& pen, const QBrush& brush) {
    // The fine edges of the ground may run under a number.
    if (pen.style() != Qt::NoPen && pen.widthF() > 1)
        for (qsizetype i = 0; i < polygon.size(); ++i)
            strokes_.push_back({{polygon[i], polygon[(i + 1) % polygon.size()]}, 1});
    Painter.setPen(pen);
    Painter.setBrush(brush);
    Painter.drawPolygon(polygon);
}

void Sketch::Rect(const QRectF& rect, const QPen& pen, const QBrush& brush) {
    Painter.setPen(pen);
    Painter.setBrush(brush);
    Painter.drawRect(rect);
}

void Sketch::Dot(const QPointF& at, double radius, Ink ink) {
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(Colour(ink));
    const double shown = plain_ ? radius * kPlainDot : radius;
    Painter.drawEllipse(at, shown, shown);
}

void Sketch::Hatch(const QRectF& rect) {
    Rect(rect, Qt::NoPen, Colour(Ink::SoilTop));
    Rect(rect, Qt::NoPen, QBrush(Colour(Ink::Edge), Qt::BDiagPattern));
}

void Sketch::Break(const QPointF& from, const QPointF& to, Ink ground) {
    const QPointF middle = (from + to) / 2, across = Across(from, to) * kTick;
    const QPointF along = QPointF(across.y(), -across.x()) * 0.5;
    Painter.setPen(Pen(ground, 4));
    Painter.drawLine(middle - along, middle + along);
    for (const double side : {-1.0, 1.0}) {
        const QPointF at = middle + along * side;
        Painter.setPen(Pen(Ink::Quiet, 1.2));
        Painter.drawPolyline(QPolygonF(
            {at - across * 1.4, at - across * 0.4 + along * 0.7, at + across * 0.4 - along * 0.7, at + across * 1.4}));
    }
}

void Sketch::Symbol(const std::string& plain, const QPointF& at, Side side, Ink ink) {
    if (!plain_) words_.push_back({nullptr, plain, {}, at, side, ink, false, false});
}

void Sketch::Number(const std::string& name, const QPointF& at, Side side, Ink ink, const char* symbol) {
    const std::optional<DrawnBox> box = Form.Find(name);
    if (!box || plain_) return;
    const std::string shown = box->Symbol.empty() ? symbol : box->Symbol;
    QString rest;
    if (!symbolsOnly_ || shown.empty()) {
        rest = box->Faulty ? QStringLiteral("?") : box->Text;
        if (!box->Faulty && !box->Unit.isEmpty()) rest += QString::fromUtf8("\u00A0") + box->Unit;
        if (!shown.empty()) rest = QStringLiteral(" = ") + rest;
    } else if (box->Faulty) {
        rest = QStringLiteral(" ?");
    }
    words_.push_back({box->Of, shown, rest, at, side, ink, box->Focused, box->Faulty});
}

void Sketch::Numbers(std::initializer_list<const char*> boxes, const QPointF& middle, Ink ink) {
    if (plain_) return;
    std::vector<const char*> reached;
    for (const char* box : boxes)
        if (Form.Has(box)) reached.push_back(box);
    const double step = LineHeight() + 1;
    double y = middle.y() - step * (static_cast<double>(reached.size()) - 1) / 2;
    ++stacks_;
    for (const char* box : reached) {
        Number(box, QPointF(middle.x(), y), Side::On, ink);
        words_.back().Stack = stacks_;
        y += step;
    }
}

QPen Sketch::PenOf(const std::string& name, const QPen& usual) const {
    const std::optional<DrawnBox> box = Form.Find(name);
    if (!box) return usual;
    QPen pen = usual;
    if (box->Focused) pen = Pen(Ink::Selection, std::max(kFocusWidth, usual.widthF()));
    if (box->Faulty) {
        pen.setColor(Colour(Ink::Error));
        pen.setStyle(Qt::DashLine);
    }
    return pen;
}

void Sketch::Dimension(const std::string& name, const QPointF& from, const QPointF& to, Side side, bool broken,
                       const char* symbol, Ink ink) {
    if (!Form.Has(name)) return;
    const QPen pen = PenOf(name, Pen(ink == Ink::Text ? Ink::Quiet : ink, 1.2));
    if (plain_) {
        // A line in a colour of its own belongs to the figure.
        if (ink != Ink::Text) Line(from, to, pen);
        return;
    }
    const QPointF tick = Across(from, to) * kTick;
    Line(from, to, pen);
    Line(from - tick, from + tick, pen);
    Line(to - tick, to + tick, pen);
    if (broken) Break(from, to, Ink::Window);
    Number(name, (from + to) / 2, side, ink, symbol);
}

QFont Sketch::LetterFont() const {
    QFont font = Painter.font();
    font.setItalic(true);
    return font;
}

QFont Sketch::IndexFont() const {
    QFont font = Painter.font();
    font.setItalic(false);
    if (font.pixelSize() > 0)
        font.setPixelSize(std::max(7, static_cast<int>(font.pixelSize() * kIndexSize)));
    else
        font.setPointSizeF(font.pointSizeF() * kIndexSize);
    return font;
}

QSizeF Sketch::SizeOf(const Words& words) const {
    const PrintSymbol symbol = SymbolInPrint(words.Symbol);
    const double width = QFontMetricsF(LetterFont()).horizontalAdvance(symbol.Letter) +
                         QFontMetricsF(IndexFont()).horizontalAdvance(symbol.Index) +
                         QFontMetricsF(Painter.font()).horizontalAdvance(words.Rest);
    return {width + 2 * kPlate, LineHeight()};
}

QRectF Sketch::PlaceOf(const Words& words, const QSizeF& size) const {
    QPointF middle = words.At;
    switch (words.On) {
        case Side::Left:
            middle.rx() -= size.width() / 2 + kGap;
            break;
        case Side::Right:
            middle.rx() += size.width() / 2 + kGap;
            break;
        case Side::Above:
            middle.ry() -= size.height() / 2 + kGap;
            break;
        case Side::Below:
            middle.ry() += size.height() / 2 + kGap;
            break;
        case Side::On:
            break;
    }
    return {middle.x() - size.width() / 2, middle.y() - size.height() / 2, size.width(), size.height()};
}

double Sketch::Hidden(const QRectF& plate) const {
    double hidden = 0;
    for (const auto& [line, weight] : strokes_) {
        if (std::max(line.x1(), line.x2()) <= plate.left() || std::min(line.x1(), line.x2()) >= plate.right() ||
            std::max(line.y1(), line.y2()) <= plate.top() || std::min(line.y1(), line.y2()) >= plate.bottom())
            continue;
        // Liang and Barsky (1984): the part of the line, 0 to 1, that lies between each pair of sides.
        double begin = 0, end = 1;
        const auto cut = [&](double at, double way, double low, double high) {
            if (std::abs(way) < 1e-9) {
                if (at <= low || at >= high) end = begin;
                return;
            }
            const double one = (low - at) / way, other = (high - at) / way;
            begin = std::max(begin, std::min(one, other));
            end = std::min(end, std::max(one, other));
        };
        cut(line.x1(), line.dx(), plate.left(), plate.right());
        cut(line.y1(), line.dy(), plate.top(), plate.bottom());
        if (end > begin) hidden += (end - begin) * line.length() * weight;
    }
    return hidden;
}

// The free place next to the wanted one, inside the area: at first up and down, then to the sides. Nearby, one that
// hides less of the lines goes first.
QRectF Sketch::FreePlace(QRectF wanted, std::size_t rows) const {
    const auto inside = [&](QRectF rect) {
        rect.moveLeft(std::clamp(rect.left(), Area.left(), std::max(Area.left(), Area.right() - rect.width())));
        rect.moveTop(std::clamp(rect.top(), Area.top(), std::max(Area.top(), Area.bottom() - rect.height())));
        return rect;
    };
    const auto free = [&](const QRectF& rect) {
        return std::none_of(taken_.begin(), taken_.end(), [&](const QRectF& other) { return other.intersects(rect); });
    };
    wanted = inside(wanted);
    QRectF best = wanted;
    double least = -1;
    const double stepY = wanted.height() / 2, stepX = wanted.width() / 4;
    for (int column = -8; column <= 8; ++column)
        for (int row = -40; row <= 40; ++row) {
            const QRectF place = inside(wanted.translated(column * stepX, row * stepY));
            double cost = std::hypot(place.left() - wanted.left(), place.top() - wanted.top());
            if (least >= 0 && cost >= least) continue;
            if (!free(place)) continue;
            cost += std::min(kOutOfTheWay * static_cast<double>(rows), Hidden(place));
            if (least < 0 || cost < least) {
                best = place;
                least = cost;
            }
        }
    return best;
}

void Sketch::Write(const Words& words, const QRectF& at) {
    const QFont usual = Painter.font();
    QColor plate = Colour(words.Focused ? Ink::Selection : Ink::Window);
    if (!words.Focused) plate.setAlpha(words.Box != nullptr ? 220 : 0);
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(plate);
    Painter.drawRoundedRect(at, kPlate, kPlate);
    Painter.setPen(Colour(words.Focused ? Ink::OnSelection : words.Faulty ? Ink::Error : words.In));
    const PrintSymbol symbol = SymbolInPrint(words.Symbol);
    const QFontMetricsF metrics(usual);
    QPointF base(at.left() + kPlate, at.center().y() + (metrics.ascent() - metrics.descent()) / 2);
    const auto piece = [&](const QFont& font, const QString& text, double lowered) {
        Painter.setFont(font);
        Painter.drawText(base + QPointF(0, lowered), text);
        base.rx() += QFontMetricsF(font).horizontalAdvance(text);
    };
    piece(LetterFont(), symbol.Letter, 0);
    piece(IndexFont(), symbol.Index, metrics.descent() * 0.7);
    piece(usual, words.Rest, 0);
    Painter.setFont(usual);
}

std::vector<DrawnNumber> Sketch::Finish() {
    std::vector<DrawnNumber> numbers;
    for (std::size_t first = 0, last = 0; first < words_.size(); first = last) {
        last = first + 1;
        while (words_[first].Stack != 0 && last < words_.size() && words_[last].Stack == words_[first].Stack) ++last;
        std::vector<QRectF> wanted;
        QRectF whole;
        for (std::size_t i = first; i < last; ++i) {
            wanted.push_back(PlaceOf(words_[i], SizeOf(words_[i])));
            whole |= wanted.back();
        }
        const QPointF way = FreePlace(whole, last - first).topLeft() - whole.topLeft();
        for (std::size_t i = first; i < last; ++i) {
            const QRectF at = wanted[i - first].translated(way);
            taken_.push_back(at);
            Write(words_[i], at);
            if (words_[i].Box != nullptr) numbers.push_back({words_[i].Box, at});
        }
    }
    words_.clear();
    return numbers;
}

}  // namespace lithmark
