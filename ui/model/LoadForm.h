// LoadForm: what the dialogs of a point below a load on the surface share: the choice of the load with its fields, and
// the coordinates of the point.
#pragma once

#include "ui/model/PictureForm.h"

namespace lithmark {

class LoadForm : public PictureForm {
  public:
    // The load.
    FrameBox frmSelectOption{*this, "frmSelectOption"};
    ControlArray<OptionButton, 3> optLoadType{*this, "optLoadType"};  // point, rectangular, circular
    TextLabel lplPointLoad{*this, "lplPointLoad"}, lblQp{*this, "lblQp"}, lblkn{*this, "lblkn"};
    TextLabel LblDistributedload{*this, "LblDistributedload"}, lblq{*this, "lblq"}, lblLoadUnit;
    TextLabel lblLength_Radius{*this, "lblLength_Radius"}, lbla{*this, "lbla"}, lblm4{*this, "lblm4"};
    TextLabel lblWidth{*this, "lblWidth"}, lblb{*this, "lblb"}, lblm5{*this, "lblm5"};
    TextBox txt_Q{*this, "txt_Q"}, txt_P{*this, "txt_P"}, txt_A{*this, "txt_A"}, txt_B{*this, "txt_B"};

    // The point.
    FrameBox fraPointCoordinates{*this, "fraPointCoordinates"};
    TextLabel lbl_x_Coord{*this, "lbl_x_Coord"}, lblm1{*this, "lblm1"};
    TextLabel lbl_y_Coord{*this, "lbl_y_Coord"}, lblm2{*this, "lblm2"};
    TextLabel lbl_z_Coord{*this, "lbl_z_Coord"}, lblm3{*this, "lblm3"};
    TextBox txt_x{*this, "txt_x"}, txt_y{*this, "txt_y"}, txt_z{*this, "txt_z"};

    // Shows the boxes of the chosen load.
    void optLoadType_Click();

  protected:
    // `loadUnit` is the name of the label beside the uniform load.
    LoadForm(std::string name, PictureOf picture, std::string loadUnit = "lblknm2");

    // The rows of the coordinates, z from 0 on, and of the load, whose boxes are checked while they are shown. They
    // differ from form to form in the way of the Enter key and in how messages name the uniform load.
    FieldRow RowX(std::vector<EnterStep> enter, CheckedWhen checked = CheckedWhen::Always);
    FieldRow RowY(std::vector<EnterStep> enter, CheckedWhen checked = CheckedWhen::Always);
    FieldRow RowZ(std::vector<EnterStep> enter);
    FieldRow RowQ(std::vector<EnterStep> enter);
    FieldRow RowP(std::vector<EnterStep> enter, Words name);
    FieldRow RowA(std::vector<EnterStep> enter);
    FieldRow RowB(std::vector<EnterStep> enter);
    // The choice of the load; `captions` of the point load, the rectangle and the circle.
    ChoiceRow Loads(std::vector<Words> captions);

    // Whether the load counts at all; its boxes stay away when it does not.
    virtual bool LoadCounts() const { return true; }
};

}  // namespace lithmark
