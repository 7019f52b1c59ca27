// Degree of consolidation: a column of one or two clays with their drainage,
// and the pressure of the water in it at the beginning at the right.
#include <algorithm>
#include <cmath>

#include "core/Problems.h"
#include "render/drawings/DrawnParts.h"
#include "render/drawings/GroundSection.h"

namespace lithmark {

namespace {

constexpr double kColumnShare = 0.58;

// The share of the pressure under the middle of the load that a depth has: the
// load's own for a circle, of a rectangle that of the circle of the same area;
// under a point load by the square of the depth.
double ShareAt(const Sketch& s, double depth) {
    const SessionRecord& r = s.Record;
    if (s.Form.Has("txt_U")) return 1;
    if (s.Form.Has("txt_Q")) return 1 / (depth * depth);
    const double a = double(r.A);
    const double radius = s.Form.Has("txt_B") ? std::sqrt(a * double(r.B) / 3.141592653589793) : a;
    if (!(depth > 0)) return 1;
    const double ratio = radius / depth;
    return 1 - 1 / std::pow(1 + ratio * ratio, 1.5);
}

void DrawPressure(Sketch& s, const QRectF& room) {
    const SessionRecord& r = s.Record;
    const double thick = double(r.hLayer(1)) + (s.Form.Has("txt_h2") ? double(r.hLayer(2)) : 0);
    const double first = std::max(double(r.z), 0.02 * thick);
    const double most = ShareAt(s, first);
    QPolygonF shape({room.topLeft()});
    constexpr int kParts = 40;
    for (int i = 0; i <= kParts; ++i) {
        const double share = ShareAt(s, first + thick * i / kParts) / most;
        const double width = std::isfinite(share) ? std::clamp(share, 0.0, 1.0) : 1;
        shape << QPointF(room.left() + room.width() * width, room.top() + room.height() * i / kParts);
    }
    shape << room.bottomLeft();
    QColor fill = s.Colour(Ink::Water);
    fill.setAlpha(50);
    s.Polygon(shape, s.PenOf("txt_U", s.Pen(Ink::Water, 1.4)), fill);
    for (int i = 5; i < kParts; i += 10)
        s.Arrow({shape[i + 1].x(), shape[i + 1].y()}, {room.left(), shape[i + 1].y()}, s.Pen(Ink::Water));
    s.Number("txt_U", room.center(), Side::On, Ink::Water);
    if (!s.Form.Has("txt_U")) s.Symbol("uo", room.center(), Side::On, Ink::Water);
}

}  // namespace

void RateDrawing(Sketch& s) {
    const SessionRecord& r = s.Record;
    const bool loaded = s.Form.Has("txt_x");
    const double line = s.LineHeight();
    const double plan = loaded ? 0.2 * s.Area.height() : 0, load = loaded ? 0.12 * s.Area.height() + line : 2 * line;
    std::vector<DrawnClay> clay{{"txt_h1", double(r.hLayer(1))}};
    if (s.Form.Has("txt_h2")) clay.push_back({"txt_h2", double(r.hLayer(2))});
    const QRectF room(s.Area.left() + kEdge, s.Area.top() + plan + load, s.Area.width() * kColumnShare,
                      s.Area.height() - plan - load - 2.2 * line);
    const GroundSection section(s, room, clay, 0);
    section.Draw();
    section.DrawLoad(load - line);
    section.DrawPlan({s.Area.right() - 1.9 * plan, s.Area.top() + kEdge, 1.1 * plan, plan - 2 * kEdge});
    s.Number("txt_T", {s.Area.left() + s.Area.width() * 0.2, s.Area.top() + line}, Side::On);
    const QRectF all = section.Clay();
    DrawDrainage(s, all, r.DrainageCondition != Drainage::BottomImpermeable);
    const char* const properties[2][2] = {{"txt_Cv1", "txt_K1"}, {"txt_Cv2", "txt_K2"}};
    for (std::size_t i = 0; i < clay.size(); ++i) {
        const QRectF layer = section.Layer(i);
        // Over the number of the thickness, which stands in the middle.
        const double y = layer.height() > 7 * line ? layer.top() + layer.height() * 0.28 : layer.center().y();
        s.Numbers({properties[i][0], properties[i][1]}, {layer.left() + layer.width() * 0.6, y});
    }
    DrawPressure(s, {all.right() + 2 * kEdge, all.top(), s.Area.right() - all.right() - 4 * kEdge, all.height()});
}

}  // namespace lithmark
