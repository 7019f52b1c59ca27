// frmstress: the dialog of the problems 1 (stresses), 2 (strains) and 3 (displacements) at a point of the soil under a
// point load, a rectangular or a circular load.
#pragma once

#include "ui/model/PictureForm.h"

namespace lithmark {

class frmstress : public PictureForm {
  public:
    frmstress();

    // The load.
    FrameBox frmSelectOption{*this, "frmSelectOption"}, fraData{*this, "fraData"};
    ControlArray<OptionButton, 3> optLoadType{*this, "optLoadType"};  // point, rectangular, circular
    TextLabel lplPointLoad{*this, "lplPointLoad"}, lblQp{*this, "lblQp"}, lblkn{*this, "lblkn"};
    TextLabel LblDistributedload{*this, "LblDistributedload"}, lblq{*this, "lblq"}, lblknm2{*this, "lblknm2"};
    TextLabel lblLength_Radius{*this, "lblLength_Radius"}, lbla{*this, "lbla"}, lblm4{*this, "lblm4"};
    TextLabel lblWidth{*this, "lblWidth"}, lblb{*this, "lblb"}, lblm5{*this, "lblm5"};
    TextBox txt_Q{*this, "txt_Q"}, txt_P{*this, "txt_P"}, txt_A{*this, "txt_A"}, txt_B{*this, "txt_B"};

    // The point.
    FrameBox fraPointCoordinates{*this, "fraPointCoordinates"};
    TextLabel lbl_x_Coord{*this, "lbl_x_Coord"}, lblm1{*this, "lblm1"};
    TextLabel lbl_y_Coord{*this, "lbl_y_Coord"}, lblm2{*this, "lblm2"};
    TextLabel lbl_z_Coord{*this, "lbl_z_Coord"}, lblm3{*this, "lblm3"};
    TextBox txt_x{*this, "txt_x"}, txt_y{*this, "txt_y"}, txt_z{*this, "txt_z"};

    // The soil.
    FrameBox frmSoilProperties{*this, "frmSoilProperties"};
    TextLabel lblE_Modulus{*this, "lblE_Modulus"}, Label69{*this, "Label69"}, lblknm1{*this, "lblknm1"};
    TextLabel lblPoissonRatio{*this, "lblPoissonRatio"}, Label60{*this, "Label60"}, Label14{*this, "Label14"};
    TextBox txt_Es{*this, "txt_Es"}, txt_Nue{*this, "txt_Nue"};

    // Shows the boxes of the chosen load.
    void optLoadType_Click();

  protected:
    void ShowForProblem() override;
    std::string Help() const override;
};

}  // namespace lithmark
