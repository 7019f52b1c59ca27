// PictureForm: a problem's dialog with a picture of the problem beside its fields, shown and hidden by CmdMoreLess. The
// state is kept from one use to the next.
#pragma once

#include <string>

#include "ui/model/ProblemForm.h"

namespace lithmark {

class PictureForm : public ProblemForm {
  public:
    Button CmdMoreLess{*this, "CmdMoreLess"};
    PictureBox PctInvertedT{*this, "PctInvertedT"};

    void Load() override;
    void Unloading() override;

    void CmdMoreLess_Click();
    // The picture is shown.
    bool More() const noexcept { return more_; }

  protected:
    // `picture` is a file of the program's own; `section` names the form in the settings store.
    PictureForm(std::string name, std::string picture, std::string section, std::string okButton = "cmdok");

  private:
    void ShowState();

    const std::string picture_, section_;
    bool more_ = true;
};

}  // namespace lithmark
