// frmConsolidationRate: the dialog of problem 5, the degree of consolidation of one or two clay layers under a constant
// initial pore water pressure or that of a load on the surface.
#pragma once

#include "ui/model/LoadForm.h"

namespace lithmark {

class frmConsolidationRate : public LoadForm {
  public:
    frmConsolidationRate();

    FrameBox fraData{*this, "fraData"};

    // The initial pressure.
    CheckBox chkPressure{*this, "chkPressure"};  // constant, not from a load
    TextLabel lblEPWP{*this, "lblEPWP"}, lbluo{*this, "lbluo"}, lblknm2{*this, "lblknm2"};
    TextBox txt_U{*this, "txt_U"};

    // The layers.
    CheckBox chkLayers{*this, "chkLayers"};  // two of them
    TextLabel lblh1{*this, "lblh1"}, lbl_h1{*this, "lbl_h1"}, lblm6{*this, "lblm6"};
    TextLabel lblh2{*this, "lblh2"}, lbl_h2{*this, "lbl_h2"}, lblm7{*this, "lblm7"};
    TextBox txt_h1{*this, "txt_h1"}, txt_h2{*this, "txt_h2"};

    // Time, drainage and soil.
    FrameBox frmSoilProperties{*this, "frmSoilProperties"};
    TextLabel lblDrainageConditions{*this, "lblDrainageConditions"};
    ComboBox cmbDrainageConditions{*this, "cmbDrainageConditions"};
    TextLabel lblTimeUnit{*this, "lblTimeUnit"};
    ComboBox cmbTimeUnit{*this, "cmbTimeUnit"};
    TextLabel lblTc{*this, "lblTc"}, lbl_Tc{*this, "lbl_Tc"}, lbl_Unit_Tc{*this, "lbl_Unit_Tc"};
    TextLabel lblCv1{*this, "lblCv1"}, lbl_Cv1{*this, "lbl_Cv1"}, lblm2s1{*this, "lblm2s1"};
    TextLabel lblk1{*this, "lblk1"}, lbl_k1{*this, "lbl_k1"}, lblms1{*this, "lblms1"};
    TextLabel lblCv2{*this, "lblCv2"}, lbl_Cv2{*this, "lbl_Cv2"}, lblm2s2{*this, "lblm2s2"};
    TextLabel lblk2{*this, "lblk2"}, lbl_k2{*this, "lbl_k2"}, lblms2{*this, "lblms2"};
    TextBox txt_T{*this, "txt_T"}, txt_Cv1{*this, "txt_Cv1"}, txt_K1{*this, "txt_K1"}, txt_Cv2{*this, "txt_Cv2"},
        txt_K2{*this, "txt_K2"};

    // The unit beside the time.
    void cmbTimeUnit_Click();
    // Shows the boxes of the second layer while there is one.
    void chkLayers_Click();
    // Shows the constant pressure or the load with its point.
    void chkPressure_Click();

  protected:
    bool LoadCounts() const override { return !chkPressure.Value; }
    std::string Help() const override { return Text(906501_text); }
};

}  // namespace lithmark
