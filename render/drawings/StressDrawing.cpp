// Stresses, strains and displacements at a point: a block of the half-space
// with the load in the middle of its surface, and the point with its
// coordinates.
#include <algorithm>
#include <cmath>

#include "core/Problems.h"
#include "render/drawings/Perspective.h"
#include "render/drawings/Proportions.h"

namespace lithmark {

namespace {

struct View {
    Sketch& S;
    const Perspective& P;
    DrawnLength A, B, X, Y, Z;
    double Top;  // the height of the load's arrows
    bool Rectangular, Circular;
};

void DrawAxes(const View& v, const Block& block) {
    Sketch& s = v.S;
    const Perspective& p = v.P;
    const QPen axis = s.Pen(Ink::Quiet, 1);
    s.Arrow(p.At(0, 0, 0), p.At(block.X, 0, 0), axis);
    s.Arrow(p.At(0, 0, 0), p.At(0, block.Y, 0), axis);
    s.Symbol("x", p.At(block.X, 0, 0), Side::Left, Ink::Quiet);
    s.Symbol("y", p.At(0, block.Y, 0), Side::Above, Ink::Quiet);
}

void DrawUniformLoad(const View& v) {
    Sketch& s = v.S;
    const Perspective& p = v.P;
    const QPointF up(0, -v.Top * p.Scale());
    const QPolygonF foot = v.Rectangular ? p.Rectangle(v.A.Length, v.B.Length, 0) : p.Circle(v.A.Length, 0);
    QColor area = s.Colour(Ink::Load);
    area.setAlpha(60);
    const QPen pen = s.Pen(Ink::Load, 1.4);
    s.Polygon(foot, pen, area);
    const QPen arrows = s.PenOf("txt_P", s.Pen(Ink::Load, 1.2));
    if (v.Rectangular) {
        for (const double y : {-0.5, -0.25, 0.0, 0.25, 0.5})
            for (const double x : {-0.5, 0.5}) {
                const QPointF at = p.At(x * v.A.Length, y * v.B.Length, 0);
                s.Arrow(at + up, at, arrows);
            }
    } else {
        for (int i = 0; i < foot.size(); i += 8) s.Arrow(foot[i] + up, foot[i], arrows);
    }
    s.Polygon(foot.translated(up), s.PenOf("txt_P", s.Pen(Ink::Load, 1.2)), Qt::NoBrush);
    s.Number("txt_P", p.At(0, 0, 0) + up - QPointF(0, foot.boundingRect().height() / 2), Side::Above, Ink::Load);
    if (v.Rectangular) {
        s.Dimension("txt_A", p.At(-v.A.Length / 2, -v.B.Length / 2, 0), p.At(v.A.Length / 2, -v.B.Length / 2, 0),
                    Side::Left, v.A.Broken);
        s.Dimension("txt_B", p.At(v.A.Length / 2, -v.B.Length / 2, 0), p.At(v.A.Length / 2, v.B.Length / 2, 0),
                    Side::Below, v.B.Broken);
    } else {
        s.Dimension("txt_A", p.At(0, 0, 0), p.At(0, -v.A.Length, 0), Side::Left, v.A.Broken);
    }
}

void DrawPointLoad(const View& v) {
    const QPointF foot = v.P.At(0, 0, 0), head = v.P.At(0, 0, -v.Top);
    v.S.Arrow(head, foot, v.S.PenOf("txt_Q", v.S.Pen(Ink::Load, 3)));
    v.S.Number("txt_Q", head, Side::Right, Ink::Load);
}

void DrawCoordinate(const View& v, const char* box, const char* symbol, const DrawnLength& length, const QPointF& from,
                    const QPointF& to, Side side) {
    v.S.Line(from, to, v.S.PenOf(box, v.S.Pen(Ink::Point, 1.4, Qt::DashLine)));
    if (length.Broken) v.S.Break(from, to, Ink::SoilTop);
    v.S.Number(box, (from + to) / 2, side, Ink::Point, symbol);
}

void DrawPoint(const View& v) {
    Sketch& s = v.S;
    const double x = v.X.Length, y = v.Y.Length, z = v.Z.Length;
    const QPointF point = v.P.At(x, y, z);
    DrawCoordinate(v, "txt_y", "y", v.Y, v.P.At(0, 0, 0), v.P.At(0, y, 0), Side::Above);
    DrawCoordinate(v, "txt_x", "x", v.X, v.P.At(0, y, 0), v.P.At(x, y, 0), y < 0 ? Side::Left : Side::Right);
    DrawCoordinate(v, "txt_z", "z", v.Z, v.P.At(x, y, 0), point, Side::Right);
    s.Dot(point, 5, Ink::Point);
    if (s.Record.ProblemType != Problem::SoilDisplacement) return;
    const double arrow = std::min(34.0, 0.2 * s.Area.height());
    const QPen pen = s.Pen(Ink::Point, 1.6);
    const QPointF u(-0.8 * arrow, 0.6 * arrow), along(arrow, 0), down(0, arrow);
    s.Arrow(point, point + u, pen);
    s.Symbol("u", point + u, Side::Left, Ink::Point);
    s.Arrow(point, point + along, pen);
    s.Symbol("v", point + along, Side::Right, Ink::Point);
    s.Arrow(point, point + down, pen);
    s.Symbol("w", point + down, Side::Right, Ink::Point);
}

}  // namespace

void StressDrawing(Sketch& s) {
    const SessionRecord& r = s.Record;
    const bool rectangular = s.Form.Has("txt_B"), circular = s.Form.Has("txt_A") && !rectangular;
    const double a = rectangular || circular ? double(r.A) : 0, b = rectangular ? double(r.B) : 0;
    const std::vector<DrawnLength> lengths = Proportions({a, b, double(r.z)});
    double longest = Longest(lengths);
    // A point load at the surface: the place alone gives the scale.
    if (longest == 0) longest = Longest(Proportions({double(r.x), double(r.y)}));
    if (longest == 0) longest = 1;
    const double half = circular ? 1 : 0.5, halfA = half * lengths[0].Length;
    const double halfB = circular ? lengths[0].Length : lengths[1].Length / 2;
    Block block{std::max(0.45 * longest, 1.4 * halfA),
                std::max(0.6 * longest, 1.4 * halfB),
                {std::max(0.5 * longest, 1.25 * lengths[2].Length)}};
    const DrawnLength x = Coordinate(double(r.x), half * a, halfA, kFarthest * block.X);
    const DrawnLength y = Coordinate(double(r.y), circular ? a : b / 2, halfB, kFarthest * block.Y);
    block.X = std::max(block.X, 1.1 * std::abs(x.Length));
    block.Y = std::max(block.Y, 1.1 * std::abs(y.Length));
    const double top = 0.3 * std::max(block.X, block.Y);
    const double margin = s.LineHeight() * 1.5;
    const QRectF room = s.Area.adjusted(margin, margin * 2, -margin, -margin);
    block.Depths.back() += std::max(0.0, Perspective::SpareDepth(room, block, top * 2));
    block.Y += std::max(0.0, Perspective::SpareWidth(room, block, top * 2));
    const Perspective p(s, room, block, top * 2);
    p.Surface();
    p.Layer(0, block.Depths.back(), Ink::SoilSide);
    const View view{s, p, lengths[0], lengths[1], x, y, lengths[2], top, rectangular, circular};
    DrawAxes(view, block);
    if (rectangular || circular) DrawUniformLoad(view);
    if (s.Form.Has("txt_Q")) DrawPointLoad(view);
    DrawPoint(view);
    const QRectF front = p.Front(0, block.Depths.back());
    s.Numbers({"txt_Es", "txt_Nue"}, QPointF(front.left() + front.width() * 0.4, front.bottom() - 2 * s.LineHeight()));
}

}  // namespace lithmark
