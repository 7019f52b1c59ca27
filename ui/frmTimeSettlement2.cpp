#include "ui/frmTimeSettlement2.h"

#include "files/CommonStep.h"
#include "ui/model/TableRows.h"

namespace lithmark {

namespace {

using R = SessionRecord;
const std::string kPerCent = "[%]";

std::string UnitOf(int option) {
    return option == 0 ? kPerCent : Text(42_text);
}

}  // namespace

frmTimeSettlement2::frmTimeSettlement2()
    : TimeSettlementForm("frmTimeSettlement2", {"TimeSettlement2.bmp", "TimeSettlement Form", "building"}) {
    SetFields({RowSm(),
               FieldRow({lblHo, 300025_text}, {lbl_ho, "h"}, txt_Hb, {lblm1, Unit::Length}, {&R::h, &R::FmtLength}, {0},
                        {GoTo(txt_Sc)}),
               RowPt(), RowSc(),
               FieldRow({lblHm, 300035_text}, {lbl_hm, "Hm"}, txt_Hm, {lblm2, Unit::Length}, {&R::Hm, &R::FmtLength},
                        {0}, {GoTo(txt_Sc)}),
               RowTimePeriod(), RowDate(), RowTimeOfMeasurement()});
    SetChoices({TimeUnits(), ChoiceRow(chkDrainage, {400184_text}, {&R::DrainageFaces, {Faces::Both, Faces::OneSided}}),
                ChoiceRow(optOdomterUnit,
                          {[] { return Text(300042_text) + " " + UnitOf(0); },
                           [] { return Text(300042_text) + " " + UnitOf(1); }},
                          {}, [this] { optOdomterUnit_Click(); }),
                Measured()});
    SetCaptionRows(WithSharedCaptions(
        {{frmOdomterUnit, 300041_text, Styles::Heading}, {CmdOdomterSettlement, 300036_text, Styles::Button}}));
    CmdOdomterSettlement.OnClick = [this] { CmdOdomterSettlement_Click(); };
}

void frmTimeSettlement2::ShowChoices() {
    for (int option = 0; option <= optOdomterUnit.kLast; ++option)
        optOdomterUnit[option].Value = Session.OedUnit == UnitOf(option);
    TimeSettlementForm::ShowChoices();
}

void frmTimeSettlement2::StoreChoices(SessionRecord& record) const {
    TimeSettlementForm::StoreChoices(record);
    if (const int option = optOdomterUnit.Selected(); option >= 0) record.OedUnit = UnitOf(option);
}

// The unit is in force at once, since the table shows it too.
void frmTimeSettlement2::optOdomterUnit_Click() {
    if (const int option = optOdomterUnit.Selected(); option >= 0) Session.OedUnit = UnitOf(option);
}

void frmTimeSettlement2::CmdOdomterSettlement_Click() {
    const EditedColumn time(TableHead(10247_text, "Tm", Text(122_text)), "0.00", TableEdit::Kind::Positive);
    const EditedColumn settlement(TableHead(40081_text, "Sm", Session.OedUnit),
                                  Session.OedUnit == kPerCent ? "0.00" : "0.0000", TableEdit::Kind::Positive);
    UnderCommonStep([&] {
        EditRows(300036_text, 906505_text, TableHead(13_text, Text(90000_text), "[-]"), time, settlement, Session.NOed,
                 Session.OedTime, Session.OedSettlement);
    });
}

}  // namespace lithmark
