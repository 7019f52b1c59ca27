// frmRigidConsolidation: the dialog of problem 10, the consolidation settlement of a rigid raft on a clay layer.
#pragma once

#include "ui/model/RaftForm.h"

namespace lithmark {

class frmRigidConsolidation : public RaftForm {
  public:
    frmRigidConsolidation();

    TextLabel lbl_z_Coord{*this, "lbl_z_Coord"}, lbl_z{*this, "lbl_z"}, lblm3{*this, "lblm3"};
    TextBox txt_z{*this, "txt_z"};  // down to the layer

    ControlArray<OptionButton, 2> optSoilPeropertyType{*this, "optSoilPeropertyType"};  // by Es, by Cc
    TextLabel lblCc{*this, "lblCc"}, lbl_cc{*this, "lbl_cc"}, lblUnit1{*this, "lblUnit1"};
    TextLabel lbl_eo{*this, "lbl_eo"}, Lbl_s_eo{*this, "Lbl_s_eo"}, lblUnit2{*this, "lblUnit2"};
    TextLabel lblGamma_Na{*this, "lblGamma_Na"}, lblGamma_Sy{*this, "lblGamma_Sy"}, lblGammaUnit{*this, "lblGammaUnit"};
    TextLabel lblPo{*this, "lblPo"}, lbl_s_Po{*this, "lbl_s_Po"}, lblknm3{*this, "lblknm3"};
    TextBox txt_Cc{*this, "txt_Cc"}, txt_eo{*this, "txt_eo"}, txt_Gamma{*this, "txt_Gamma"}, txt_Po{*this, "txt_Po"};

    void optSoilPeropertyType_Click();
    // The overburden pressure is that of what lies on the layer: nothing when the layer begins at the surface.
    void txt_z_Change();

  protected:
    bool EccentricInX() const override { return !Rectangular() || !Analytical(); }
    bool EccentricInY() const override { return Rectangular() && !Analytical(); }
    ControlList LayerBoxes() override { return {txt_z, txt_h}; }
    std::vector<EnterStep> ToSoil() override;

    void ShowChoices() override;
    void StoreChoices(SessionRecord& record) const override;
    void BeforeStore() override;
    std::string Help() const override { return Text(906508_text); }

  private:
    bool GivenUp(const TextBox& eccentricity, bool counted) const { return counted && !eccentricity.Enabled; }

    bool countedX_ = false, countedY_ = false;  // as the data were shown
};

}  // namespace lithmark
