// A box whose text the user has not changed keeps its stored value, whatever format and unit it is shown in; a draft is
// what a store would leave.
#include <cstdlib>
#include <string>

#include "FormTest.h"
#include "core/Catalogue.h"
#include "core/SessionFields.h"
#include "files/ProblemData.h"
#include "files/SettingsFiles.h"
#include "support/DistinctFields.h"
#include "support/Matchers.h"
#include "support/Places.h"
#include "ui/frmPreferences.h"
#include "ui/frmResultTools.h"
#include "ui/frmstress.h"

namespace lithmark::tests {
namespace {

class UntouchedBoxes : public FormTest {
  protected:
    // Lengths in feet, forces in meganewtons: what stands in the boxes is far from what is stored.
    void UseCoarseUnits() {
        Session.Len1Label = "[ft]";
        Session.Len1Factor = 3.28083989501312;
        Session.Force1Label = "[MN]";
        Session.Force1Factor = 0.001;
    }
    // Saves the defaults of the problem, each quantity a little off every format, as the project's data.
    void SaveOddData(int problem) {
        Session.ProblemType = problem;
        SetProblemDefaults();
        for (const SessionField& field : SessionFields())
            if (auto* const* value = std::get_if<Single*>(&field.Ref)) **value = **value * 1.0000123;
        // The analytical raft wants whole millimetres.
        if (IsRaft(problem)) Session.A = Session.B = 5.001;
        Session.WorkDir = Session.DataDir;
        Session.WorkName = Session.ProjectName;
        WriteProblemData();
        SetProblemSaved(ProblemInForce().MenuEntry, true);
        SetProblemDefaults();
    }
    std::string DataOf(int problem) {
        Session.ProblemType = problem;
        return ReadBytes(DataFile(std::string("P1.") + ProblemInForce().Extension));
    }
    // Plays a script on each dialog of a problem, shown on odd data in coarse units.
    void ForEachProblem(const std::function<void(int, ProblemForm&)>& script) {
        OnEachProblem([&](ProblemForm& form) { script(Session.ProblemType, form); },
                      [&](int problem) {
                          StartIn(Language::English);
                          UseCoarseUnits();
                          SaveOddData(problem);
                      });
    }
    // The report that lithmark-cli gives for the project, with the units of the session.
    std::string CommandLineReport() {
        WriteUnits();
        WriteBytes(DataFile("P1.PO3"), Lines({"Version 9", std::to_string(Session.ProblemType).c_str(), "0"}));
        const std::string out = DataFile("report.txt");
        const std::string line = CommandLineTool().string() + " report " + DataFile("P1.PO3") +
                                 " --lang en --settings " + Session.ProgramDir + " --output " + out;
        EXPECT_EQ(std::system(line.c_str()), 0) << line;
        return ReadBytes(out);
    }
};

TEST_F(UntouchedBoxes, OpenAndSaveChangesNoBitOfTheDataInAnyDialog) {
    ForEachProblem([&](int problem, ProblemForm& form) {
        const std::string saved = DataOf(problem);
        const FieldTexts before = TakeFields();
        Click(form, "cmdSave");
        EXPECT_TRUE(Session.DataValid);
        EXPECT_EQ(TakeFields(), before);
        EXPECT_EQ(DataOf(problem), saved);
    });
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(UntouchedBoxes, OpenAndComputeChangesNoBitOfTheDataInAnyDialog) {
    ForEachProblem([&](int problem, ProblemForm& form) {
        const std::string saved = DataOf(problem);
        host.OnForm<frmResultTools>([](frmResultTools& viewer) { Click(viewer, "cmdok"); });
        Click(form, "cmdResult");
        EXPECT_FALSE(Session.CalcAborted);
        // A run leaves results in the record, the coefficient of consolidation among them; the data stay.
        Click(form, "cmdSave");
        EXPECT_EQ(DataOf(problem), saved);
    });
}

// 12 kN/m2 show as 0.0 MN/m2, 3.333 m as 3.33 m, 1.23456 m as 1.23 m.
TEST_F(UntouchedBoxes, TheDialogAndTheCommandLineComputeTheSame) {
    Session.Force1Label = "[MN]";
    Session.Force1Factor = 0.001;
    Session.ProblemType = Problem::SoilStress;
    WriteBytes(DataFile("P1.SSD"),
               Lines({"1.23456", ".5", "3.333", "900", "12", "3.333", "1.23456", ".3", "12345.6", "2"}));
    SetProblemSaved(1, true);
    OnShown<frmstress>([this](frmstress& form) {
        EXPECT_EQ(form.txt_P.Text, "0.0");
        EXPECT_EQ(form.txt_z.Text, "3.33");
        EXPECT_EQ(form.txt_x.Text, "1.23");
        host.OnForm<frmResultTools>([](frmResultTools&) {});
        Click(form, "cmdResult");
        EXPECT_EQ(Session.P, 12);
        EXPECT_EQ(Session.z, Single(3.333));
    });
    const std::string report = CommandLineReport();
    EXPECT_GT(report.size(), 500u);
    EXPECT_EQ(Session.ResultText, report);
}

TEST_F(UntouchedBoxes, AnEditedBoxIsReadFromItsTextAndTheOthersKeepTheirValues) {
    Session.ProblemType = Problem::SoilStrain;
    WriteBytes(DataFile("P1.SSD"),
               Lines({"1.23456", ".5", "3.333", "900", "12", "3.333", "1.23456", ".3", "12345.6", "2"}));
    SetProblemSaved(2, true);
    OnShown<frmstress>([](frmstress& form) {
        Type(form, "txt_A", "3.33");  // typed, as it stands
        EXPECT_EQ(form.txt_A.Text, "3.33");
        Type(form, "txt_B", "1.5");
        Click(form, "cmdSave");
        EXPECT_EQ(Session.A, Single(3.333));  // nothing was changed
        EXPECT_EQ(Session.B, Single(1.5));
        EXPECT_EQ(Session.x, Single(1.23456));
        // From now on the box stands for 1.5: its first text is an edit as any other.
        Type(form, "txt_B", "1.23");
        Click(form, "cmdSave");
        EXPECT_EQ(Session.B, Single(1.23));
    });
}

// 1.6666 m are shown as 1.67 m and are within a limit of 5/3 m; what is typed must be within as it stands.
TEST_F(UntouchedBoxes, AnUntouchedValueIsCheckedAsItIsStored) {
    Session.ProblemType = Problem::SoilStrain;
    WriteBytes(DataFile("P1.SSD"), Lines({"1", ".5", "3.333", "900", "12", "3", "1", ".4996", "12345.6", "2"}));
    SetProblemSaved(2, true);
    Session.FmtRatio = "0";
    OnShown<frmstress>([this](frmstress& form) {
        EXPECT_EQ(form.txt_Nue.Text, "0");
        Click(form, "cmdSave");
        EXPECT_THAT(host.Messages, IsEmpty());
        EXPECT_EQ(Session.Nue, Single(0.4996));
        Type(form, "txt_Nue", "0.51");
        Click(form, "cmdSave");
        EXPECT_EQ(host.Messages.size(), 1u);
    });
}

TEST_F(UntouchedBoxes, PreferencesKeepTheirBitsToo) {
    const std::string file = Lines({".3333333", "1.2345678", ".9876543", "12", "1.234567E-05", "77"});
    WriteBytes(SettingsFile("Preferen.tol"), file);
    UseCoarseUnits();
    OnShown<frmPreferences>([&](frmPreferences& form) {
        EXPECT_EQ(form.txtDx.Text, "1.09");
        Click(form, "cmdSave");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_EQ(ReadBytes(SettingsFile("Preferen.tol")), file);
    EXPECT_EQ(Session.PrefDx, Single(0.3333333));
}

// --- drafts ---

TEST_F(UntouchedBoxes, ADraftIsWhatAStoreLeavesAndChangesNothing) {
    ForEachProblem([&](int, ProblemForm& form) {
        for (const FieldRow& row : form.Fields())
            if (row.Field.Exists() && row.Box.Visible && row.Box.Enabled) {
                Type(form, row.Box.Name, "0.375");
                break;
            }
        for (const ChoiceRow& choice : form.Choices())
            if (choice.Of[0].Kind == ControlKind::Option && choice.Of[0].Visible) Click(form, choice.Of[0].Name);
        const FieldTexts before = TakeFields();
        const auto shown = form.Inputs();
        const FormDraft draft = form.Draft();
        EXPECT_EQ(TakeFields(), before);
        EXPECT_EQ(form.Inputs(), shown);
        EXPECT_FALSE(Session.DataValid);
        ASSERT_TRUE(draft.Valid()) << draft.Faults.front().Reason;
        Click(form, "cmdSave");
        const FieldTexts stored = TakeFields();
        EXPECT_NE(stored, before);
        Session = draft.Record;
        EXPECT_EQ(TakeFields(), stored);
    });
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(UntouchedBoxes, ADraftNamesEveryBoxThatStopsItWithItsReason) {
    Session.ProblemType = Problem::SoilStrain;
    OnShown<frmstress>([](frmstress& form) {
        Type(form, "txt_z", "deep");
        Type(form, "txt_Nue", "0.6");
        Type(form, "txt_x", "1E39");
        const FormDraft draft = form.Draft();
        ASSERT_EQ(draft.Faults.size(), 3u);
        EXPECT_EQ(draft.Faults[0].Box, &form.txt_x);
        EXPECT_EQ(draft.Faults[1].Box, &form.txt_z);
        EXPECT_THAT(draft.Faults[1].Reason, StartsWith("z-coordinate:"));
        EXPECT_EQ(draft.Faults[2].Box, &form.txt_Nue);
        EXPECT_THAT(draft.Faults[2].Reason, HasSubstr("0.5"));
    });
    EXPECT_THAT(host.Messages, IsEmpty());
}

// With lengths in mm one kN/mm2 is 1E+06 kN/m2, so 1E+38 in the box does not fit 32 bits (3.4E+38).
TEST_F(UntouchedBoxes, AValueThatDoesNotFitIsAReasonThatNamesItsField) {
    Session.ProblemType = Problem::SoilStrain;
    Session.Len1Label = "[mm]";
    Session.Len1Factor = 1000;
    OnShown<frmstress>([](frmstress& form) {
        Type(form, "txt_P", "1E+38");
        const FormDraft draft = form.Draft();
        ASSERT_EQ(draft.Faults.size(), 1u);
        EXPECT_EQ(draft.Faults[0].Reason, "Uniform load: The number is too large.");
    });
}

}  // namespace
}  // namespace lithmark::tests
