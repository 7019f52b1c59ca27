#include "render/drawings/GroundSection.h"

#include <algorithm>
#include <cmath>

namespace lithmark {

namespace {

constexpr int kMostSublayers = 40;
constexpr double kLeftMargin = 14;

}  // namespace

GroundSection::GroundSection(Sketch& sketch, const QRectF& room, std::vector<DrawnClay> clay, double sublayer)
    : sketch_(sketch), room_(room), clay_(std::move(clay)), sublayer_(sublayer) {
    const SessionRecord& r = sketch.Record;
    rectangular_ = sketch.Form.Has("txt_B");
    circular_ = sketch.Form.Has("txt_A") && !rectangular_;
    point_ = sketch.Form.Has("txt_Q");
    placed_ = sketch.Form.Has("txt_x");
    const bool spread = rectangular_ || circular_;
    const double a = spread ? double(r.A) : 0, b = rectangular_ ? double(r.B) : 0;
    const std::vector<DrawnLength> lengths =
        Proportions({a, b, double(r.z), clay_.front().Thickness, clay_.size() > 1 ? clay_[1].Thickness : 0});
    a_ = lengths[0];
    b_ = lengths[1];
    z_ = lengths[2];
    thick_.assign(lengths.begin() + 3, lengths.begin() + 3 + static_cast<std::ptrdiff_t>(clay_.size()));
    const double longest = Longest(lengths), share = circular_ ? 1 : 0.5;
    const double halfA = share * a_.Length, halfB = circular_ ? halfA : b_.Length / 2;
    if (placed_) {
        x_ = Coordinate(double(r.x), share * a, halfA, kFarthest * std::max(halfA, longest / 2));
        y_ = Coordinate(double(r.y), circular_ ? a : b / 2, halfB, kFarthest * std::max(halfB, longest / 2));
    }
    double depth = std::max(0.0, z_.Length);
    for (const DrawnLength& thick : thick_) depth += std::max(0.0, thick.Length);
    const double half = 1.1 * std::max(halfA, std::abs(x_.Length));
    const double high = depth > 0 ? room.height() / depth : 1;
    scale_ = sketch.Steady(half > 0 ? std::min(high, room.width() / 2 / half) : high);
}

QRectF GroundSection::Layer(std::size_t i) const {
    double top = room_.top() + std::max(0.0, z_.Length) * scale_;
    for (std::size_t above = 0; above < i; ++above) top += std::max(0.0, thick_[above].Length) * scale_;
    return {room_.left(), top, room_.width(), std::max(0.0, thick_[i].Length) * scale_};
}

QRectF GroundSection::Clay() const {
    QRectF clay = Layer(0);
    clay.setBottom(Layer(clay_.size() - 1).bottom());
    return clay;
}

void GroundSection::DrawSublayers() const {
    const double thickness = clay_.front().Thickness;
    if (!(sublayer_ > 0) || !std::isfinite(thickness)) return;
    const int parts = static_cast<int>(std::min<double>(kMostSublayers, std::nearbyint(thickness / sublayer_)));
    const QRectF layer = Layer(0);
    QColor line = sketch_.Colour(Ink::Edge);
    line.setAlpha(110);
    const QPen faint(line, 1);
    for (int i = 1; i < parts; ++i) {
        const double y = layer.top() + layer.height() * i / parts;
        sketch_.Line({layer.left(), y}, {layer.right(), y}, faint);
    }
}

void GroundSection::Draw() const {
    Sketch& s = sketch_;
    const QRectF clay = Clay();
    s.Hatch({room_.topLeft(), clay.topRight()});
    for (std::size_t i = 0; i < clay_.size(); ++i) s.Rect(Layer(i), s.Pen(Ink::Edge), s.Colour(Ink::Clay));
    DrawSublayers();
    s.Line(room_.topLeft(), room_.topRight(), s.Pen(Ink::Text, 1.6));
    const double at = room_.left() + kLeftMargin;
    s.Dimension("txt_z", {at, room_.top()}, {at, clay.top()}, Side::Right, z_.Broken, "z");
    for (std::size_t i = 0; i < clay_.size(); ++i) {
        const QRectF layer = Layer(i);
        s.Dimension(clay_[i].Box, {at, layer.top()}, {at, layer.bottom()}, Side::Right, thick_[i].Broken);
    }
    if (!placed_) return;
    const double x = Middle() + x_.Length * scale_;
    s.Line({x, room_.top()}, {x, clay.bottom()}, s.Pen(Ink::Point, 1.4, Qt::DashLine));
    s.Dot({x, room_.top()}, 3.5, Ink::Point);
    s.Dimension("txt_x", {Middle(), room_.top() + 12}, {x, room_.top() + 12}, Side::Below, x_.Broken, "x", Ink::Point);
}

void GroundSection::DrawLoad(double height) const {
    Sketch& s = sketch_;
    const double y = room_.top();
    if (point_) {
        const QPointF head(Middle(), y - height);
        s.Arrow(head, {Middle(), y}, s.PenOf("txt_Q", s.Pen(Ink::Load, 3)));
        s.Number("txt_Q", head + QPointF(0, 8), Side::Right, Ink::Load);
    }
    if (!rectangular_ && !circular_) return;
    const double half = std::max(2.0, (circular_ ? 1 : 0.5) * a_.Length * scale_), top = y - height * 0.55;
    const QPen pen = s.PenOf("txt_P", s.Pen(Ink::Load, 1.3));
    QColor fill = s.Colour(Ink::Load);
    fill.setAlpha(45);
    s.Rect({Middle() - half, top, 2 * half, y - top}, Qt::NoPen, fill);
    s.Line({Middle() - half, top}, {Middle() + half, top}, pen);
    const int arrows = std::clamp(static_cast<int>(half / 12), 1, 8);
    for (int i = 0; i <= arrows; ++i) {
        const double x = Middle() - half + 2 * half * i / arrows;
        s.Arrow({x, top}, {x, y}, pen);
    }
    s.Number("txt_P", {Middle(), (top + y) / 2}, Side::On, Ink::Load);
    const double line = top - 8;
    s.Dimension("txt_A", {circular_ ? Middle() : Middle() - half, line}, {Middle() + half, line}, Side::Above,
                a_.Broken);
}

void GroundSection::DrawPlan(const QRectF& room) const {
    Sketch& s = sketch_;
    if (!placed_) return;
    const double halfA = (circular_ ? 1 : 0.5) * a_.Length, halfB = circular_ ? a_.Length : b_.Length / 2;
    const double wide = std::max({halfA, std::abs(x_.Length), 1e-30}),
                 high = std::max({halfB, std::abs(y_.Length), 1e-30});
    const double scale = 0.92 * std::min(room.width() / 2 / wide, room.height() / 2 / high);
    const QPointF middle = room.center();
    s.Line({room.left(), middle.y()}, {room.right(), middle.y()}, s.Pen(Ink::Edge, 1, Qt::DashDotLine));
    s.Line({middle.x(), room.top()}, {middle.x(), room.bottom()}, s.Pen(Ink::Edge, 1, Qt::DashDotLine));
    QColor fill = s.Colour(Ink::Load);
    fill.setAlpha(60);
    s.Painter.setPen(s.Pen(Ink::Load, 1.3));
    s.Painter.setBrush(fill);
    if (circular_) s.Painter.drawEllipse(middle, halfA * scale, halfA * scale);
    if (rectangular_)
        s.Painter.drawRect(
            QRectF(middle.x() - halfA * scale, middle.y() - halfB * scale, 2 * halfA * scale, 2 * halfB * scale));
    if (point_) s.Dot(middle, 3, Ink::Load);
    s.Dimension("txt_B", middle + QPointF(-halfA, -halfB) * scale, middle + QPointF(-halfA, halfB) * scale, Side::Left,
                b_.Broken);
    // x to the right and y upwards, as the section shows x.
    const QPointF foot = middle + QPointF(x_.Length * scale, 0), point = foot - QPointF(0, y_.Length * scale);
    s.Line(middle, foot, s.PenOf("txt_x", s.Pen(Ink::Point, 1, Qt::DashLine)));
    s.Line(foot, point, s.PenOf("txt_y", s.Pen(Ink::Point, 1, Qt::DashLine)));
    if (x_.Broken) s.Break(middle, foot, Ink::Window);
    if (y_.Broken) s.Break(foot, point, Ink::Window);
    s.Dot(point, 3.5, Ink::Point);
    s.Number("txt_y", (foot + point) / 2, x_.Length < 0 ? Side::Left : Side::Right, Ink::Point, "y");
}

}  // namespace lithmark
