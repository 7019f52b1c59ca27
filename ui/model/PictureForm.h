// PictureForm: a problem's dialog with a picture of the problem beside its fields, shown and hidden by CmdMoreLess, and
// the answer. What is shown of them is kept from one use to the next.
#pragma once

#include <string>

#include "ui/model/Figure.h"

namespace lithmark {

// What a form's picture is.
struct PictureOf {
    std::string File;     // of the program's own, looked for in the program directory
    std::string Section;  // of the settings store, where its state is kept
    std::string Drawing;  // what the windows draw in its place
};

class PictureForm : public ProblemForm {
  public:
    Button CmdMoreLess{*this, "CmdMoreLess"};
    PictureBox PctInvertedT{*this, "PctInvertedT"};

    void Load() override;
    void Unloading() override;

    void CmdMoreLess_Click();
    // The picture is shown.
    bool More() const noexcept { return more_; }
    // The answer is shown beside it.
    bool AnswerShown() const noexcept { return answer_; }
    void ShowAnswer(bool shown) noexcept { answer_ = shown; }

  protected:
    PictureForm(std::string name, PictureOf picture, std::string okButton = "cmdok");

  private:
    void ShowState();

    const PictureOf picture_;
    const Figure figure_{*this};
    bool more_ = true, answer_ = true;
};

}  // namespace lithmark
