// frmOptionDraw: asks which curve of the results is wanted and in which units. The answer lies in Session.CurveChoice,
// CurveLoadUnit and CurveSettlementUnit; Session.DialogOk tells that it was given.
#pragma once

#include "ui/model/Controls.h"

namespace lithmark {

class frmOptionDraw : public Form {
  public:
    frmOptionDraw();

    FrameBox fraSelectOption{*this, "fraSelectOption"};
    // "Tab1" to "Tab6" in this order; the last one belongs to a problem that has no curves and is never shown.
    ControlArray<OptionButton, 7> optDraw{*this, "optDraw"};
    FrameBox fraLoadUnit{*this, "fraLoadUnit"};
    ControlArray<OptionButton, 2> optLoadUnit{*this, "optLoadUnit"};  // per cent, force
    FrameBox fraSettlementUnit{*this, "fraSettlementUnit"};
    ControlArray<OptionButton, 2> optSettlementUnit{*this, "optSettlementUnit"};  // per cent, length
    Button cmdok{*this, "cmdok"}, CmdCancel{*this, "CmdCancel"}, cmdHelp{*this, "cmdHelp"};

    void Load() override;
    void cmdok_Click();
    void CmdCancel_Click() { Unload(); }
    void cmdHelp_Click();
};

}  // namespace lithmark
