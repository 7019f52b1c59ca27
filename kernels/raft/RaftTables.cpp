#include "kernels/raft/RaftTables.h"

#include "core/Session.h"
#include "core/Units.h"
#include "report/StepTables.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

void AddNodeTable(const RaftResult& result) {
    const RaftInput& in = result.Input;
    const double length = Session.Len1Factor, force = Session.Force1Factor;
    const double halfA = result.Circular ? 0 : in.A / 2, halfB = result.Circular ? 0 : in.B / 2;
    StepTable& table = Steps().Add(Text(907250_text));
    table.AddColumn(13_text, "i");
    table.AddColumn(907251_text, "u", Session.Len1Label);
    table.AddColumn(907251_text, "v", Session.Len1Label);
    table.AddColumn(907252_text, "A", LabelOf(Unit::Area));
    table.AddColumn(90098_text, "q", LabelOf(Unit::Pressure));
    table.AddColumn(400122_text, "f", Session.Force1Label);
    table.AddColumn(907253_text, "f*u", LabelOf(Unit::Moment));
    table.AddColumn(907253_text, "f*v", LabelOf(Unit::Moment));
    table.AddColumn(40081_text, "s", Session.Len2Label);
    for (int i = 1; i <= Session.NodeForce.Upper(); ++i) {
        const double u = (Session.NodeX(i) - halfA) * length, v = (Session.NodeY(i) - halfB) * length;
        const double f = Session.NodeForce(i) * force;
        table.Rows.push_back({double(i), u, v, Session.NodeArea(i) * FactorOf(Unit::Area),
                              Session.NodePressure(i) * FactorOf(Unit::Pressure), f, f * u, f * v,
                              Session.NodeSettlement(i) * Session.Len2Factor});
    }
    table.AddSums({3, 5, 6, 7});
    const double Q = in.Q * force, mX = Q * in.Exz_x * length;
    const double mY = result.Circular ? 0 : Q * in.Exz_y * length;
    const double area = result.Circular ? PI * Square(in.A) : double(in.A) * in.B;
    table.AddLine(Text(907254_text), {{}, {}, area * FactorOf(Unit::Area), {}, Q, mX, mY});
    table.AddLine(Text(907255_text), {{},
                                      {},
                                      table.SumOf(3) - area * FactorOf(Unit::Area),
                                      {},
                                      table.SumOf(5) - Q,
                                      table.SumOf(6) - mX,
                                      table.SumOf(7) - mY});
    table.Notes.push_back(Text(907256_text));
}

}  // namespace lithmark
