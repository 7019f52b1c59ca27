// frmMethodtype: the choice of the method of the time-settlement curve, and thereby of problem 6, 7 or 8.
#pragma once

#include "ui/model/Controls.h"

namespace lithmark {

class frmMethodtype : public Form {
  public:
    frmMethodtype();

    FrameBox fraModelType{*this, "fraModelType"};
    ControlArray<OptionButton, 3> OptMethodType{*this, "OptMethodType"};
    Button cmdok{*this, "cmdok"}, CmdCancel{*this, "CmdCancel"}, cmdHelp{*this, "cmdHelp"};

    void Load() override;

    // Takes the method, and tells by Session.DialogOk that one was taken.
    void cmdok_Click();
    void CmdCancel_Click() { Unload(); }
    void cmdHelp_Click();
};

}  // namespace lithmark
