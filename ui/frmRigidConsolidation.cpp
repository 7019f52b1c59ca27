#include "ui/frmRigidConsolidation.h"

#include "core/Units.h"
#include "services/SharedServices.h"

namespace lithmark {
namespace {

using R = SessionRecord;

}  // namespace

frmRigidConsolidation::frmRigidConsolidation()
    : RaftForm("frmRigidConsolidation", {"RigidConsolidation.bmp", "Consolidation Form", "raft"}) {
    const auto enabled = CheckedWhen::Enabled;
    SetFields({
        FieldRow({lbl_z_Coord, Axis::Z}, {lbl_z, "z"}, txt_z, {lblm3, Unit::Length}, {&R::z, &R::FmtLength}, {0},
                 {GoTo(txt_h)}),
        RowH(),
        RowQ(),
        RowA(),
        RowEx(enabled),
        RowEy(enabled),
        RowB(0.0001),
        RowEs({-kNoLimit}, {GoTo(cmdResult)}, enabled),
        FieldRow({lblCc, 300004_text}, {lbl_cc, "Cc"}, txt_Cc, {lblUnit1, Unit::None}, {&R::Cc, &R::FmtRatio}, {0.0001},
                 {GoTo(txt_eo)}, enabled),
        FieldRow({lbl_eo, 10175_text}, {Lbl_s_eo, "eo"}, txt_eo, {lblUnit2, Unit::None}, {&R::eo, &R::FmtRatio},
                 {0.0001}, {GoTo(txt_Gamma)}, enabled),
        FieldRow({lblGamma_Na, 10244_text}, {lblGamma_Sy, "Gamma_c"}, txt_Gamma, {lblGammaUnit, Unit::UnitWeight},
                 {&R::Gamma, &R::FmtUnitWeight}, {0.0001}, {GoTo(cmdResult)}, enabled),
        FieldRow({lblPo, 120001_text}, {lbl_s_Po, "Gamma*z"}, txt_Po, {lblknm3, Unit::Pressure},
                 {&R::Po, &R::FmtStress}, {0}, {GoTo(txt_Cc)}, enabled),
    });
    SetChoices({Shapes(), SettlementPlaces(), Analyses(),
                ChoiceRow(optSoilPeropertyType, {30003_text, 30005_text},
                          {&R::SoilPropertyType, {SoilDefinition::ByModulus, SoilDefinition::ByCompressionIndex}},
                          [this] { optSoilPeropertyType_Click(); })});
    SetCaptionRows(SharedCaptions());
    txt_z.OnChange = [this] { txt_z_Change(); };
}

std::vector<EnterStep> frmRigidConsolidation::ToSoil() {
    return {GoToIfUsable(txt_Es), GoToIfUsable(txt_Po), GoTo(txt_Cc)};
}

void frmRigidConsolidation::optSoilPeropertyType_Click() {
    const int soil = optSoilPeropertyType.Selected();
    SwitchLines(txt_Es, soil == 0);
    SwitchLines({txt_Cc, txt_eo, txt_Gamma}, soil == 1);
    txt_z_Change();
}

void frmRigidConsolidation::txt_z_Change() {
    bool buried = true;  // also while the box holds no number
    try {
        buried = NumberIn(txt_z) != 0;
    } catch (const Failure&) {
    }
    SwitchLines(txt_Po, buried && optSoilPeropertyType.Selected() == 1);
    txt_Po.Visible = txt_Po.Enabled;
}

void frmRigidConsolidation::ShowChoices() {
    RaftForm::ShowChoices();
    countedX_ = txt_Exz_x.Enabled;
    countedY_ = txt_Exz_y.Enabled;
}

// An eccentricity that the user's choice has switched off becomes 0. One that never counted stays as the file has it.
void frmRigidConsolidation::StoreChoices(SessionRecord& record) const {
    RaftForm::StoreChoices(record);
    if (GivenUp(txt_Exz_x, countedX_)) record.Exz_x = 0;
    if (GivenUp(txt_Exz_y, countedY_)) record.Exz_y = 0;
}

void frmRigidConsolidation::BeforeStore() {
    if (GivenUp(txt_Exz_x, countedX_)) txt_Exz_x.Text = FormatValue(0, Session.FmtLength);
    if (GivenUp(txt_Exz_y, countedY_)) txt_Exz_y.Text = FormatValue(0, Session.FmtLength);
}

}  // namespace lithmark
