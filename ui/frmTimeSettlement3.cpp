#include "ui/frmTimeSettlement3.h"

namespace lithmark {

namespace {

using R = SessionRecord;

}  // namespace

frmTimeSettlement3::frmTimeSettlement3()
    : TimeSettlementForm("frmTimeSettlement3", {"TimeSettlement3.bmp", "TimeSettlement Form", "building"}) {
    const auto enabled = CheckedWhen::Enabled;
    SetFields({FieldRow({lblCv, 10243_text}, {lbl_cv, "Cv"}, txt_Cv, {lblm2s1, Unit::AreaPerTime},
                        {&R::CvTS, &R::FmtCv}, {0}, {GoTo(txt_Hb)}, enabled),
               FieldRow({lblKf, 10242_text}, {lbl_kf, "kf"}, txt_kf, {lblms1, Unit::LengthPerTime},
                        {&R::kf, &R::FmtPermeability}, {0}, {GoTo(txt_Es)}, enabled),
               FieldRow({lblEs, 90152_text}, {lbl_es, "Es"}, txt_Es, {lblknm1, Unit::Pressure},
                        {&R::EsTS, &R::FmtDialogModulus}, {0}, {GoTo(txt_Ws)}, enabled),
               FieldRow({lblWs, 90153_text}, {lbl_ws, "Ws"}, txt_Ws, {lblknm2, Unit::Pressure},
                        {&R::Ws, &R::FmtDialogModulus}, {0}, {GoTo(txt_qv)}, enabled),
               FieldRow({lblQv, 300023_text}, {lbl_qv, "qv"}, txt_qv, {lblknm3, Unit::Pressure},
                        {&R::qv, &R::FmtStress}, {0}, {GoTo(txt_qe)}, enabled),
               FieldRow({lblQe, 300024_text}, {lbl_qe, "qe"}, txt_qe, {lblknm4, Unit::Pressure},
                        {&R::qe, &R::FmtStress}, {0}, {GoTo(txt_Hb)}, enabled),
               RowSm(),
               FieldRow({lblHo, 300025_text}, {lbl_ho, "h"}, txt_Hb, {lblm1, Unit::Length}, {&R::h, &R::FmtLength}, {0},
                        {GoTo(txt_Sc)}),
               RowSc(), RowPt(), RowTimePeriod(), RowDate(), RowTimeOfMeasurement()});
    SetChoices({TimeUnits(), ChoiceRow(chkDrainage, {400184_text}, {&R::DrainageFaces, {Faces::Both, Faces::OneSided}}),
                ChoiceRow(chk_Cv, {300022_text}, {&R::CvChoice, {CvFrom::SoilData, CvFrom::Input}},
                          [this] { chk_Cv_Click(); }),
                Measured()});
    SetCaptionRows(WithSharedCaptions({{frmSoilProperties, 140162_text, Styles::Heading}}));
}

void frmTimeSettlement3::chk_Cv_Click() {
    SwitchLines(txt_Cv, chk_Cv.Value);
    SwitchLines({txt_kf, txt_Es, txt_Ws, txt_qv, txt_qe}, !chk_Cv.Value);
}

}  // namespace lithmark
