// frmResultTools: the result viewer. It shows the report of the last run and sends it on: to the printer, a word
// processor, the clipboard, a text viewer, as curves, and to the raft program.
#pragma once

#include "ui/model/Controls.h"

namespace lithmark {

class frmResultTools : public Form {
  public:
    frmResultTools();

    FrameBox fraResult{*this, "fraResult"};
    TextArea txtResult{*this, "txtResult"};
    Button cmdPrinter{*this, "cmdPrinter"}, CmdTextEditor{*this, "CmdTextEditor"}, CmdExcel{*this, "CmdExcel"},
        cmdWord{*this, "cmdWord"}, cmdClipboard{*this, "cmdClipboard"}, cmdVERDA{*this, "cmdVERDA"};
    Button cmdok{*this, "cmdok"}, cmdHelp{*this, "cmdHelp"};

    void Load() override;

    // All of these send the whole report. A failure is told and ends the step alone.
    void cmdPrinter_Click();
    void CmdTextEditor_Click();
    void CmdExcel_Click();
    void cmdWord_Click();
    void cmdClipboard_Click();
    void cmdVERDA_Click();
    // The result of the curves that were chosen last, over the raft.
    static void ShowContours();
    void cmdok_Click() { Unload(); }
    void cmdHelp_Click();
};

}  // namespace lithmark
