// frmNumberFormats: how numbers are written, for the whole installation. Each format stands beside what it makes of a
// usual value; one that would print something else than the number is refused.
#pragma once

#include "ui/model/FieldForm.h"

namespace lithmark {

class frmNumberFormats : public FieldForm {
  public:
    // The formats that are in use; those that are read and not used keep what the file holds.
    static constexpr int kFormats = 13;

    frmNumberFormats();

    FrameBox fraFormats{*this, "fraFormats"};
    ControlArray<TextLabel, kFormats> lblFormat{*this, "lblFormat"};
    ControlArray<TextBox, kFormats> txtFormat{*this, "txtFormat"};
    // "5.00 m"
    ControlArray<TextLabel, kFormats> lblPreview{*this, "lblPreview"};
    // Why the first box at fault cannot be taken; a blank without one, so that its line keeps its place.
    TextLabel lblFault{*this, "lblFault"};
    Button cmdDefault{*this, "cmdDefault"};
    Button cmdSave{*this, "cmdSave"}, CmdCancel{*this, "CmdCancel"}, cmdHelp{*this, "cmdHelp"};

    void Load() override;
    std::string MarkOf(const Control& box) const override;

    // The formats that hold without a file; nothing is stored before the save.
    void cmdDefault_Click();
    // Writes "NOFORMAT" and puts the formats in force.
    void cmdSave_Click();
    void CmdCancel_Click() { Unload(); }
    void cmdHelp_Click();

  private:
    void ShowPreviews();
};

}  // namespace lithmark
