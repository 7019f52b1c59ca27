#include "ui/frmstress.h"

#include "core/Problems.h"

namespace lithmark {

namespace {

using R = SessionRecord;

}  // namespace

frmstress::frmstress() : LoadForm("frmstress", {"StressStrain.bmp", "Stress Form", "stress"}) {
    SetFields({
        RowX({GoTo(txt_y)}),
        RowY({GoTo(txt_z)}),
        RowZ({GoToIfUsable(txt_Es), GoTo(txt_Nue)}),
        RowQ({GoTo(txt_x)}),
        RowP({GoTo(txt_A)}, 400170_text),
        RowA({GoToIfUsable(txt_B), GoTo(txt_x)}),
        RowB({GoTo(txt_x)}),
        FieldRow({lblPoissonRatio, 90004_text}, {Label60, "Nue_s"}, txt_Nue, {Label14, Unit::None},
                 {&R::Nue, &R::FmtRatio}, {0, 0.5}, {GoTo(cmdResult)}),
        // Always: the stress problem hides the box, and still wants a valid modulus in it, for its strains.
        FieldRow({lblE_Modulus, 90003_text}, {Label69, "Es"}, txt_Es, {lblknm1, Unit::Pressure},
                 {&R::Es, &R::FmtDialogModulus}, {0}, {GoTo(txt_Nue)}),
    });
    SetChoices({Loads({400186_text, 300002_text, 400127_text})});
    SetCaptionRows({{frmSelectOption, 300003_text, Styles::Heading},
                    {fraData, 140095_text, Styles::Heading},
                    {fraPointCoordinates, 400128_text, Styles::Heading},
                    {frmSoilProperties, 140162_text, Styles::Heading}});
}

void frmstress::ShowForProblem() {
    ShowLines(txt_Es, Session.ProblemType != Problem::SoilStress);
}

std::string frmstress::Help() const {
    const int problem = Session.ProblemType;
    TextId result = 137_text;
    if (problem == Problem::SoilStress) result = 90183_text;
    if (problem == Problem::SoilStrain) result = 90184_text;
    return Text(906000_text, {{"|1", Text(result)}});
}

}  // namespace lithmark
