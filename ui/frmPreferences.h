// frmPreferences: resolution and iteration of the numerical calculations, for the whole installation.
#pragma once

#include "ui/model/KeptForm.h"

namespace lithmark {

class frmPreferences : public KeptForm {
  public:
    frmPreferences();

    // Tab 0 holds fraGeometry, tab 1 fraIteration.
    TabStrip sstMainData{*this, "sstMainData"};
    FrameBox fraGeometry{*this, "fraGeometry"};
    TextLabel lblDx{*this, "lblDx"};
    TextBox txtDx{*this, "txtDx"};
    TextLabel lblUnitDx{*this, "lblUnitDx"};
    TextLabel lblDy{*this, "lblDy"};
    TextBox txtDy{*this, "txtDy"};
    TextLabel lblUnitDy{*this, "lblUnitDy"};
    TextLabel lblDz{*this, "lblDz"};
    TextBox txtDz{*this, "txtDz"};
    TextLabel lblUnitDz{*this, "lblUnitDz"};
    TextLabel lblND{*this, "lblND"};
    TextBox txtND{*this, "txtND"};
    TextLabel lblUnitNd{*this, "lblUnitNd"};
    FrameBox fraIteration{*this, "fraIteration"};
    TextLabel lblTol{*this, "lblTol"};
    TextBox txtTol{*this, "txtTol"};
    TextLabel lblImax{*this, "lblImax"};
    TextBox txtImax{*this, "txtImax"};
    Button cmdSave{*this, "cmdSave"}, CmdCancel{*this, "CmdCancel"}, cmdHelp{*this, "cmdHelp"};

    void Load() override;
    void cmdSave_Click();
    void CmdCancel_Click() { Unload(); }
    void cmdHelp_Click();

  private:
    void ShowPreferences();
    void StorePreferences();
};

}  // namespace lithmark
