// RaftForm: what the dialogs of the rigid rafts share: shape, load and its eccentricity, analysis, layer.
#pragma once

#include "ui/model/PictureForm.h"

namespace lithmark {

class RaftForm : public PictureForm {
  public:
    FrameBox frmSelectOption{*this, "frmSelectOption"};
    ControlArray<OptionButton, 2, 1> optLoadType{*this, "optLoadType"};  // rectangular, circular

    FrameBox fraData{*this, "fraData"};
    TextLabel lplPointLoad{*this, "lplPointLoad"}, lblQp{*this, "lblQp"}, lblkn{*this, "lblkn"};
    TextLabel LblEccentricity_x{*this, "LblEccentricity_x"}, lblex{*this, "lblex"}, lblm1{*this, "lblm1"};
    TextLabel LblEccentricity_y{*this, "LblEccentricity_y"}, lbley{*this, "lbley"}, lblm2{*this, "lblm2"};
    TextLabel lblLength_Radius{*this, "lblLength_Radius"}, lbla{*this, "lbla"}, lblm4{*this, "lblm4"};
    TextLabel lblWidth{*this, "lblWidth"}, lblb{*this, "lblb"}, lblm5{*this, "lblm5"};
    TextBox txt_Q{*this, "txt_Q"}, txt_Exz_x{*this, "txt_Exz_x"}, txt_Exz_y{*this, "txt_Exz_y"}, txt_A{*this, "txt_A"},
        txt_B{*this, "txt_B"};

    FrameBox fraAnalysisType{*this, "fraAnalysisType"};
    ControlArray<OptionButton, 2> optAnalysisType{*this, "optAnalysisType"};  // analytical, numerical
    FrameBox fraSettlementAt{*this, "fraSettlementAt"};
    ControlArray<OptionButton, 2> optSettlementAt{*this, "optSettlementAt"};  // centre and edge, all nodes

    FrameBox fraPointCoordinates{*this, "fraPointCoordinates"};  // the layer
    TextLabel lbl_h{*this, "lbl_h"}, lbl_hs{*this, "lbl_hs"}, lblm6{*this, "lblm6"};
    TextBox txt_h{*this, "txt_h"};

    FrameBox frmSoilProperties{*this, "frmSoilProperties"};
    TextLabel lblE_Modulus{*this, "lblE_Modulus"}, lbl_Es{*this, "lbl_Es"}, lblknm1{*this, "lblknm1"};
    TextBox txt_Es{*this, "txt_Es"};

    // Width and eccentricities of the chosen shape.
    void optLoadType_Click();
    // The layer of a numerical analysis, or where an analytical one gives settlements.
    void optAnalysisType_Click();

  protected:
    RaftForm(std::string name, PictureOf picture);

    // The rows that both dialogs have, in the order in which they are checked; they differ in when the eccentricities
    // and the modulus are checked, and in the range of width and modulus.
    FieldRow RowH();
    FieldRow RowQ();
    FieldRow RowA();
    FieldRow RowEx(CheckedWhen checked);
    FieldRow RowEy(CheckedWhen checked);
    FieldRow RowB(double least);
    FieldRow RowEs(Range limits, std::vector<EnterStep> enter, CheckedWhen checked);
    ChoiceRow Shapes();
    ChoiceRow Analyses();
    ChoiceRow SettlementPlaces();
    std::vector<CaptionRow> SharedCaptions();

    bool Rectangular() const { return optLoadType.Selected() == 1; }
    bool Analytical() const { return optAnalysisType[0].Value; }

    // Whether the eccentricities of the load count; a box that does not count keeps in sight, disabled.
    virtual bool EccentricInX() const = 0;
    virtual bool EccentricInY() const = 0;
    // The boxes that ask for the layer.
    virtual ControlList LayerBoxes() { return txt_h; }
    // Where Enter leads behind the last box of the raft.
    virtual std::vector<EnterStep> ToSoil() = 0;
};

}  // namespace lithmark
