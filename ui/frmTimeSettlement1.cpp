#include "ui/frmTimeSettlement1.h"

#include "files/CommonStep.h"
#include "ui/model/TableRows.h"

namespace lithmark {

frmTimeSettlement1::frmTimeSettlement1()
    : TimeSettlementForm("frmTimeSettlement1", {"TimeSettlement1.bmp", "TimeSettlement Form", "building"}) {
    SetFields({RowSm(), RowPt(), RowSc(), RowTimePeriod(), RowDate(), RowTimeOfMeasurement()});
    SetChoices({TimeUnits(), Measured()});
    SetCaptionRows(WithSharedCaptions({{CmdTimeSettlementPoints, 300044_text, Styles::Button}}));
    CmdTimeSettlementPoints.OnClick = [this] { CmdTimeSettlementPoints_Click(); };
}

void frmTimeSettlement1::CmdTimeSettlementPoints_Click() {
    const EditedColumn time(TableHead(10247_text, "I", Session.TimeUnit), "0", TableEdit::Kind::Whole, 1, 32000);
    const EditedColumn settlement(TableHead(40081_text, "STS", Text(300049_text)), "0", TableEdit::Kind::Real);
    UnderCommonStep([&] {
        EditRows(300043_text, 906504_text, TableHead(13_text, Text(90000_text), "[-]"), time, settlement, Session.NSts,
                 Session.StsTime, Session.StsValue);
    });
}

}  // namespace lithmark
