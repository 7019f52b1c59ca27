// Choices told as rows: options, check boxes and lists; numbers, flags and words; and lines that are shown, hidden and
// switched as a whole.
#include <map>
#include <string>

#include "FormTest.h"
#include "support/Matchers.h"
#include "ui/frmstress.h"

namespace lithmark::tests {
namespace {

using R = SessionRecord;

class ChoiceForm : public FieldForm {
  public:
    ChoiceForm() : FieldForm("frmChoice") {
        SetFields({
            FieldRow({lblT, 300007_text}, {lbl_T, "T"}, txt_T, {lbl_Unit_T, [this] { return cmbTimeUnit.Text; }},
                     {&R::T, &R::FmtTime}, {0}, {GoTo(txt_h)}, CheckedWhen::Enabled),
            FieldRow({lblh, 40052_text}, {}, txt_h, {lblm, Unit::Length}, {&R::h, &R::FmtLength}, {0.25},
                     {GoToIfUsable(txt_T), GoTo(txt_h)}, CheckedWhen::Shown, 140096_text, &cmd),
        });
        SetChoices({
            ChoiceRow(optRaft, {300078_text, 400185_text}, {&R::LoadType, {2, 3}}, [this] { Clicks += "raft "; }),
            ChoiceRow(optAnalysis, {300082_text, 300083_text}, {&R::AnalysisType, {1, 0}}),
            ChoiceRow(chkLayers, {"Two layers"}, {&R::NumLayers, {1, 2}}, [this] { Clicks += "layers "; }),
            ChoiceRow(chkPressure, {300012_text}, {&R::Pressure, {0, 1}}),
            ChoiceRow(cmbDrainage, {300011_text, 300010_text}, {&R::DrainageCondition, {1, 2}}),
            ChoiceRow(cmbTimeUnit, {10001_text, 10002_text}, {&R::TimeUnit, {10001_text, 10002_text}},
                      [this] { ShowCaptions(); }),
        });
    }
    void Open() {
        ShowFields();
        ShowChoiceRows();
        ShowCaptions();
        Clicks.clear();
    }
    using FieldForm::Faults, FieldForm::ShowChoiceRows, FieldForm::ShowLines, FieldForm::StoreChoiceRows,
        FieldForm::SwitchLines;

    ControlArray<OptionButton, 2, 1> optRaft{*this, "optRaft"};
    ControlArray<OptionButton, 2> optAnalysis{*this, "optAnalysis"};
    CheckBox chkLayers{*this, "chkLayers"}, chkPressure{*this, "chkPressure"};
    ComboBox cmbDrainage{*this, "cmbDrainage"}, cmbTimeUnit{*this, "cmbTimeUnit"};
    TextLabel lblT{*this, "lblT"}, lbl_T{*this, "lbl_T"}, lbl_Unit_T{*this, "lbl_Unit_T"};
    TextLabel lblh{*this, "lblh"}, lblm{*this, "lblm"};
    TextBox txt_T{*this, "txt_T"}, txt_h{*this, "txt_h"};
    Button cmd{*this, "cmd"};
    std::string Clicks;
};

class ChoiceRows : public FormTest {
  protected:
    ChoiceRows() {
        Session.LoadType = 3;
        Session.AnalysisType = true;
        Session.NumLayers = 2;
        Session.Pressure = false;
        Session.DrainageCondition = 2;
        Session.TimeUnit = Text(10002_text);
        Session.T = 4;
        Session.h = 5;
    }
};

TEST_F(ChoiceRows, ShowWhatIsStored) {
    ChoiceForm form;
    form.ShowChoiceRows();
    EXPECT_EQ(form.Clicks, "raft layers ");  // what follows from a choice is right from the start
    EXPECT_EQ(form.optRaft.Selected(), 2);
    EXPECT_EQ(form.optAnalysis.Selected(), 0);
    EXPECT_TRUE(form.chkLayers.Value);
    EXPECT_FALSE(form.chkPressure.Value);
    EXPECT_EQ(form.cmbDrainage.ListIndex, 1);
    EXPECT_THAT(form.cmbDrainage.Items, ElementsAre(Text(300011_text), Text(300010_text)));
    EXPECT_EQ(form.cmbTimeUnit.Text, Text(10002_text));
    EXPECT_EQ(form.optRaft[1].Caption, Text(300078_text));
    EXPECT_EQ(form.chkLayers.Caption, "Two layers");
}

TEST_F(ChoiceRows, StoreWhatIsChosen) {
    ChoiceForm form;
    form.Open();
    Click(form, "optRaft(1)");
    Click(form, "optAnalysis(1)");
    Click(form, "chkLayers");
    Click(form, "chkPressure");
    Select(form, "cmbDrainage", 0);
    Select(form, "cmbTimeUnit", 0);
    EXPECT_EQ(form.Clicks, "raft layers ");
    EXPECT_EQ(Session.LoadType, 3);  // not before they are stored
    form.StoreChoiceRows(Session);
    EXPECT_EQ(Session.LoadType, 2);
    EXPECT_FALSE(Session.AnalysisType);
    EXPECT_EQ(Session.NumLayers, 1);
    EXPECT_TRUE(Session.Pressure);
    EXPECT_EQ(Session.DrainageCondition, 1);
    EXPECT_EQ(Session.TimeUnit, Text(10001_text));
}

TEST_F(ChoiceRows, AValueThatIsNoChoiceSelectsNothingAndStays) {
    Session.LoadType = 1;
    Session.DrainageCondition = 9;
    Session.TimeUnit = "fortnights";
    ChoiceForm form;
    form.Open();
    EXPECT_EQ(form.optRaft.Selected(), 0);
    EXPECT_EQ(form.cmbDrainage.ListIndex, -1);
    EXPECT_EQ(form.cmbTimeUnit.ListIndex, -1);
    form.StoreChoiceRows(Session);
    EXPECT_EQ(Session.LoadType, 1);
    EXPECT_EQ(Session.DrainageCondition, 9);
    EXPECT_EQ(Session.TimeUnit, "fortnights");
}

TEST_F(ChoiceRows, ACaptionMayFollowAChoice) {
    ChoiceForm form;
    form.Open();
    EXPECT_EQ(form.lbl_Unit_T.Caption, Text(10002_text));
    Select(form, "cmbTimeUnit", 0);
    EXPECT_EQ(form.lbl_Unit_T.Caption, Text(10001_text));
}

TEST_F(ChoiceRows, ALineIsShownAndHiddenAsAWhole) {
    ChoiceForm form;
    form.Open();
    form.ShowLines(form.txt_h, false);
    for (const char* name : {"lblh", "txt_h", "lblm", "cmd"}) EXPECT_FALSE(form.Find(name)->Visible) << name;
    EXPECT_TRUE(form.txt_T.Visible);
    form.ShowLines({form.txt_h, form.txt_T});
    for (const char* name : {"lblh", "txt_h", "lblm", "cmd"}) EXPECT_TRUE(form.Find(name)->Visible) << name;
}

TEST_F(ChoiceRows, ALineThatIsSwitchedOffKeepsItsBoxInSightDisabledAndUnchecked) {
    ChoiceForm form;
    form.Open();
    Type(form, "txt_T", "-1");
    EXPECT_EQ(form.Faults().size(), 1u);
    form.SwitchLines(form.txt_T, false);
    EXPECT_FALSE(form.lblT.Visible || form.lbl_T.Visible || form.lbl_Unit_T.Visible);
    EXPECT_TRUE(form.txt_T.Visible);
    EXPECT_FALSE(form.txt_T.Enabled);
    EXPECT_THAT(form.Faults(), IsEmpty());
    form.SwitchLines(form.txt_T, true);
    EXPECT_TRUE(form.lblT.Visible && form.txt_T.Enabled);
}

TEST_F(ChoiceRows, AFieldMayHaveANameOfItsOwnInMessages) {
    ChoiceForm form;
    form.Open();
    Type(form, "txt_h", "0.1");
    ASSERT_EQ(form.Faults().size(), 1u);
    EXPECT_THAT(form.Faults()[0].Reason, ::testing::StartsWith("Results:"));
}

// A dialog that shows its boxes as they were after a file was opened, computes and stores what they show.
TEST_F(ChoiceRows, BoxesThatAreNotShownAnewStandForWhatTheyWereShownFrom) {
    struct KeepingForm : frmstress {
        void ShowOpened() override {}
    };
    Session.ProblemType = Problem::SoilStrain;
    WriteBytes(DataFile("P1.SSD"), Lines({"1", "1", "3.3333", "900", "12", "3", "1", ".3", "12345.6", "2"}));
    WriteBytes(DataFile("Other.SSD"), Lines({"1", "1", "4", "900", "12", "3", "1", ".3", "12345.6", "2"}));
    SetProblemSaved(2, true);
    host.AnswerFileToOpen(DataFile("Other.SSD"));
    OnShown<KeepingForm>([](KeepingForm& form) {
        Click(form, "cmdOpen");
        EXPECT_EQ(Session.z, 4);
        EXPECT_EQ(form.txt_z.Text, "3.33");
        Click(form, "cmdSave");
        EXPECT_EQ(Session.z, Single(3.3333));
    });
}

}  // namespace
}  // namespace lithmark::tests
