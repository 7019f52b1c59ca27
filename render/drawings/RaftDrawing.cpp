// Rigid rafts: the raft on its layer in perspective, with the load where it
// acts and the field in which it may act.
#include <algorithm>
#include <cmath>

#include "core/Problems.h"
#include "render/drawings/Perspective.h"
#include "render/drawings/Proportions.h"

namespace lithmark {

namespace {

// The part of a side that an eccentricity is, in the side as drawn.
double Shown(double eccentricity, double side, double drawnSide) {
    return side > 0 ? std::clamp(eccentricity / side, -0.5, 0.5) * drawnSide : 0;
}

struct Raft {
    double A, B;  // the sides, as drawn; a circle has twice its radius
    bool Rectangular;
    double Thickness;
};

QPolygonF Outline(const Perspective& p, const Raft& raft, double z, double part = 1) {
    return raft.Rectangular ? p.Rectangle(raft.A * part, raft.B * part, z) : p.Circle(raft.A / 2 * part, z);
}

void DrawRaft(Sketch& s, const Perspective& p, const Raft& raft, const DrawnLength& a, const DrawnLength& b) {
    const QPolygonF foot = Outline(p, raft, 0), top = Outline(p, raft, -raft.Thickness);
    const QColor body = s.Colour(Ink::Rock);
    s.Polygon(foot, s.Pen(Ink::Quiet), body.darker(112));
    for (int i = 0; i < top.size(); ++i) {
        const int next = (i + 1) % static_cast<int>(top.size());
        s.Polygon(QPolygonF({top[i], top[next], foot[next], foot[i]}),
                  raft.Rectangular ? s.Pen(Ink::Quiet) : s.Pen(Ink::Rock), body.darker(112));
    }
    s.Polygon(top, s.Pen(Ink::Quiet, 1.2), body);
    const double z = -raft.Thickness, x = raft.A / 2, y = raft.B / 2;
    if (raft.Rectangular) {
        s.Dimension("txt_A", p.At(-x, -y, z), p.At(x, -y, z), Side::Left, a.Broken);
        s.Dimension("txt_B", p.At(x, -y, 0), p.At(x, y, 0), Side::Below, b.Broken);
    } else {
        s.Dimension("txt_A", p.At(0, 0, z), p.At(0, -x, z), Side::Left, a.Broken);
    }
}

void DrawLoad(Sketch& s, const Perspective& p, const Raft& raft, double height) {
    const SessionRecord& r = s.Record;
    const double z = -raft.Thickness;
    const bool alongX = s.Form.Has("txt_Exz_x"), alongY = s.Form.Has("txt_Exz_y");
    // A numerical analysis takes the eccentricities of the data file where the dialog has no boxes for them, too.
    const bool stored = raft.Rectangular && r.AnalysisType == Analysis::Numerical;
    const double side = raft.Rectangular ? double(r.A) : 2 * double(r.A);
    const double ex = alongX || stored ? Shown(double(r.Exz_x), side, raft.A) : 0;
    const double ey = alongY || stored ? Shown(double(r.Exz_y), double(r.B), raft.B) : 0;
    if (!alongX && ex != 0) {
        s.Line(p.At(0, 0, z), p.At(ex, 0, z), s.Pen(Ink::Load));
        s.Symbol("ex", p.At(ex / 2, 0, z), Side::Left, Ink::Load);
    }
    if (!alongY && ey != 0) {
        s.Line(p.At(ex, 0, z), p.At(ex, ey, z), s.Pen(Ink::Load));
        s.Symbol("ey", p.At(ex, ey / 2, z), Side::Right, Ink::Load);
    }
    if (alongX || alongY)
        // A third of each side from the centre.
        s.Polygon(Outline(p, raft, z, 2.0 / 3), s.Pen(Ink::Good, 1, Qt::DashLine), Qt::NoBrush);
    s.Dot(p.At(0, 0, z), 2.5, Ink::Quiet);
    s.Dimension("txt_Exz_x", p.At(0, 0, z), p.At(ex, 0, z), Side::Left, false, "", Ink::Load);
    s.Dimension("txt_Exz_y", p.At(ex, 0, z), p.At(ex, ey, z), Side::Right, false, "", Ink::Load);
    const QPointF foot = p.At(ex, ey, z), head = foot - QPointF(0, height * p.Scale());
    s.Arrow(head, foot, s.PenOf("txt_Q", s.Pen(Ink::Load, 3)));
    s.Number("txt_Q", head, Side::Right, Ink::Load);
}

// The bottom of ground that goes on.
void OpenBottom(Sketch& s, const QRectF& front, Ink soil) {
    s.Line(front.bottomLeft(), front.bottomRight(), s.Pen(soil, 3));
    QPolygonF wave;
    constexpr int kTeeth = 24;
    for (int i = 0; i <= kTeeth; ++i)
        wave << QPointF(front.left() + front.width() * i / kTeeth, front.bottom() + (i % 2 == 0 ? -3 : 3));
    s.Painter.setPen(s.Pen(Ink::Edge));
    s.Painter.drawPolyline(wave);
}

}  // namespace

void RaftDrawing(Sketch& s) {
    const SessionRecord& r = s.Record;
    const bool rectangular = s.Form.Has("txt_B"), layered = s.Form.Has("txt_h"), buried = s.Form.Has("txt_z");
    const double a = (rectangular ? 1 : 2) * double(r.A), b = rectangular ? double(r.B) : 0;
    const std::vector<DrawnLength> lengths = Proportions({a, b, layered ? double(r.h) : 0, buried ? double(r.z) : 0});
    double longest = 0;
    for (const DrawnLength& length : lengths) longest = std::max(longest, length.Length);
    if (longest == 0) longest = 1;
    Raft raft{lengths[0].Length, rectangular ? lengths[1].Length : lengths[0].Length, rectangular, 0.05 * longest};
    const double z = std::max(0.0, lengths[3].Length), h = layered ? std::max(0.0, lengths[2].Length) : 0.45 * longest;
    Block block{std::max(0.35 * longest, 0.7 * raft.A), std::max(0.45 * longest, 0.7 * raft.B), {z, z + h}};
    double height = 0.4 * std::max(block.X, block.Y);
    const double margin = s.LineHeight() * 1.5;
    const QRectF room = s.Area.adjusted(margin, margin, -margin, -margin * 1.5);
    // Ground that goes on fills the room, rock a part of it, then the arrow of
    // the load.
    const double rock = std::clamp(Perspective::SpareDepth(room, block, height * 1.3), 0.1 * longest,
                                   layered ? 0.3 * longest : 8 * longest);
    block.Depths.push_back(block.Depths.back() + rock);
    height += std::clamp(Perspective::SpareDepth(room, block, height * 1.3) / 1.3, 0.0, 0.6 * longest);
    block.Y += std::max(0.0, Perspective::SpareWidth(room, block, height * 1.3));
    const Perspective p(s, room, block, height * 1.3);
    p.Surface();
    const Ink soil = s.Form.Has("txt_z") || s.Form.Has("txt_Cc") ? Ink::Clay : Ink::SoilSide;
    if (z > 0) p.Layer(0, z, Ink::SoilTop, true);
    const double bottom = block.Depths.back(), base = layered ? z + h : bottom;
    p.Layer(z, base, soil);
    const QRectF front = p.Front(z, base);
    if (layered) {
        p.Layer(base, bottom, Ink::Rock, true);
        s.Line(front.bottomLeft(), front.bottomRight(), s.Pen(Ink::Text, 1.6));
    } else {
        OpenBottom(s, front, soil);
    }
    if (buried) {
        const QRectF above = p.Front(0, z);
        s.Dimension("txt_z", above.topLeft() + QPointF(16, 0), above.bottomLeft() + QPointF(16, 0), Side::Right,
                    lengths[3].Broken);
    }
    s.Dimension("txt_h", front.topLeft() + QPointF(16, 0), front.bottomLeft() + QPointF(16, 0), Side::Right,
                lengths[2].Broken);
    DrawRaft(s, p, raft, lengths[0], lengths[1]);
    DrawLoad(s, p, raft, height);
    s.Number("txt_Po", p.At(block.X, 0, z), Side::Below);
    s.Numbers({"txt_Es", "txt_Nue", "txt_Cc", "txt_eo", "txt_Gamma"},
              QPointF(front.left() + front.width() * 0.62, front.center().y()));
}

}  // namespace lithmark
