#include "ui/model/RaftForm.h"

#include <utility>

namespace lithmark {

namespace {

using R = SessionRecord;

}  // namespace

RaftForm::RaftForm(std::string name, PictureOf picture) : PictureForm(std::move(name), std::move(picture), "CmdOK") {}

FieldRow RaftForm::RowH() {
    return FieldRow({lbl_h, 40052_text}, {lbl_hs, "h"}, txt_h, {lblm6, Unit::Length}, {&R::h, &R::FmtLength}, {0.25},
                    {GoTo(txt_Q)});
}

FieldRow RaftForm::RowQ() {
    return FieldRow({lplPointLoad, 400186_text}, {lblQp, "Q"}, txt_Q, {lblkn, Unit::Force}, {&R::Q, &R::FmtForce}, {0},
                    {GoToIfUsable(txt_Exz_x), GoToIfUsable(txt_Exz_y), GoTo(txt_A)});
}

FieldRow RaftForm::RowA() {
    std::vector<EnterStep> enter = ToSoil();
    enter.insert(enter.begin(), GoToIfUsable(txt_B));
    return FieldRow({lblLength_Radius, [this] { return Text(Rectangular() ? 400001_text : 400120_text); }}, {lbla, "a"},
                    txt_A, {lblm4, Unit::Length}, {&R::A, &R::FmtLength}, {0}, std::move(enter));
}

FieldRow RaftForm::RowEx(CheckedWhen checked) {
    return FieldRow({LblEccentricity_x, 300076_text}, {lblex, "ex"}, txt_Exz_x, {lblm1, Unit::Length},
                    {&R::Exz_x, &R::FmtLength}, {0, Limit([this] { return NumberIn(txt_A) / 3; })},
                    {GoToIfUsable(txt_Exz_y), GoTo(txt_A)}, checked);
}

FieldRow RaftForm::RowEy(CheckedWhen checked) {
    return FieldRow({LblEccentricity_y, 300076_text}, {lbley, "ey"}, txt_Exz_y, {lblm2, Unit::Length},
                    {&R::Exz_y, &R::FmtLength}, {0, Limit([this] { return NumberIn(txt_B) / 3; })}, {GoTo(txt_A)},
                    checked);
}

FieldRow RaftForm::RowB(double least) {
    return FieldRow({lblWidth, 101_text}, {lblb, "b"}, txt_B, {lblm5, Unit::Length}, {&R::B, &R::FmtLength}, {least},
                    ToSoil(), CheckedWhen::Enabled);
}

FieldRow RaftForm::RowEs(Range limits, std::vector<EnterStep> enter, CheckedWhen checked) {
    return FieldRow({lblE_Modulus, 90029_text}, {lbl_Es, "Es"}, txt_Es, {lblknm1, Unit::Pressure},
                    {&R::Es, &R::FmtDialogModulus}, std::move(limits), std::move(enter), checked);
}

ChoiceRow RaftForm::Shapes() {
    return ChoiceRow(optLoadType, {300078_text, 400185_text}, {&R::LoadType, {LoadShape::Rectangle, LoadShape::Circle}},
                     [this] { optLoadType_Click(); });
}

ChoiceRow RaftForm::Analyses() {
    return ChoiceRow(optAnalysisType, {300082_text, 300083_text},
                     {&R::AnalysisType, {Analysis::Analytical, Analysis::Numerical}},
                     [this] { optAnalysisType_Click(); });
}

ChoiceRow RaftForm::SettlementPlaces() {
    return ChoiceRow(optSettlementAt, {300086_text, 300085_text},
                     {&R::SettlementAt, {SettlementPlace::CentreAndEdge, SettlementPlace::AllNodes}});
}

std::vector<CaptionRow> RaftForm::SharedCaptions() {
    return {{frmSelectOption, 300003_text, Styles::Heading},    {fraData, 140095_text, Styles::Heading},
            {fraAnalysisType, 300081_text, Styles::Heading},    {fraSettlementAt, 300084_text, Styles::Heading},
            {fraPointCoordinates, 90150_text, Styles::Heading}, {frmSoilProperties, 140162_text, Styles::Heading}};
}

void RaftForm::optLoadType_Click() {
    SwitchLines(txt_B, Rectangular());
    SwitchLines(txt_Exz_x, EccentricInX());
    SwitchLines(txt_Exz_y, EccentricInY());
    lblLength_Radius.Caption = RowOf(txt_A)->Label.Says.Text();
    PctInvertedT.Variant = Rectangular() ? "rectangle" : "circle";
}

void RaftForm::optAnalysisType_Click() {
    const bool analytical = Analytical();
    SwitchLines(LayerBoxes(), !analytical);
    fraPointCoordinates.Visible = !analytical;
    fraSettlementAt.Visible = analytical;
    for (OptionButton& option : optSettlementAt) option.Visible = analytical;
    // What counts of the eccentricities depends on the analysis too.
    optLoadType_Click();
}

}  // namespace lithmark
