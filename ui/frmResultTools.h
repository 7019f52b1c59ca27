// frmResultTools: the result viewer. It shows the report of the last run and sends it on: to the printer, a word
// processor, the clipboard, a text viewer, as curves, and to the raft program.
//
// Under the report stand the notices of the run, each a way to its section of the manual; the window's title tells how
// many they are. The tables for a check by hand can be switched on behind the report.
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
    TextLabel lblNotices{*this, "lblNotices"};
    ListBox lstNotices{*this, "lstNotices"};
    CheckBox chkTables{*this, "chkTables"}, chkNotices{*this, "chkNotices"}, chkFigures{*this, "chkFigures"};

    void Load() override;

    // All of these send the whole report, with the tables behind it when they are shown. To the printer and the word
    // processor the notices go in a box behind the report, unless their box is unticked, and the results' figures when
    // theirs is ticked. A failure is told and ends the step alone.
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
    void chkTables_Click();
    void chkNotices_Click();
    void chkFigures_Click();
    // The boxes as the parts of documents are chosen; a preview changes them too.
    void ShowParts();
    // The manual's section of the notice that is selected.
    void lstNotices_Click();

  private:
    void ShowNotices();
};

// The viewer for SetResultViewer.
void ShowResultTools();

}  // namespace lithmark
