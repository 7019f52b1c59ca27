#include "ui/frmConsolidation.h"

#include "core/Problems.h"

namespace lithmark {

namespace {

using R = SessionRecord;

}  // namespace

frmConsolidation::frmConsolidation()
    : LoadForm("frmConsolidation", {"Consolidation.bmp", "Consolidation Form", "consolidation"}) {
    const auto shown = CheckedWhen::Shown;
    SetFields({
        RowX({GoTo(txt_y)}),
        RowY({GoTo(txt_z)}),
        RowZ({GoTo(txt_h)}),
        FieldRow({lbl_h, 40052_text}, {lblh, "h"}, txt_h, {lblm6, Unit::Length}, {&R::h, &R::FmtLength}, {0.25},
                 {GoToIfUsable(txt_Es), GoTo(txt_Cc)}),
        RowQ({GoTo(cmdResult)}),
        RowP({GoTo(txt_A)}, 300002_text),
        RowA({GoToIfUsable(txt_B), GoTo(cmdResult)}),
        RowB({GoTo(cmdResult)}),
        FieldRow({lblE_Modulus, 90029_text}, {lbl_Es, "Es"}, txt_Es, {lblknm1, Unit::Pressure},
                 {&R::Es, &R::FmtDialogModulus}, {0}, {GoToIfUsable(txt_P), GoTo(txt_Q)}, shown),
        FieldRow({lblCc, 300004_text}, {lbl_cc, "Cc"}, txt_Cc, {lblUnit1, Unit::None}, {&R::Cc, &R::FmtRatio}, {0},
                 {GoTo(txt_eo)}, shown),
        FieldRow({lbl_eo, 10175_text}, {Lbl_s_eo, "eo"}, txt_eo, {lblUnit2, Unit::None}, {&R::eo, &R::FmtRatio}, {0},
                 {GoTo(txt_Po)}, shown),
        FieldRow({lblPo, 120001_text}, {lbl_s_Po, "po"}, txt_Po, {lblknm3, Unit::Pressure}, {&R::Po, &R::FmtStress},
                 {0.1}, {GoTo(txt_Gamma)}, shown),
        FieldRow({lblGamma_Na, 10244_text}, {lblGamma_Sy, "Gamma_c"}, txt_Gamma, {lblGammaUnit, Unit::UnitWeight},
                 {&R::Gamma, &R::FmtUnitWeight}, {0.0001}, {GoToIfUsable(txt_P), GoTo(txt_Q)}, shown),
    });
    SetChoices({Loads({400186_text, 300002_text, 400127_text}),
                ChoiceRow(optSoilPeropertyType, {30003_text, 30005_text},
                          {&R::SoilPropertyType, {SoilDefinition::ByModulus, SoilDefinition::ByCompressionIndex}},
                          [this] { optSoilPeropertyType_Click(); })});
    SetCaptionRows({{frmSelectOption, 300003_text, Styles::Heading},
                    {fraData, 140095_text, Styles::Heading},
                    {fraPointCoordinates, 400128_text, Styles::Heading},
                    {frmSoilProperties, 140162_text, Styles::Heading}});
}

void frmConsolidation::optSoilPeropertyType_Click() {
    const int soil = optSoilPeropertyType.Selected();
    ShowLines(txt_Es, soil == 0);
    ShowLines({txt_Cc, txt_eo, txt_Po, txt_Gamma}, soil == 1);
}

}  // namespace lithmark
