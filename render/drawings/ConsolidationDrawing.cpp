// Settlement of a clay layer under a load: the section, and load and point from
// above in a corner.
#include "render/drawings/GroundSection.h"

namespace lithmark {

namespace {

constexpr double kPlanShare = 0.24, kLoadShare = 0.14;

}  // namespace

void ConsolidationDrawing(Sketch& s) {
    const SessionRecord& r = s.Record;
    const double plan = kPlanShare * s.Area.height(), load = kLoadShare * s.Area.height() + s.LineHeight();
    const double below = s.LineHeight();
    const QRectF room = s.Area.adjusted(kEdge, plan + load, -kEdge, -below);
    const GroundSection section(s, room, {{"txt_h", double(r.h)}}, double(r.PrefDz));
    section.Draw();
    section.DrawLoad(load - s.LineHeight());
    section.DrawPlan({s.Area.right() - 1.7 * plan, s.Area.top() + kEdge, 1.1 * plan, plan - 2 * kEdge});
    const QRectF clay = section.Clay();
    // What the clay lies on.
    s.Rect({clay.left(), clay.bottom(), clay.width(), s.Area.bottom() - clay.bottom()}, Qt::NoPen,
           s.Colour(Ink::SoilSide));
    s.Line(clay.bottomLeft(), clay.bottomRight(), s.Pen(Ink::Edge));
    s.Numbers({"txt_Es", "txt_Cc", "txt_eo", "txt_Po", "txt_Gamma"},
              {clay.left() + clay.width() * 0.72, clay.center().y()});
}

}  // namespace lithmark
