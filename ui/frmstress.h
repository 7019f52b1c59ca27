// frmstress: the dialog of the problems 1 (stresses), 2 (strains) and 3 (displacements) at a point of the soil under a
// point load, a rectangular or a circular load.
#pragma once

#include "ui/model/PictureForm.h"

namespace lithmark {

class frmstress : public PictureForm {
  public:
    frmstress();

    // The load.
    FrameBox frmSelectOption{*this, "frmSelectOption"};
    ControlArray<OptionButton, 3> optLoadType{*this, "optLoadType"};  // point, rectangular, circular
    FrameBox fraData{*this, "fraData"};
    TextLabel lplPointLoad{*this, "lplPointLoad"}, lblQp{*this, "lblQp"};
    TextBox txt_Q{*this, "txt_Q"};
    TextLabel lblkn{*this, "lblkn"};
    TextLabel LblDistributedload{*this, "LblDistributedload"}, lblq{*this, "lblq"};
    TextBox txt_P{*this, "txt_P"};
    TextLabel lblknm2{*this, "lblknm2"};
    TextLabel lblLength_Radius{*this, "lblLength_Radius"}, lbla{*this, "lbla"};
    TextBox txt_A{*this, "txt_A"};
    TextLabel lblm4{*this, "lblm4"};
    TextLabel lblWidth{*this, "lblWidth"}, lblb{*this, "lblb"};
    TextBox txt_B{*this, "txt_B"};
    TextLabel lblm5{*this, "lblm5"};

    // The point.
    FrameBox fraPointCoordinates{*this, "fraPointCoordinates"};
    TextLabel lbl_x_Coord{*this, "lbl_x_Coord"};
    TextBox txt_x{*this, "txt_x"};
    TextLabel lblm1{*this, "lblm1"};
    TextLabel lbl_y_Coord{*this, "lbl_y_Coord"};
    TextBox txt_y{*this, "txt_y"};
    TextLabel lblm2{*this, "lblm2"};
    TextLabel lbl_z_Coord{*this, "lbl_z_Coord"};
    TextBox txt_z{*this, "txt_z"};
    TextLabel lblm3{*this, "lblm3"};

    // The soil.
    FrameBox frmSoilProperties{*this, "frmSoilProperties"};
    TextLabel lblE_Modulus{*this, "lblE_Modulus"}, Label69{*this, "Label69"};  // name and symbol of Es
    TextBox txt_Es{*this, "txt_Es"};
    TextLabel lblknm1{*this, "lblknm1"};
    TextLabel lblPoissonRatio{*this, "lblPoissonRatio"}, Label60{*this, "Label60"};  // name and symbol of Nue
    TextBox txt_Nue{*this, "txt_Nue"};
    TextLabel Label14{*this, "Label14"};  // unit of Nue

    // Shows the boxes of the chosen load.
    void optLoadType_Click(int index);

  protected:
    void ShowCaptions() override;
    void ShowChoices() override;
    void StoreChoices() override;
    void ShowForProblem() override;
    void Compute() override;
    HelpLines Help() const override;
};

}  // namespace lithmark
