// TimeSettlementForm: what the three dialogs of the time-settlement curve share: load and its history, final
// settlement, start, time unit, and the evaluation of a measured settlement.
#pragma once

#include "ui/model/PictureForm.h"

namespace lithmark {

class TimeSettlementForm : public PictureForm {
  public:
    FrameBox fraData{*this, "fraData"};
    TextLabel lblSc{*this, "lblSc"}, lbl_sc{*this, "lbl_sc"}, lblcm_1{*this, "lblcm_1"};
    TextLabel lblPt{*this, "lblPt"}, lbl_pt{*this, "lbl_pt"}, lblkn{*this, "lblkn"};
    TextLabel lblTimePeriod{*this, "lblTimePeriod"}, lblTimePeriodUnit{*this, "lblTimePeriodUnit"};
    TextLabel lblDate{*this, "lblDate"};
    TextBox txt_Sc{*this, "txt_Sc"}, txt_Pt{*this, "txt_Pt"}, txtTimePeriod{*this, "txtTimePeriod"},
        txt_Date{*this, "txt_Date"};
    DatePicker DTPicker1{*this, "DTPicker1"};
    Button cmdTimeLoad{*this, "cmdTimeLoad"};

    FrameBox frmSelectTimeUnit{*this, "frmSelectTimeUnit"};
    ControlArray<OptionButton, 4> optTimeUnit{*this, "optTimeUnit"};

    // The measurement.
    FrameBox frmEMS{*this, "frmEMS"};
    CheckBox chkMs{*this, "chkMs"};
    TextLabel lblMt{*this, "lblMt"}, lbl_sm{*this, "lbl_sm"}, lblcm_2{*this, "lblcm_2"};
    TextBox txt_Sm{*this, "txt_Sm"};
    TextLabel lblSm{*this, "lblSm"}, lblUnit{*this, "lblUnit"};
    ControlArray<ComboBox, 1> cmbDesignCode{*this, "cmbDesignCode"};  // the times at which it may have been measured

    // The tables count as well as the boxes.
    std::vector<std::string> Inputs() const override;

    void cmdTimeLoad_Click();
    void optTimeUnit_Click();
    void chkMs_Click();
    void DTPicker1_Change();

  protected:
    TimeSettlementForm(std::string name, PictureOf picture);

    // The rows that all three have; they are checked in another order in each.
    FieldRow RowSm();
    FieldRow RowSc();
    FieldRow RowPt();
    FieldRow RowTimePeriod();
    FieldRow RowDate();
    FieldRow RowTimeOfMeasurement();
    ChoiceRow TimeUnits();
    ChoiceRow Measured();
    // The captions that all three have, behind those of a dialog's own.
    std::vector<CaptionRow> WithSharedCaptions(std::vector<CaptionRow> own);

    void ShowChoices() override;
    void StoreChoices(SessionRecord& record) const override;
    // Deliberate: a file that was opened shows in the dialog's boxes only when the dialog opens again.
    void ShowOpened() override {}
    std::string Help() const override;

  private:
    void FillTimes();

    std::string shownDate_;
};

}  // namespace lithmark
