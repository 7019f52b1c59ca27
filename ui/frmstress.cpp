#include "ui/frmstress.h"

#include "core/Problems.h"

namespace lithmark {

namespace {

using R = SessionRecord;
constexpr Style kHeading{4};
// The drawing's forms, in the order of the options.
constexpr const char* kLoads[] = {"point", "rectangle", "circle"};

std::string LengthOrRadius() {
    return Text(400120_text) + "/ " + Text(400001_text);
}

}  // namespace

frmstress::frmstress() : PictureForm("frmstress", {"StressStrain.bmp", "Stress Form", "stress"}) {
    SetFields({
        FieldRow({lbl_x_Coord, Axis::X}, {}, txt_x, {lblm1, Unit::Length}, {&R::x, &R::FmtLength}, {}, {GoTo(txt_y)}),
        FieldRow({lbl_y_Coord, Axis::Y}, {}, txt_y, {lblm2, Unit::Length}, {&R::y, &R::FmtLength}, {}, {GoTo(txt_z)}),
        FieldRow({lbl_z_Coord, Axis::Z}, {}, txt_z, {lblm3, Unit::Length}, {&R::z, &R::FmtLength}, {0},
                 {GoToIfUsable(txt_Es), GoTo(txt_Nue)}),
        FieldRow({lplPointLoad, 400186_text}, {lblQp, "Q"}, txt_Q, {lblkn, Unit::Force}, {&R::Q, &R::FmtForce}, {0},
                 {GoTo(txt_x)}, CheckedWhen::Shown),
        FieldRow({LblDistributedload, 400170_text}, {lblq, "p"}, txt_P, {lblknm2, Unit::Pressure},
                 {&R::P, &R::FmtStress}, {0}, {GoTo(txt_A)}, CheckedWhen::Shown),
        FieldRow({lblLength_Radius, LengthOrRadius}, {lbla, "a"}, txt_A, {lblm4, Unit::Length}, {&R::A, &R::FmtLength},
                 {0}, {GoToIfUsable(txt_B), GoTo(txt_x)}, CheckedWhen::Shown),
        FieldRow({lblWidth, 101_text}, {lblb, "b"}, txt_B, {lblm5, Unit::Length}, {&R::B, &R::FmtLength}, {0},
                 {GoTo(txt_x)}, CheckedWhen::Shown),
        FieldRow({lblPoissonRatio, 90004_text}, {Label60, "Nue_s"}, txt_Nue, {Label14, Unit::None},
                 {&R::Nue, &R::FmtRatio}, {0, 0.5}, {GoTo(cmdResult)}),
        // Always: the stress problem hides the box, and still wants a valid modulus in it, for its strains.
        FieldRow({lblE_Modulus, 90003_text}, {Label69, "Es"}, txt_Es, {lblknm1, Unit::Pressure},
                 {&R::Es, &R::FmtDialogModulus}, {0}, {GoTo(txt_Nue)}),
    });
    SetChoices({ChoiceRow(optLoadType, {400186_text, 300002_text, 400127_text},
                          {&R::LoadType, {LoadShape::Point, LoadShape::Rectangle, LoadShape::Circle}},
                          [this] { optLoadType_Click(); })});
    SetCaptionRows({{frmSelectOption, 300003_text, kHeading},
                    {fraData, 140095_text, kHeading},
                    {fraPointCoordinates, 400128_text, kHeading},
                    {frmSoilProperties, 140162_text, kHeading}});
}

void frmstress::ShowForProblem() {
    ShowLines(txt_Es, Session.ProblemType != Problem::SoilStress);
}

void frmstress::optLoadType_Click() {
    const int load = optLoadType.Selected();
    ShowLines(txt_Q, load == 0);
    ShowLines({txt_P, txt_A}, load == 1 || load == 2);
    ShowLines(txt_B, load == 1);
    PctInvertedT.Variant = load < 0 ? "" : kLoads[load];
}

std::string frmstress::Help() const {
    return Text(906000_text, {{"|1", Text(Session.ProblemType == Problem::SoilStress   ? 90183_text
                                          : Session.ProblemType == Problem::SoilStrain ? 90184_text
                                                                                       : 137_text)}});
}

}  // namespace lithmark
