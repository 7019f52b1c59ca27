#include "ui/frmstress.h"

#include "core/Session.h"
#include "kernels/stress/BasSoilStress.h"

namespace lithmark {

namespace {

constexpr int kStress = 1, kStrain = 2;
constexpr Style kHeading{4};

}  // namespace

frmstress::frmstress() : PictureForm("frmstress", "StressStrain.bmp", "Stress Form") {
    SetFields({
        {txt_x, Session.x, Unit::Length, Session.FmtLength, -kNoLimit, kNoLimit, Axis::X},
        {txt_y, Session.y, Unit::Length, Session.FmtLength, -kNoLimit, kNoLimit, Axis::Y},
        {txt_z, Session.z, Unit::Length, Session.FmtLength, 0, kNoLimit, Axis::Z},
        {txt_Q, Session.Q, Unit::Force, Session.FmtForce, 0, kNoLimit, 400186_text, CheckedWhen::Shown},
        {txt_P, Session.P, Unit::Pressure, Session.FmtStress, 0, kNoLimit, 400170_text, CheckedWhen::Shown},
        {txt_A, Session.A, Unit::Length, Session.FmtLength, 0, kNoLimit, lblLength_Radius, CheckedWhen::Shown},
        {txt_B, Session.B, Unit::Length, Session.FmtLength, 0, kNoLimit, 101_text, CheckedWhen::Shown},
        {txt_Nue, Session.Nue, Unit::None, Session.FmtRatio, 0, 0.5, 90004_text},
        // Always: the stress problem hides the box, and still wants a valid modulus in it, for its strains.
        {txt_Es, Session.Es, Unit::Pressure, Session.FmtDialogModulus, 0, kNoLimit, 90003_text},
    });
    SetEnterRows({
        {&txt_P, {GoTo(txt_A)}},
        {&txt_A, {GoToIfUsable(txt_B), GoTo(txt_x)}},
        {&txt_B, {GoTo(txt_x)}},
        {&txt_Q, {GoTo(txt_x)}},
        {&txt_x, {GoTo(txt_y)}},
        {&txt_y, {GoTo(txt_z)}},
        {&txt_z, {GoToIfUsable(txt_Es), GoTo(txt_Nue)}},
        {&txt_Es, {GoTo(txt_Nue)}},
        {&txt_Nue, {GoTo(cmdResult)}},
    });
    for (int index = 0; index <= optLoadType.kLast; ++index)
        optLoadType[index].OnClick = [this, index] { optLoadType_Click(index); };
}

void frmstress::ShowCaptions() {
    Caption = Text(Session.ProblemType == kStress   ? 140185_text
                   : Session.ProblemType == kStrain ? 300100_text
                                                    : 300001_text);
    SetCaptions({{frmSelectOption, 300003_text, kHeading},
                 {optLoadType[0], 400186_text},
                 {optLoadType[1], 300002_text},
                 {optLoadType[2], 400127_text},
                 {fraData, 140095_text, kHeading},
                 {lplPointLoad, 400186_text},
                 {LblDistributedload, 400170_text},
                 {lblWidth, 101_text},
                 {fraPointCoordinates, 400128_text, kHeading},
                 {frmSoilProperties, 140162_text, kHeading},
                 {lblE_Modulus, 90003_text},
                 {lblPoissonRatio, 90004_text}});
    SetCaptions({{lblLength_Radius, Text(400120_text) + "/ " + Text(400001_text)},
                 {lbl_x_Coord, CoordinateName(Axis::X)},
                 {lbl_y_Coord, CoordinateName(Axis::Y)},
                 {lbl_z_Coord, CoordinateName(Axis::Z)},
                 {lblQp, "Q"},
                 {lblq, "p"},
                 {lbla, "a"},
                 {lblb, "b"},
                 {Label69, "Es"},
                 {Label60, "Nue_s"},
                 {lblkn, LabelOf(Unit::Force)},
                 {lblknm1, LabelOf(Unit::Pressure)},
                 {lblknm2, LabelOf(Unit::Pressure)},
                 {lblm1, LabelOf(Unit::Length)},
                 {lblm2, LabelOf(Unit::Length)},
                 {lblm3, LabelOf(Unit::Length)},
                 {lblm4, LabelOf(Unit::Length)},
                 {lblm5, LabelOf(Unit::Length)},
                 {Label14, LabelOf(Unit::None)}});
}

void frmstress::ShowChoices() {
    const int index = Session.LoadType - 1;
    for (OptionButton& option : optLoadType) option.Value = false;
    if (index >= 0 && index <= optLoadType.kLast) optLoadType[index].Value = true;
    optLoadType_Click(index);
}

void frmstress::StoreChoices() {
    // No option is set when the data file held a load type that does not exist; it stays then.
    if (const int index = optLoadType.Selected(); index >= 0) Session.LoadType = index + 1;
}

void frmstress::ShowForProblem() {
    Show({&txt_Es, &lblE_Modulus, &Label69, &lblknm1}, Session.ProblemType != kStress);
}

void frmstress::optLoadType_Click(int index) {
    Show({&txt_Q, &lplPointLoad, &lblQp, &lblkn}, index == 0);
    Show({&txt_P, &LblDistributedload, &lblq, &lblknm2, &txt_A, &lblLength_Radius, &lbla, &lblm4},
         index == 1 || index == 2);
    Show({&txt_B, &lblWidth, &lblb, &lblm5}, index == 1);
}

void frmstress::Compute() {
    ComputeSoilStress(Session.x, Session.y, Session.z, Session.Q, Session.P, Session.A, Session.B, Session.Nue,
                      Session.Es, Session.LoadType);
}

HelpLines frmstress::Help() const {
    const std::string word = Text(Session.ProblemType == kStress   ? 90183_text
                                  : Session.ProblemType == kStrain ? 90184_text
                                                                   : 137_text);
    return {{"Das Menü dient zur Berechnung der " + word + " in einem beliebigen Punkt (x, y, z)",
             "im Baugrund infolge Einzellast, Rechteckflächenlast oder", "Kreisflächenlast auf der Oberfläche."},
            {"The menu is used for determining the " + word + " in an arbitrary point (x, y, z)",
             "in soil due to point load, rectangular uniform load or circular", "uniform load on the surface."},
            {"هذه القائمة تستخدم لتحديد ال" + word, "في أي نقطة اعتباطية (x, y, z) في التربة نتيجة حمل مركز،",
             "حمل مستطيل موزع أو حمل دائري موزع عند السطح."}};
}

}  // namespace lithmark
