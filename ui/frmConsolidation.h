// frmConsolidation: the dialog of problem 4, the consolidation settlement of a clay layer under a point load, a
// rectangular or a circular load.
#pragma once

#include "ui/model/LoadForm.h"

namespace lithmark {

class frmConsolidation : public LoadForm {
  public:
    frmConsolidation();

    FrameBox fraData{*this, "fraData"};
    TextLabel lbl_h{*this, "lbl_h"}, lblh{*this, "lblh"}, lblm6{*this, "lblm6"};
    TextBox txt_h{*this, "txt_h"};

    // The soil.
    FrameBox frmSoilProperties{*this, "frmSoilProperties"};
    ControlArray<OptionButton, 2> optSoilPeropertyType{*this, "optSoilPeropertyType"};  // by Es, by Cc
    TextLabel lblE_Modulus{*this, "lblE_Modulus"}, lbl_Es{*this, "lbl_Es"}, lblknm1{*this, "lblknm1"};
    TextLabel lblCc{*this, "lblCc"}, lbl_cc{*this, "lbl_cc"}, lblUnit1{*this, "lblUnit1"};
    TextLabel lbl_eo{*this, "lbl_eo"}, Lbl_s_eo{*this, "Lbl_s_eo"}, lblUnit2{*this, "lblUnit2"};
    TextLabel lblPo{*this, "lblPo"}, lbl_s_Po{*this, "lbl_s_Po"}, lblknm3{*this, "lblknm3"};
    TextLabel lblGamma_Na{*this, "lblGamma_Na"}, lblGamma_Sy{*this, "lblGamma_Sy"}, lblGammaUnit{*this, "lblGammaUnit"};
    TextBox txt_Es{*this, "txt_Es"}, txt_Cc{*this, "txt_Cc"}, txt_eo{*this, "txt_eo"}, txt_Po{*this, "txt_Po"},
        txt_Gamma{*this, "txt_Gamma"};

    // Shows the boxes of the chosen definition of the soil.
    void optSoilPeropertyType_Click();

  protected:
    std::string Help() const override { return Text(906500_text); }
};

}  // namespace lithmark
