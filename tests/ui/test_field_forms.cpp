// Field rows and ways of the Enter key beyond what the stress dialog uses: whole numbers, elements of arrays, limits
// that follow other boxes, fields checked while enabled, Enter that presses a button.
#include <string>

#include "FormTest.h"
#include "support/Matchers.h"
#include "ui/model/FieldForm.h"

namespace lithmark::tests {
namespace {

using R = SessionRecord;

class DemoForm : public FieldForm {
  public:
    DemoForm() : FieldForm("frmDemo") {
        SetFields({
            FieldRow({}, {}, txtTimePeriod, {}, {&R::TimePeriod, &R::FmtTime}, {0, 70},
                     {GoToIfUsable(txt_h), GoTo(txt_A)}, CheckedWhen::Always, 300071_text),
            FieldRow({}, {}, txt_h, Unit::Length, {&R::hLayer, 2, &R::FmtLength}, {0.25},
                     {GoToIf(txt_A, txt_Exz), GoTo(lblLength)}, CheckedWhen::Always, 40052_text),
            FieldRow({lblLength, "Length of the raft"}, {}, txt_A, Unit::Length, {&R::A, &R::FmtLength}, {0},
                     {Press(cmdSave)}, CheckedWhen::Enabled),
            FieldRow({}, {}, txt_Exz, Unit::Length, {&R::Exz_x, &R::FmtLength},
                     {0, Limit([this] { return NumberIn(txt_A) / 3; })}, {}, CheckedWhen::Always, Axis::Z),
        });
        cmdSave.OnClick = [this] {
            ++Pressed;
            if (const auto faults = Faults(); !faults.empty()) return Refuse(faults);
            StoreFields(Session);
            MarkStored();
        };
        ShowCaptions();
        ShowFields();
    }
    TextBox txtTimePeriod{*this, "txtTimePeriod"}, txt_h{*this, "txt_h"}, txt_A{*this, "txt_A"},
        txt_Exz{*this, "txt_Exz"};
    TextLabel lblLength{*this, "lblLength"};
    ComboBox cmb{*this, "cmb"};
    CheckBox chk{*this, "chk"};
    Button cmdSave{*this, "cmdSave"};
    int Pressed = 0;
};

class FieldForms : public FormTest {
  protected:
    FieldForms() {
        Session.TimePeriod = 18;
        Session.hLayer(2) = 4.5;
        Session.A = 6;
        Session.Exz_x = 1;
    }
};

TEST_F(FieldForms, ABoxIsMarkedUntilItIsRight) {
    DemoForm form;
    Type(form, "txtTimePeriod", "71");
    Type(form, "txt_A", "ab");
    EXPECT_THAT(form.MarkOf(form.txtTimePeriod), HasSubstr("70"));
    EXPECT_FALSE(form.Refused(form.txtTimePeriod));
    Click(form, "cmdSave");
    EXPECT_TRUE(form.Refused(form.txtTimePeriod));
    EXPECT_THAT(form.MarkOf(form.txtTimePeriod), HasSubstr("70"));
    EXPECT_THAT(form.MarkOf(form.txt_A), HasSubstr("ab"));
    EXPECT_EQ(form.MarkOf(form.txt_h), "");
    Type(form, "txtTimePeriod", "70");
    EXPECT_EQ(form.MarkOf(form.txtTimePeriod), "");
    Type(form, "txtTimePeriod", "700");
    EXPECT_THAT(form.MarkOf(form.txtTimePeriod), HasSubstr("70"));
    EXPECT_THAT(host.Messages, ::testing::SizeIs(1));
}

TEST_F(FieldForms, WholeNumbersAndElementsOfArraysAreFieldsToo) {
    DemoForm form;
    EXPECT_EQ(form.txtTimePeriod.Text, "18.00");
    EXPECT_EQ(form.txt_h.Text, "4.50");
    Type(form, "txtTimePeriod", "20.6");
    Type(form, "txt_h", "3");
    Click(form, "cmdSave");
    EXPECT_EQ(Session.TimePeriod, 21);
    EXPECT_EQ(Session.hLayer(2), 3);
    EXPECT_EQ(Session.hLayer(1), 0);
}

// 0.25 m = 250 mm.
TEST_F(FieldForms, LimitsAreInBaseUnitsAndShownInTheUnitOfTheBox) {
    Session.Len1Factor = 1000;
    DemoForm form;
    Type(form, "txt_h", "249");
    Click(form, "cmdSave");
    EXPECT_THAT(host.LastMessage().Text, HasSubstr("250"));
    EXPECT_EQ(form.Focus, &form.txt_h);
    Type(form, "txt_h", "250");
    Click(form, "cmdSave");
    EXPECT_EQ(Session.hLayer(2), 0.25);
}

TEST_F(FieldForms, ALimitMayFollowAnotherBox) {
    DemoForm form;
    Type(form, "txt_Exz", "2.01");
    Click(form, "cmdSave");
    EXPECT_THAT(host.LastMessage().Text, StartsWith("z-coordinate:"));
    EXPECT_EQ(Session.Exz_x, 1);
    Type(form, "txt_A", "9");
    Click(form, "cmdSave");
    EXPECT_EQ(Session.Exz_x, Single(2.01));
}

TEST_F(FieldForms, AFieldIsNamedByTheCaptionThatItsLabelHasAtTheTime) {
    DemoForm form;
    form.lblLength.Caption = "Radius of the raft";
    Type(form, "txt_A", "-1");
    Click(form, "cmdSave");
    EXPECT_THAT(host.LastMessage().Text, StartsWith("Radius of the raft:"));
}

// A disabled box is not checked; its field stays as it was, and a limit that depends on it is none.
TEST_F(FieldForms, AFieldOfADisabledBoxNeedsNoNumber) {
    DemoForm form;
    Type(form, "txt_A", "abc");
    form.txt_A.Enabled = false;
    Type(form, "txt_h", "3");
    Type(form, "txt_Exz", "70");
    Click(form, "cmdSave");
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_EQ(Session.hLayer(2), 3);
    EXPECT_EQ(Session.A, 6);
    EXPECT_EQ(Session.Exz_x, 70);
}

TEST_F(FieldForms, ABoxThatALimitDependsOnIsToldByItsOwnCheck) {
    DemoForm form;
    Type(form, "txt_A", "abc");
    Click(form, "cmdSave");
    EXPECT_EQ(form.Focus, &form.txt_A);
    EXPECT_EQ(host.Messages.size(), 1u);
}

TEST_F(FieldForms, EnterTakesTheFirstWayThatIsOpen) {
    DemoForm form;
    PressEnter(form, "txtTimePeriod");
    EXPECT_EQ(form.Focus, &form.txt_h);
    form.txt_h.Visible = false;
    PressEnter(form, "txtTimePeriod");
    EXPECT_EQ(form.Focus, &form.txt_A);
    form.txt_h.Visible = true;
    form.txt_h.Enabled = false;
    PressEnter(form, "txtTimePeriod");
    EXPECT_EQ(form.Focus, &form.txt_A);
    form.txt_h.Enabled = true;
    PressEnter(form, "txt_h");
    EXPECT_EQ(form.Focus, &form.txt_Exz);
    form.txt_A.Enabled = false;
    PressEnter(form, "txt_h");
    EXPECT_EQ(form.Focus, &form.lblLength);
}

TEST_F(FieldForms, EnterMayPressAButtonThatIsEnabled) {
    DemoForm form;
    PressEnter(form, "txt_A");
    EXPECT_EQ(form.Pressed, 1);
    form.cmdSave.Enabled = false;
    PressEnter(form, "txt_A");
    EXPECT_EQ(form.Pressed, 1);
}

TEST_F(FieldForms, InputsAreWhatTheUserCanChange) {
    DemoForm form;
    form.cmb.Items = {"weeks", "years"};
    const auto before = form.Inputs();
    Click(form, "chk");
    EXPECT_NE(form.Inputs(), before);
    Click(form, "chk");
    EXPECT_EQ(form.Inputs(), before);
    Select(form, "cmb", 1);
    EXPECT_NE(form.Inputs(), before);
    form.cmb.ListIndex = -1;
    form.cmb.Text = "";
    EXPECT_EQ(form.Inputs(), before);
    form.lblLength.Caption = "another";
    EXPECT_EQ(form.Inputs(), before);
}

}  // namespace
}  // namespace lithmark::tests
