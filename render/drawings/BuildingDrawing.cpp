// Time-settlement curve: the building under its load, what its settlement is
// worked out from (an oedometer's readings, the layer and its soil), the
// history of the load as a staircase, and the relative settlements below it.
#include <algorithm>
#include <cmath>
#include <limits>

#include "core/Problems.h"
#include "render/drawings/DrawnParts.h"
#include "render/drawings/Proportions.h"

namespace lithmark {

namespace {

constexpr double kBuildingEdge = 8;
constexpr double kWide = 1.4;  // from here on building and charts stand beside each other

// --- the building and its ground ---

void DrawHouse(Sketch& s, const QRectF& house) {
    s.Rect(house, s.Pen(Ink::Quiet, 1.4), s.Colour(Ink::Base));
    const double width = house.width() / 9, height = house.height() / 7;
    for (const int column : {1, 4, 7})
        for (const int row : {1, 3, 5})
            s.Rect({house.left() + (column - 0.1) * width, house.top() + row * height, 1.2 * width, height * 1.1},
                   s.Pen(Ink::Grid), s.Colour(Ink::Grid));
    const QPointF foot(house.center().x(), house.top());
    s.Arrow(foot - QPointF(0, s.LineHeight() * 1.6), foot, s.PenOf("txt_Pt", s.Pen(Ink::Load, 3)));
    s.Number("txt_Pt", foot - QPointF(0, s.LineHeight()), Side::Right, Ink::Load);
}

// The two parts of the pressure one over the other, by their sizes.
void DrawPressures(Sketch& s, const QRectF& house) {
    if (!s.Form.Has("txt_qv") && !s.Form.Has("txt_qe")) return;
    const double qv = std::max(0.0, Usable(double(s.Record.qv))), qe = std::max(0.0, Usable(double(s.Record.qe)));
    const double all = qv + qe, height = s.LineHeight() * 2.6, left = house.right() + 16;
    const double share = all > 0 ? std::clamp(qv / all, 0.0, 1.0) : 0.5;
    const QRectF both(left, house.bottom() - height, s.LineHeight(), height);
    QColor fill = s.Colour(Ink::Load);
    fill.setAlpha(70);
    const QRectF lower(both.left(), both.bottom() - share * height, both.width(), share * height);
    const QRectF upper(both.left(), both.top(), both.width(), height - lower.height());
    s.Rect(lower, s.PenOf("txt_qv", s.Pen(Ink::Load, 1.2)), fill);
    s.Rect(upper, s.PenOf("txt_qe", s.Pen(Ink::Load, 1.2)), fill.lighter(130));
    s.Number("txt_qe", {both.right(), upper.center().y()}, Side::Right, Ink::Load);
    s.Number("txt_qv", {both.right(), std::min(lower.center().y(), both.bottom() - s.LineHeight() * 0.7)}, Side::Right,
             Ink::Load);
}

// The ring of the oedometer with the sample between two filter stones.
void DrawRing(Sketch& s, const QRectF& room) {
    if (!s.Form.Has("txt_Hm")) return;
    const double wall = std::min(7.0, 0.2 * room.width()), stone = std::min(6.0, 0.2 * room.height());
    s.Rect({room.left(), room.top(), wall, room.height()}, s.Pen(Ink::Edge), s.Colour(Ink::Rock));
    s.Rect({room.right() - wall, room.top(), wall, room.height()}, s.Pen(Ink::Edge), s.Colour(Ink::Rock));
    const QRectF sample = room.adjusted(wall, stone, -wall, -stone);
    s.Rect(sample, s.Pen(Ink::Edge), s.Colour(Ink::Clay));
    s.Hatch({sample.left(), room.top(), sample.width(), stone});
    s.Hatch({sample.left(), sample.bottom(), sample.width(), stone});
    s.Dimension("txt_Hm", {room.right() + 10, sample.top()}, {room.right() + 10, sample.bottom()}, Side::Right);
    // The stamp.
    s.Arrow({sample.center().x(), room.top() - s.LineHeight()}, {sample.center().x(), room.top()},
            s.Pen(Ink::Load, 1.6));
}

void DrawBuilding(Sketch& s, const QRectF& room) {
    const bool layer = s.Form.Has("txt_Hb"), ring = s.Form.Has("txt_Hm");
    const double line = s.LineHeight();
    const double surface = room.top() + room.height() * (layer ? 0.5 : 0.72);
    const double width = std::min(room.width() * 0.3, 150.0), head = room.top() + line * 1.8;
    const double middle = room.left() + room.width() * (ring ? 0.3 : s.Form.Has("txt_qv") ? 0.26 : 0.38);
    const QRectF house(middle - width / 2, head, width, std::max(10.0, surface - head));
    const QRectF ground(room.left(), surface, room.width(), room.bottom() - surface);
    s.Rect(ground, Qt::NoPen, s.Colour(Ink::SoilSide));
    s.Line(ground.topLeft(), ground.topRight(), s.Pen(Ink::Text, 1.6));
    if (layer) {
        const QRectF clay = ground.adjusted(0, line * 1.7, 0, -line * 1.9);
        s.Rect(clay, s.Pen(Ink::Edge), s.Colour(Ink::Clay));
        DrawDrainage(s, clay, s.Record.DrainageFaces == Faces::Both);
        s.Dimension("txt_Hb", {clay.left() + 14, clay.top()}, {clay.left() + 14, clay.bottom()}, Side::Right);
        s.Numbers({"txt_Cv", "txt_kf", "txt_Es", "txt_Ws"}, {clay.left() + clay.width() * 0.78, clay.center().y()});
    }
    DrawHouse(s, house);
    DrawPressures(s, house);
    DrawRing(s, {room.left() + room.width() * 0.56, surface - line * 4, room.width() * 0.17, line * 3});
}

// --- the charts ---

// The times of both charts share an axis.
struct TimeAxis {
    double Left, Right, End;
    double At(double time) const { return Left + (Right - Left) * std::clamp(time / End, 0.0, 1.0); }
};

double TimesEnd(const SessionRecord& r) {
    double end = std::max(1.0, double(int(r.TimePeriod)));
    if (r.NLoad > 0) end = std::max(end, 1.15 * int(r.LoadTime(r.NLoad)));
    if (r.Ms) end = std::max(end, 1.05 * int(r.DesignCode));
    return end;
}

void DrawStaircase(Sketch& s, const QRectF& room, const TimeAxis& time) {
    const SessionRecord& r = s.Record;
    const QPointF corner = room.bottomLeft();
    s.Arrow(corner, room.topLeft() - QPointF(0, 6), s.Pen(Ink::Quiet, 1.2));
    s.Symbol("P", room.topLeft() + QPointF(0, 6), Side::Left, Ink::Quiet);
    double most = 0;
    for (int i = 1; i <= r.NLoad; ++i) most = std::max(most, Usable(double(r.LoadValue(i))));
    const auto height = [&](double load) {
        return most > 0 ? room.bottom() - room.height() * std::clamp(Usable(load) / most, 0.0, 1.0) : room.bottom();
    };
    QPolygonF stairs({QPointF(time.Left, room.bottom())});
    for (int i = 1; i <= r.NLoad; ++i) {
        // A load counts from the beginning of its time step.
        const double x = time.At(int(r.LoadTime(i)) - 1);
        stairs << QPointF(x, stairs.back().y()) << QPointF(x, height(double(r.LoadValue(i))));
    }
    stairs << QPointF(time.Right, stairs.back().y());
    QPolygonF area = stairs;
    area << QPointF(time.Right, room.bottom());
    QColor fill = s.Colour(Ink::Load);
    fill.setAlpha(45);
    s.Polygon(area, Qt::NoPen, fill);
    s.Painter.setPen(s.Pen(Ink::Load, 1.8));
    s.Painter.drawPolyline(stairs);
}

// The points of a curve of relative settlements, over time or over its root.
void DrawPoints(Sketch& s, const QRectF& room, const Array<Single>& times, const Array<Single>& values, int count,
                bool root) {
    double last = 0, most = 0;
    for (int i = 1; i <= count; ++i) {
        last = std::max(last, Usable(double(times(i))));
        most = std::max(most, std::abs(Usable(double(values(i)))));
    }
    if (last <= 0 || most <= 0) return;
    QPolygonF line;
    for (int i = 1; i <= count; ++i) {
        const double part = std::clamp(Usable(double(times(i))) / last, 0.0, 1.0);
        line << QPointF(room.left() + room.width() * 0.94 * (root ? std::sqrt(part) : part),
                        room.top() + room.height() * 0.9 * std::clamp(Usable(double(values(i))) / most, 0.0, 1.0));
    }
    s.Painter.setPen(s.Pen(Ink::Curve2, 1.2, Qt::DashLine));
    s.Painter.drawPolyline(line);
    for (const QPointF& point : line) s.Dot(point, 3, Ink::Curve2);
}

void DrawSettlements(Sketch& s, const QRectF& room, const TimeAxis& time) {
    const SessionRecord& r = s.Record;
    s.Arrow(room.topLeft(), {room.right() + 6, room.top()}, s.Pen(Ink::Quiet, 1.2));
    s.Arrow(room.topLeft(), room.bottomLeft() + QPointF(0, 6), s.Pen(Ink::Quiet, 1.2));
    s.Symbol("s", room.bottomLeft(), Side::Left, Ink::Quiet);
    s.Number("txtTimePeriod", {room.right(), room.top()}, Side::Above, Ink::Text, "t");
    if (s.Form.Has("txt_Hm"))
        DrawPoints(s, room, r.OedTime, r.OedSettlement, r.NOed, true);
    else if (!s.Form.Has("txt_Hb"))
        DrawPoints(s, room, r.StsTime, r.StsValue, r.NSts, false);
    // The settlement at the end, and the one measured, to one scale.
    const double end = std::max(0.0, Usable(double(r.Sc)));
    const double measured = s.Form.Has("txt_Sm") ? std::max(0.0, Usable(double(r.Sm))) : 0;
    const double most = std::max({end, measured, std::numeric_limits<double>::min()});
    const auto depth = [&](double settlement) { return room.top() + room.height() * settlement / most; };
    s.Dimension("txt_Sc", {room.right(), room.top()}, {room.right(), depth(end)}, Side::Left, false, "", Ink::Point);
    if (!s.Form.Has("txt_Sm")) return;
    const QPointF at(time.At(int(r.DesignCode)), depth(measured));
    const QPen pen = s.PenOf("txt_Sm", s.Pen(Ink::Point, 2));
    s.Line(at - QPointF(5, 5), at + QPointF(5, 5), pen);
    s.Line(at - QPointF(5, -5), at + QPointF(5, -5), pen);
    s.Number("txt_Sm", at, Side::Right, Ink::Point);
}

}  // namespace

void BuildingDrawing(Sketch& s) {
    const QRectF all = s.Area.adjusted(kBuildingEdge, kBuildingEdge, -kBuildingEdge, -kBuildingEdge);
    const bool wide = all.width() > kWide * all.height();
    QRectF building = all, charts = all;
    if (wide) {
        building.setWidth(all.width() * 0.56);
        charts.setLeft(building.right() + 2 * kBuildingEdge);
    } else {
        building.setHeight(all.height() * 0.54);
        charts.setTop(building.bottom() + kBuildingEdge);
    }
    DrawBuilding(s, building);
    const double line = s.LineHeight();
    charts.adjust(line * 1.4, line, -line, -line * 0.8);
    const TimeAxis time{charts.left(), charts.right(), TimesEnd(s.Record)};
    const double middle = charts.top() + charts.height() * 0.46;
    DrawStaircase(s, {charts.topLeft(), QPointF(charts.right(), middle)}, time);
    DrawSettlements(s, {QPointF(charts.left(), middle), charts.bottomRight()}, time);
}

}  // namespace lithmark
