#include "desktop/answer/AnswerCurveView.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <limits>

#include "contour/AxisTicks.h"
#include "desktop/GraphicWords.h"
#include "desktop/PageTools.h"
#include "desktop/Sizes.h"
#include "desktop/answer/SymbolPainter.h"
#include "render/QtText.h"
#include "render/drawings/Inks.h"
#include "render/drawings/Symbols.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kPad = 4, kTick = 3, kPointSize = 4, kFewPixels = 56, kLines = 32, kSample = 18;
constexpr Ink kInks[] = {Ink::Curve1, Ink::Curve2, Ink::Curve3, Ink::Curve4};

struct Extent {
    double Least = 0, Greatest = 0;
    void Take(double value) {
        if (!std::isfinite(value)) return;
        Least = std::min(Least, value);
        Greatest = std::max(Greatest, value);
    }
    void Widen() {
        if (Greatest <= Least) Greatest = Least + 1;
    }
};

// Of all lines and points, from 0.
std::pair<Extent, Extent> RangesOf(std::initializer_list<const AnswerCurve*> curves) {
    Extent x, y;
    for (const AnswerCurve* curve : curves) {
        if (curve == nullptr) continue;
        for (const AnswerCurve::Line& line : curve->Lines) {
            for (const double value : line.X) x.Take(value);
            for (const double value : line.Y) y.Take(value);
        }
        for (const AnswerCurve::Point& point : curve->Points) {
            x.Take(point.X);
            y.Take(point.Y);
        }
    }
    x.Widen();
    y.Widen();
    return {x, y};
}

QString UnitOf(const std::string& unit) {
    return unit == "[-]" ? QString() : QLatin1Char(' ') + Q(unit);
}

// One figure in its place.
class FigurePainter {
  public:
    FigurePainter(QPainter& painter, Theme theme, const QRectF& place, const AnswerCurve& curve,
                  const AnswerCurve* kept, bool present)
        : painter_(painter), theme_(theme), curve_(curve), kept_(kept), present_(present), place_(place) {
        const QFontMetricsF metrics(painter.font());
        line_ = metrics.height();
        std::tie(x_, y_) = RangesOf({&curve, kept});
        const double left = WidestTick(metrics) + kTick + 2 * kPad;
        PlaceLegend(metrics, place.width() - left);
        const double above = 3 * line_ + kPad, below = legend_.empty() ? kPad : legend_.back().y() + line_ + kPad;
        area_ = place.adjusted(left, above, -2 * metrics.horizontalAdvance(QLatin1Char('0')), -below);
    }

    // A title without a curve says nothing.
    bool HasRoom() const { return area_.width() >= kFewPixels / 2.0 && area_.height() >= kFewPixels / 2.0; }

    void Paint() {
        Words();
        Axes();
        painter_.save();
        painter_.setClipRect(area_.adjusted(-kPointSize, -kPointSize, kPointSize, kPointSize));
        if (kept_ != nullptr) Lines(*kept_, true);
        Lines(curve_, false);
        Points();
        painter_.restore();
    }

  private:
    // Names of several lines stand beside each other, and under each other where they have no room; from the lower left
    // of the axes.
    void PlaceLegend(const QFontMetricsF& metrics, double room) {
        if (curve_.Lines.size() < 2) return;
        QPointF at;
        for (const AnswerCurve::Line& line : curve_.Lines) {
            const double width = kSample + kPad + metrics.horizontalAdvance(Q(line.Name));
            if (at.x() > 0 && at.x() + width > room) at = {0, at.y() + line_};
            legend_.push_back(at);
            at.rx() += width + 3 * kPad;
        }
    }
    QColor Colour(Ink ink) const { return ColourOf(ink, theme_); }
    QPointF At(double x, double y) const {
        return {area_.left() + (x - x_.Least) / (x_.Greatest - x_.Least) * area_.width(),
                area_.top() + (y - y_.Least) / (y_.Greatest - y_.Least) * area_.height()};
    }
    static AxisTicks TicksOf(const Extent& range, double length, int apart, bool whole) {
        return RoundTicks(range.Least, range.Greatest, std::clamp(static_cast<int>(length / apart) + 1, 2, 6), whole);
    }
    static QString Number(double value, int decimals) {
        return Q(TickText(value, decimals, SharedServices().DecimalSign));
    }
    double WidestTick(const QFontMetricsF& metrics) const {
        const AxisTicks ticks = TicksOf(y_, 6 * kLines, kLines, false);
        double width = 0;
        for (const double at : ticks.Places)
            width = std::max(width, metrics.horizontalAdvance(Number(at, ticks.Decimals)));
        return width;
    }

    // What it is, and what stands along its axes.
    void Words() {
        painter_.setPen(Colour(Ink::Text));
        const QRectF title(place_.left(), place_.top(), place_.width(), line_);
        painter_.drawText(
            title, Qt::AlignHCenter | Qt::AlignVCenter,
            painter_.fontMetrics().elidedText(Q(curve_.Title), Qt::ElideRight, static_cast<int>(title.width())));
        painter_.setPen(Colour(Ink::Quiet));
        const QRectF second = title.translated(0, line_);
        AxisWords(second, curve_.YSymbol, curve_.YUnit, Qt::AlignLeft);
        AxisWords(second, curve_.XSymbol, curve_.XUnit, Qt::AlignRight);
    }
    void AxisWords(const QRectF& place, const std::string& symbol, const std::string& unit, Qt::Alignment side) {
        const double letters = SymbolWidth(painter_.font(), symbol);
        const QString words = UnitOf(unit);
        const double width = letters + painter_.fontMetrics().horizontalAdvance(words);
        const double x = side == Qt::AlignRight ? place.right() - width : place.left();
        PaintSymbol(painter_, QRectF(x, place.top(), letters, place.height()), symbol, Qt::AlignLeft);
        painter_.drawText(QRectF(x + letters, place.top(), width, place.height()), Qt::AlignVCenter | Qt::AlignLeft,
                          words);
    }
    void Axes() {
        const AxisTicks xs = TicksOf(x_, area_.width(), kFewPixels, curve_.WholeX),
                        ys = TicksOf(y_, area_.height(), kLines, false);
        const QRectF above(0, area_.top() - line_ - kTick, 2.0 * kFewPixels, line_);
        double free = -std::numeric_limits<double>::max();
        for (const double at : xs.Places) {
            const double x = At(at, 0).x();
            painter_.setPen(Colour(Ink::Grid));
            painter_.drawLine(QPointF(x, area_.top()), QPointF(x, area_.bottom()));
            painter_.setPen(Colour(Ink::Quiet));
            const QString number = Number(at, xs.Decimals);
            const double half = painter_.fontMetrics().horizontalAdvance(number) / 2.0;
            if (x - half < free) continue;
            free = x + half + kPad;
            painter_.drawText(above.translated(x - kFewPixels, 0), Qt::AlignHCenter | Qt::AlignBottom, number);
        }
        for (const double at : ys.Places) {
            const double y = At(0, at).y();
            painter_.setPen(Colour(Ink::Grid));
            painter_.drawLine(QPointF(area_.left(), y), QPointF(area_.right(), y));
            painter_.setPen(Colour(Ink::Quiet));
            painter_.drawText(QRectF(place_.left(), y - line_ / 2, area_.left() - kTick - kPad - place_.left(), line_),
                              Qt::AlignRight | Qt::AlignVCenter, Number(at, ys.Decimals));
        }
        painter_.setPen(QPen(Colour(Ink::Edge), 1));
        painter_.drawLine(area_.topLeft(), area_.topRight());
        painter_.drawLine(QPointF(At(0, 0).x(), area_.top()), QPointF(At(0, 0).x(), area_.bottom()));
    }
    void Lines(const AnswerCurve& curve, bool kept) {
        for (std::size_t i = 0; i < curve.Lines.size(); ++i) {
            const QColor colour = Colour(!present_ || kept ? Ink::Quiet : kInks[i % std::size(kInks)]);
            QPen pen(colour, kept ? 1.2 : 2);
            if (kept) pen.setStyle(Qt::DashLine);
            // Lines are told apart without their colours too.
            else if (i > 0)
                pen.setDashPattern(i == 1   ? QList<qreal>{6, 2}
                                   : i == 2 ? QList<qreal>{2, 2}
                                            : QList<qreal>{6, 2, 1, 2});
            painter_.setPen(pen);
            painter_.setBrush(Qt::NoBrush);
            painter_.drawPath(PathOf(curve.Lines[i]));
            LonePoints(curve.Lines[i], colour);
            if (!kept && !legend_.empty())
                LegendOf(curve.Lines[i], pen, legend_[i] + area_.bottomLeft() + QPointF(0, kPad + line_ / 2));
        }
    }
    void LegendOf(const AnswerCurve::Line& line, const QPen& pen, const QPointF& at) {
        const double x = at.x(), y = at.y();
        painter_.save();
        painter_.setClipping(false);
        painter_.setPen(pen);
        painter_.drawLine(QPointF(x, y), QPointF(x + kSample, y));
        painter_.setPen(Colour(Ink::Quiet));
        const QString name = Q(line.Name);
        const double width = QFontMetricsF(painter_.font()).horizontalAdvance(name);
        painter_.drawText(QRectF(x + kSample + kPad, y - line_ / 2, width + 1, line_), Qt::AlignVCenter | Qt::AlignLeft,
                          name);
        painter_.restore();
    }
    static bool IsValue(const AnswerCurve::Line& line, std::size_t i) {
        return i < std::min(line.X.size(), line.Y.size()) && std::isfinite(line.X[i]) && std::isfinite(line.Y[i]);
    }
    // A value without a neighbour makes no line.
    void LonePoints(const AnswerCurve::Line& line, const QColor& colour) {
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(colour);
        for (std::size_t i = 0; i < line.X.size(); ++i)
            if (IsValue(line, i) && !IsValue(line, i + 1) && (i == 0 || !IsValue(line, i - 1)))
                painter_.drawEllipse(At(line.X[i], line.Y[i]), kPointSize, kPointSize);
    }
    QPainterPath PathOf(const AnswerCurve::Line& line) const {
        QPainterPath path;
        bool on = false;
        for (std::size_t i = 0; i < line.X.size(); ++i) {
            const bool value = IsValue(line, i);
            if (value && on) path.lineTo(At(line.X[i], line.Y[i]));
            if (value && !on) path.moveTo(At(line.X[i], line.Y[i]));
            on = value;
        }
        return path;
    }
    void Points() {
        painter_.setPen(QPen(Colour(Ink::Base), 1));
        painter_.setBrush(Colour(present_ ? Ink::Point : Ink::Quiet));
        for (const AnswerCurve::Point& point : curve_.Points)
            painter_.drawEllipse(At(point.X, point.Y), kPointSize, kPointSize);
    }

    QPainter& painter_;
    const Theme theme_;
    const AnswerCurve& curve_;
    const AnswerCurve* kept_;
    const bool present_;
    const QRectF place_;
    QRectF area_;
    double line_ = 0;
    std::vector<QPointF> legend_;
    Extent x_, y_;
};

// "Stress below the point: σ z 0 to 120 kN/m², z 0 to 8 m"
QString InWords(const AnswerCurve& curve) {
    const auto [x, y] = RangesOf({&curve});
    const auto axis = [](const std::string& symbol, const std::string& unit, const Extent& range) {
        QString plain = Q(unit);
        plain.remove(QLatin1Char('[')).remove(QLatin1Char(']'));
        return Q(Text(913033_text,
                      {{"|1", SymbolWords(symbol).replace(QLatin1Char('_'), QLatin1Char(' ')).toStdString()},
                       {"|2", PlainNumber(range.Least).toStdString()},
                       {"|3", PlainNumber(range.Greatest).toStdString()},
                       {"|4", plain == QLatin1String("-") ? "" : plain.toStdString()}}))
            .trimmed();
    };
    return Q(curve.Title) + QStringLiteral(": ") + axis(curve.XSymbol, curve.XUnit, x) + QStringLiteral(", ") +
           axis(curve.YSymbol, curve.YUnit, y);
}

}  // namespace

AnswerCurveView::AnswerCurveView(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("answerCurves"));
    setLayoutDirection(Qt::LeftToRight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    MakeGraphic(*this, Q(Text(913034_text)));
}

void AnswerCurveView::Show(const std::vector<AnswerCurve>& curves, const std::vector<AnswerCurve>& kept, bool present) {
    curves_ = curves;
    kept_ = kept;
    present_ = present;
    QStringList words;
    for (const AnswerCurve& curve : curves) words.append(InWords(curve));
    if (!present && !words.empty()) words.append(Q(Text(913002_text)));
    TellGraphic(*this, words.join(QStringLiteral("; ")));
    update();
}

void AnswerCurveView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setLayoutDirection(Qt::LeftToRight);
    QFont small = font();
    constexpr double kSmall = 0.9;
    small.setPointSizeF(small.pointSizeF() * kSmall);
    painter.setFont(small);
    // The way in which they are meant to stand, or the other one; where there is no room for all, the first ones.
    for (std::size_t count = curves_.size(); count > 0; --count)
        for (const bool beside : {curves_.front().Beside, !curves_.front().Beside})
            if (PaintFigures(painter, count, beside)) return;
}

bool AnswerCurveView::PaintFigures(QPainter& painter, std::size_t count, bool beside) const {
    std::vector<FigurePainter> figures;
    const double part = (beside ? width() : height()) / static_cast<double>(count);
    for (std::size_t i = 0; i < count; ++i) {
        const AnswerCurve* kept = i < kept_.size() && kept_[i].XSymbol == curves_[i].XSymbol ? &kept_[i] : nullptr;
        const double from = static_cast<double>(i) * part;
        const QRectF place =
            beside ? QRectF(from, 0, part - 4 * kPad, height()) : QRectF(0, from, width(), part - 3 * kPad);
        figures.emplace_back(painter, ThemeOf(palette()), place, curves_[i], kept, present_);
        if (!figures.back().HasRoom()) return false;
    }
    for (FigurePainter& figure : figures) figure.Paint();
    return true;
}

QSize AnswerCurveView::sizeHint() const {
    return {sizes::kAnswerWidth, sizes::kAnswerWidth * 2 / 3};
}

QSize AnswerCurveView::minimumSizeHint() const {
    return {sizes::kAnswerWidth / 2, sizes::kAnswerWidth / 3};
}

}  // namespace lithmark
