// frmDataDir: the data directory and whether projects are packed, for the next start of the program.
#pragma once

#include "ui/model/KeptForm.h"

namespace lithmark {

class frmDataDir : public KeptForm {
  public:
    frmDataDir();

    FrameBox Frame3D1{*this, "Frame3D1"};
    TextBox txtDataDir{*this, "txtDataDir"};
    Button CmdBrowse{*this, "CmdBrowse"};
    FrameBox FraCompressFlag{*this, "FraCompressFlag"};
    ControlArray<CheckBox, 1> chkCompressFlag{*this, "chkCompressFlag"};
    Button cmdSave{*this, "cmdSave"}, CmdCancel{*this, "CmdCancel"}, cmdHelp{*this, "cmdHelp"};

    void Load() override;
    void CmdBrowse_Click();
    void cmdSave_Click();
    void CmdCancel_Click() { Unload(); }
    void cmdHelp_Click();

  private:
    void StoreDataDir();
};

}  // namespace lithmark
