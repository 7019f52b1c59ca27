#include "ui/frmTimeSettlement1.h"

#include "ui/model/CommonStep.h"
#include "ui/model/TableRows.h"

namespace lithmark {

frmTimeSettlement1::frmTimeSettlement1()
    : TimeSettlementForm("frmTimeSettlement1", {"TimeSettlement1.bmp", "TimeSettlement Form", "time-direct"}) {
    SetFields({RowSm(), RowPt(), RowSc(), RowTimePeriod(), RowDate(), RowTimeOfMeasurement()});
    SetChoices({TimeUnits(), Measured()});
    std::vector<CaptionRow> captions = SharedCaptions();
    captions.push_back({CmdTimeSettlementPoints, 300044_text, Style{1}});
    SetCaptionRows(std::move(captions));
    CmdTimeSettlementPoints.OnClick = [this] { CmdTimeSettlementPoints_Click(); };
}

void frmTimeSettlement1::CmdTimeSettlementPoints_Click() {
    const EditedColumn time{{TableHead(10247_text, "I", Session.TimeUnit), TableEdit::Kind::Whole, 32000, 1}, "0"};
    const EditedColumn settlement{{TableHead(40081_text, "STS", Text(300049_text)), TableEdit::Kind::Real, 1e38, 0},
                                  "0"};
    UnderCommonStep([&] {
        EditRows(300043_text, 906504_text, TableHead(13_text, Text(90000_text), "[-]"), time, settlement, Session.NSts,
                 Session.StsTime, Session.StsValue);
    });
}

}  // namespace lithmark
