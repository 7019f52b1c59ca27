#include "ui/model/PictureForm.h"

#include "services/SharedServices.h"

namespace lithmark {

namespace {

const std::string kStateKey = "More State";

}  // namespace

PictureForm::PictureForm(std::string name, std::string picture, std::string section, std::string okButton)
    : ProblemForm(std::move(name), std::move(okButton)), picture_(std::move(picture)), section_(std::move(section)) {
    CmdMoreLess.OnClick = [this] { CmdMoreLess_Click(); };
}

void PictureForm::Load() {
    ProblemForm::Load();
    ShowProgramPicture(PctInvertedT, picture_);
    more_ = SharedServices().GetSetting(kApplicationTitle, section_, kStateKey, true);
    ShowState();
}

void PictureForm::Unloading() {
    SharedServices().SaveSetting(kApplicationTitle, section_, kStateKey, more_);
}

void PictureForm::CmdMoreLess_Click() {
    more_ = !more_;
    ShowState();
}

// The window grows and shrinks with its picture; whoever shows the form sees to that.
void PictureForm::ShowState() {
    PctInvertedT.Visible = more_;
    CmdMoreLess.Caption = Text(more_ ? 904000_text : 904001_text);
}

}  // namespace lithmark
