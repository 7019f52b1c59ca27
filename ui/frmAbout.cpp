#include "ui/frmAbout.h"

#include "services/SharedServices.h"

namespace lithmark {

frmAbout::frmAbout() : Form("frmAbout") {
    imgLogo.Drawing = "logo";
    cmdok.OnClick = [this] { cmdok_Click(); };
}

void frmAbout::Load() {
    SharedServices().PrepareForm(*this);
    Caption = Text(140119_text);
    SetCaptions({{lblTitle, 160030_text},
                 {lblDescription, 140123_text},
                 {lblDisclaimer, 904011_text},
                 {cmdok, 6_text, Styles::Button}});
    lblVersion.Caption = Text(91_text, {{"|1", LanguageTexts().VersionText()}});
    ShowProgramPicture(imgLogo, "Lithmark.bmp");
}

}  // namespace lithmark
