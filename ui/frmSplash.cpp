#include "ui/frmSplash.h"

#include "services/SharedServices.h"
#include "services/host/Host.h"

namespace lithmark {

namespace {

constexpr long long kShownMilliseconds = 3000;

}  // namespace

frmSplash::frmSplash(std::function<long long()> milliseconds)
    : Form("frmSplash"), milliseconds_(std::move(milliseconds)) {
    for (Control* control : Controls()) control->OnClick = [this] { Dismiss(); };
}

void frmSplash::Load() {
    SharedServices().PrepareForm(*this);
    loadedAt_ = milliseconds_();
    SetCaptions({{lblPlatform, 140123_text}, {Label1, 160030_text}, {Label4, 904010_text}, {Label5, 904011_text}});
    Label3.Caption = Text(90_text) + LanguageTexts().AuthorsText();
    lblVersion.Caption = Text(91_text, {{"|1", LanguageTexts().VersionText()}});
    ShowProgramPicture(imgLogo, "Lithmark.bmp");
}

void frmSplash::Unloading() {
    if (Tag != kMayEnd) return;
    Tag.clear();
    dismissed_ = false;
    while (!dismissed_ && milliseconds_() - loadedAt_ <= kShownMilliseconds) CurrentHost().RunEvents();
}

void frmSplash::Dismiss() {
    dismissed_ = true;
    Unload();
}

}  // namespace lithmark
