// frmProjectCheck: lists the data that the project still lacks and asks whether to go on. Session.DialogOk is the
// answer.
#pragma once

#include "ui/model/Controls.h"

namespace lithmark {

class frmProjectCheck : public Form {
  public:
    // The title, and the list with a line end behind each entry.
    frmProjectCheck(std::string title, std::string missing);

    FrameBox fraProjectCheck{*this, "fraProjectCheck"};
    TextLabel lblProjectCheck{*this, "lblProjectCheck"};
    TextArea txtProjectCheck{*this, "txtProjectCheck"};
    Button cmdok{*this, "cmdok"}, CmdCancel{*this, "CmdCancel"}, cmdHelp{*this, "cmdHelp"};

    void Load() override;
    void cmdok_Click();
    void CmdCancel_Click();
    void cmdHelp_Click();

  private:
    const std::string missing_;
};

}  // namespace lithmark
