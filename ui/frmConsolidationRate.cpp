#include "ui/frmConsolidationRate.h"

#include "core/Problems.h"

namespace lithmark {

namespace {

using R = SessionRecord;

// "Layer thickness 2": a property of one of the layers.
std::function<std::string()> OfLayer(TextId property, int layer) {
    return [=] { return Text(property) + " " + std::to_string(layer); };
}

}  // namespace

frmConsolidationRate::frmConsolidationRate()
    : LoadForm("frmConsolidationRate", {"ConsolidationRate.bmp", "ConsolidationRate Form", "rate"}, "lblknm1") {
    const auto shown = CheckedWhen::Shown;
    SetFields({
        RowX({GoTo(txt_y)}, shown),
        RowY({GoTo(txt_z)}, shown),
        RowZ({GoTo(txt_h1)}),
        FieldRow({lblh1, OfLayer(40052_text, 1)}, {lbl_h1, "h1"}, txt_h1, {lblm6, Unit::Length},
                 {&R::hLayer, 1, &R::FmtLength}, {0.25},
                 {GoToIfUsable(txt_h2), GoToIfUsable(txt_P), GoToIfUsable(txt_Q), GoTo(txt_T)}, CheckedWhen::Always,
                 40052_text),
        FieldRow({lblh2, OfLayer(40052_text, 2)}, {lbl_h2, "h2"}, txt_h2, {lblm7, Unit::Length},
                 {&R::hLayer, 2, &R::FmtLength}, {0}, {GoToIfUsable(txt_P), GoToIfUsable(txt_Q), GoTo(txt_T)}, shown,
                 40052_text),
        RowQ({GoTo(txt_T)}),
        RowP({GoTo(txt_A)}, 300002_text),
        RowA({GoToIfUsable(txt_B), GoTo(txt_T)}),
        RowB({GoTo(txt_T)}),
        FieldRow({lblEPWP, 300008_text}, {lbluo, "uo"}, txt_U, {lblknm2, Unit::Pressure}, {&R::U, &R::FmtStress}, {0},
                 {GoToIf(txt_P, txt_x), GoTo(txt_z)}, shown),
        FieldRow({lblCv1, OfLayer(10243_text, 1)}, {lbl_Cv1, "Cv1"}, txt_Cv1, {lblm2s1, Unit::AreaPerTime},
                 {&R::CvLayer, 1, &R::FmtCv}, {0}, {GoTo(txt_K1)}, CheckedWhen::Always, 10243_text),
        FieldRow({lblCv2, OfLayer(10243_text, 2)}, {lbl_Cv2, "Cv2"}, txt_Cv2, {lblm2s2, Unit::AreaPerTime},
                 {&R::CvLayer, 2, &R::FmtCv}, {0}, {GoTo(txt_K2)}, shown, 10243_text),
        FieldRow({lblk1, OfLayer(10242_text, 1)}, {lbl_k1, "k1"}, txt_K1, {lblms1, Unit::LengthPerTime},
                 {&R::KLayer, 1, &R::FmtPermeability}, {0}, {GoToIfUsable(txt_Cv2), GoTo(cmdResult)},
                 CheckedWhen::Always, 10242_text),
        FieldRow({lblk2, OfLayer(10242_text, 2)}, {lbl_k2, "k2"}, txt_K2, {lblms2, Unit::LengthPerTime},
                 {&R::KLayer, 2, &R::FmtPermeability}, {0}, {GoTo(cmdResult)}, shown, 10242_text),
        FieldRow({lblTc, 300007_text}, {lbl_Tc, "Tc"}, txt_T, {lbl_Unit_Tc, [this] { return cmbTimeUnit.Text; }},
                 {&R::T, &R::FmtTime}, {0}, {GoTo(txt_Cv1)}),
        FieldRow({lblDrainageConditions, 300070_text}, {}, cmbDrainageConditions),
        FieldRow({lblTimeUnit, 300037_text}, {}, cmbTimeUnit),
    });
    SetChoices(
        {ChoiceRow(chkPressure, {300008_text}, {&R::Pressure, {0, 1}}, [this] { chkPressure_Click(); }),
         Loads({400171_text, 400174_text, 400177_text}),
         ChoiceRow(chkLayers, {906510_text}, {&R::NumLayers, {1, 2}}, [this] { chkLayers_Click(); }),
         ChoiceRow(cmbDrainageConditions, {300011_text, 300010_text},
                   {&R::DrainageCondition, {Drainage::BottomDrained, Drainage::BottomImpermeable}}),
         ChoiceRow(cmbTimeUnit, {10001_text, 10002_text, 10003_text, 10004_text},
                   {&R::TimeUnit, {10001_text, 10002_text, 10003_text, 10004_text}}, [this] { cmbTimeUnit_Click(); })});
    SetCaptionRows({{frmSelectOption, 300012_text, Styles::Heading},
                    {fraPointCoordinates, 300013_text, Styles::Heading},
                    {fraData, 140095_text, Styles::Heading},
                    {frmSoilProperties, 140162_text, Styles::Heading}});
}

void frmConsolidationRate::cmbTimeUnit_Click() {
    lbl_Unit_Tc.Caption = cmbTimeUnit.Text;
}

void frmConsolidationRate::chkLayers_Click() {
    ShowLines({txt_h2, txt_Cv2, txt_K2}, chkLayers.Value);
}

void frmConsolidationRate::chkPressure_Click() {
    const bool constant = chkPressure.Value;
    for (OptionButton& option : optLoadType) option.Visible = !constant;
    ShowLines({txt_x, txt_y}, !constant);
    ShowLines(txt_U, constant);
    fraData.Visible = !constant;
    optLoadType_Click();
}

}  // namespace lithmark
