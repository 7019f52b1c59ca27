#include "ui/model/PictureForm.h"

#include "services/SharedServices.h"

namespace lithmark {

namespace {

const std::string kStateKey = "More State", kAnswerKey = "Answer State";

}  // namespace

PictureForm::PictureForm(std::string name, PictureOf picture, std::string okButton)
    : ProblemForm(std::move(name), std::move(okButton)), picture_(std::move(picture)) {
    PctInvertedT.Drawing = picture_.Drawing;
    PctInvertedT.Shows = &figure_;
    CmdMoreLess.OnClick = [this] { CmdMoreLess_Click(); };
}

void PictureForm::Load() {
    ProblemForm::Load();
    ShowProgramPicture(PctInvertedT, picture_.File);
    more_ = SharedServices().GetSetting(kApplicationTitle, picture_.Section, kStateKey, true);
    answer_ = SharedServices().GetSetting(kApplicationTitle, picture_.Section, kAnswerKey, true);
    ShowState();
}

void PictureForm::Unloading() {
    SharedServices().SaveSetting(kApplicationTitle, picture_.Section, kStateKey, more_);
    SharedServices().SaveSetting(kApplicationTitle, picture_.Section, kAnswerKey, answer_);
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
