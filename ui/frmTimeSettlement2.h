// frmTimeSettlement2: the dialog of problem 7: the curve comes from the readings of one oedometer load stage.
#pragma once

#include "ui/model/TimeSettlementForm.h"

namespace lithmark {

class frmTimeSettlement2 : public TimeSettlementForm {
  public:
    frmTimeSettlement2();

    TextLabel lblHo{*this, "lblHo"}, lbl_ho{*this, "lbl_ho"}, lblm1{*this, "lblm1"};
    TextLabel lblHm{*this, "lblHm"}, lbl_hm{*this, "lbl_hm"}, lblm2{*this, "lblm2"};
    TextBox txt_Hb{*this, "txt_Hb"}, txt_Hm{*this, "txt_Hm"};
    CheckBox chkDrainage{*this, "chkDrainage"};  // one-sided

    FrameBox frmOdomterUnit{*this, "frmOdomterUnit"};
    ControlArray<OptionButton, 2> optOdomterUnit{*this, "optOdomterUnit"};  // per cent, millimetres
    Button CmdOdomterSettlement{*this, "CmdOdomterSettlement"};

    void optOdomterUnit_Click();
    void CmdOdomterSettlement_Click();

  protected:
    void ShowChoices() override;
    void StoreChoices(SessionRecord& record) const override;
};

}  // namespace lithmark
