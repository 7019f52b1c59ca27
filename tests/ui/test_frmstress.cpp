// The stress dialog: what it shows, what it takes, what it refuses.
#include <string>
#include <vector>

#include "FormTest.h"
#include "core/Units.h"
#include "support/Matchers.h"
#include "ui/frmResultTools.h"
#include "ui/frmstress.h"
#include "ui/model/UnsavedInput.h"

namespace lithmark::tests {
namespace {

class StressDialog : public FormTest {
  protected:
    void OnStress(int problem, std::function<void(frmstress&)> script) {
        Session.ProblemType = problem;
        OnShown<frmstress>(std::move(script));
    }
    // Presses cmdResult where it must be refused: the message names the field and its range, the field has the focus,
    // nothing is stored.
    void ExpectRefused(frmstress& form, Control& box, const std::string& messageStart) {
        const std::size_t messages = host.Messages.size();
        Session.x = -77;
        Session.Nue = 0.125;
        Click(form, "cmdResult");
        ASSERT_EQ(host.Messages.size(), messages + 1) << box.Name;
        EXPECT_THAT(host.LastMessage().Text, StartsWith(messageStart));
        EXPECT_EQ(form.Focus, &box) << form.Focus->Name;
        EXPECT_FALSE(Session.DataValid);
        EXPECT_EQ(Session.x, -77);
        EXPECT_EQ(Session.Nue, 0.125);
    }
    // Presses cmdResult and closes the viewer.
    void GetResult(frmstress& form) {
        host.OnForm<frmResultTools>([](frmResultTools& viewer) { Click(viewer, "cmdok"); });
        Click(form, "cmdResult");
    }
};

// Expected texts by hand: the defaults of the problem in the formats "0.0" (forces, stresses), "0.00" (lengths, ratio)
// and "0" (modulus).
TEST_F(StressDialog, AProblemWithoutDataShowsTheDefaults) {
    OnStress(3, [](frmstress& form) {
        EXPECT_EQ(form.txt_x.Text, "1.00");
        EXPECT_EQ(form.txt_y.Text, "1.00");
        EXPECT_EQ(form.txt_z.Text, "0.00");
        EXPECT_EQ(form.txt_Q.Text, "7854.0");
        EXPECT_EQ(form.txt_P.Text, "100.0");
        EXPECT_EQ(form.txt_A.Text, "5.00");
        EXPECT_EQ(form.txt_B.Text, "5.00");
        EXPECT_EQ(form.txt_Nue.Text, "0.25");
        EXPECT_EQ(form.txt_Es.Text, "5000");
        EXPECT_TRUE(form.optLoadType[1].Value);
        EXPECT_FALSE(form.optLoadType[0].Value || form.optLoadType[2].Value);
        EXPECT_EQ(Session.WorkDir, Session.DataDir);
        EXPECT_EQ(Session.WorkName, "P1");
        EXPECT_EQ(Session.A0, 5);
    });
}

TEST_F(StressDialog, SavedDataOfTheProblemWinOverTheDefaults) {
    WriteBytes(DataFile("P1.SSD"), Lines({"-2", "3", "4.5", "900", "10", "6", "7", ".3", "12000", "3"}));
    SetProblemSaved(2, true);
    OnStress(2, [](frmstress& form) {
        EXPECT_EQ(form.txt_x.Text, "-2.00");
        EXPECT_EQ(form.txt_z.Text, "4.50");
        EXPECT_EQ(form.txt_Es.Text, "12000");
        EXPECT_TRUE(form.optLoadType[2].Value);
        EXPECT_EQ(Session.A0, 6);
    });
}

TEST_F(StressDialog, AFileIsReadOnlyWhenTheProjectSaysThatItsDataWereSaved) {
    WriteBytes(DataFile("P1.SSD"), Lines({"-2", "3", "4.5", "900", "10", "6", "7", ".3", "12000", "3"}));
    SetProblemSaved(1, true);  // of the stresses, not of the strains
    OnStress(2, [](frmstress& form) { EXPECT_EQ(form.txt_x.Text, "1.00"); });
}

TEST_F(StressDialog, AFileThatWentMissingLeavesTheDefaultsAndNoHourglass) {
    SetProblemSaved(1, true);
    OnStress(1, [this](frmstress& form) {
        EXPECT_EQ(form.txt_x.Text, "1.00");
        EXPECT_EQ(host.Pointer(), PointerShape::Default);
    });
    EXPECT_THAT(host.Messages, IsEmpty());
}

// 5 m = 16.404 ft; 100 kN/m2 = 100/3.28084^2 = 9.290 kN/ft2; 10 ft = 3.048 m.
TEST_F(StressDialog, ValuesAreShownAndTakenInTheUnitsInForce) {
    Session.Len1Label = "[ft]";
    Session.Len1Factor = 3.28083989501312;
    OnStress(2, [this](frmstress& form) {
        EXPECT_EQ(form.txt_A.Text, "16.40");
        EXPECT_EQ(form.txt_P.Text, "9.3");
        EXPECT_EQ(form.lblm1.Caption, "[ft]");
        EXPECT_EQ(form.lblm5.Caption, "[ft]");
        EXPECT_EQ(form.lblLoadUnit.Caption, "[kN/ft²]");
        EXPECT_EQ(form.lblkn.Caption, "[kN]");
        EXPECT_EQ(form.Label14.Caption, "[-]");
        Type(form, "txt_A", "10");
        Type(form, "txt_x", "-1");
        Type(form, "txt_P", "9.290304");
        GetResult(form);
        EXPECT_NEAR(Session.A, 3.048, 1e-6);
        EXPECT_NEAR(Session.x, -0.3048, 1e-7);
        EXPECT_NEAR(Session.P, 100, 1e-4);
        // 5000 kN/m2 show as 465 kN/ft2, which are 5005.2 kN/m2; a box that nobody changed keeps what it stands for.
        EXPECT_EQ(form.txt_Es.Text, "465");
        EXPECT_EQ(Session.Es, 5000);
    });
}

TEST_F(StressDialog, TheDecimalSignInForceIsShownAndRead) {
    SharedServices().DecimalSign = ',';
    OnStress(2, [this](frmstress& form) {
        EXPECT_EQ(form.txt_Nue.Text, "0,25");
        Type(form, "txt_Nue", "0,3");
        GetResult(form);
        EXPECT_EQ(Session.Nue, Single(0.3));
    });
}

struct FieldCase {
    const char* Box;
    const char* Message;
};

// Everything is wrong at first and put right one by one.
TEST_F(StressDialog, FieldsAreCheckedInTheirOrderAndNamedInTheMessage) {
    const std::vector<FieldCase> point = {{"txt_x", "x-coordinate:"},      {"txt_y", "y-coordinate:"},
                                          {"txt_z", "z-coordinate:"},      {"txt_Q", "Point load:"},
                                          {"txt_Nue", "Poisson's ratio:"}, {"txt_Es", "Modulus of Compressibility:"}};
    const std::vector<FieldCase> rectangle = {
        {"txt_x", "x-coordinate:"},      {"txt_y", "y-coordinate:"},
        {"txt_z", "z-coordinate:"},      {"txt_P", "Uniform load:"},
        {"txt_A", "Radius/ Length:"},    {"txt_B", "Width:"},
        {"txt_Nue", "Poisson's ratio:"}, {"txt_Es", "Modulus of Compressibility:"}};
    const std::vector<FieldCase> circle = {{"txt_x", "x-coordinate:"},
                                           {"txt_y", "y-coordinate:"},
                                           {"txt_z", "z-coordinate:"},
                                           {"txt_P", "Uniform load:"},
                                           {"txt_A", "Radius/ Length:"},
                                           {"txt_Nue", "Poisson's ratio:"},
                                           {"txt_Es", "Modulus of Compressibility:"}};
    int option = 0;
    for (const auto& fields : {point, rectangle, circle}) {
        OnStress(3, [&](frmstress& form) {
            Click(form, "optLoadType(" + std::to_string(option) + ")");
            for (const FieldCase& field : fields) Type(form, field.Box, "abc");
            for (const FieldCase& field : fields) {
                ExpectRefused(form, *form.Find(field.Box), field.Message);
                Type(form, field.Box, "0.4");
            }
            GetResult(form);
            EXPECT_TRUE(Session.DataValid);
            EXPECT_EQ(Session.LoadType, option + 1);
        });
        ++option;
        RemoveDraft(DraftFolder(), Session.DataDir + Session.ProjectName, "frmstress");
    }
}

struct RangeCase {
    const char* Box;
    const char* Typed;
    bool Accepted;
};

class StressRanges : public StressDialog, public ::testing::WithParamInterface<RangeCase> {};

TEST_P(StressRanges, AValueIsTakenInsideItsRangeOnly) {
    const RangeCase& range = GetParam();
    OnStress(2, [&](frmstress& form) {
        Click(form, std::string_view(range.Box) == "txt_Q" ? "optLoadType(0)" : "optLoadType(1)");
        Type(form, range.Box, range.Typed);
        // Saving stores without a calculation.
        Click(form, "cmdSave");
        EXPECT_EQ(Session.DataValid, range.Accepted);
        EXPECT_EQ(host.Messages.size(), range.Accepted ? 0u : 1u);
        EXPECT_EQ(DataFiles().size(), range.Accepted ? 1u : 0u);
    });
}

INSTANTIATE_TEST_SUITE_P(Values, StressRanges,
                         ::testing::Values(RangeCase{"txt_Nue", "0.5", true}, RangeCase{"txt_Nue", "0", true},
                                           RangeCase{"txt_Nue", "0.51", false}, RangeCase{"txt_Nue", "0.6", false},
                                           RangeCase{"txt_Nue", "-0.1", false}, RangeCase{"txt_z", "0", true},
                                           RangeCase{"txt_z", "-0.01", false}, RangeCase{"txt_x", "-3", true},
                                           RangeCase{"txt_y", "-1e37", true}, RangeCase{"txt_x", "2e38", false},
                                           RangeCase{"txt_y", "-2e38", false}, RangeCase{"txt_Q", "0", true},
                                           RangeCase{"txt_Q", "-1", false}, RangeCase{"txt_P", "0", true},
                                           RangeCase{"txt_P", "-1", false}, RangeCase{"txt_A", "0", true},
                                           RangeCase{"txt_A", "-1", false}, RangeCase{"txt_B", "0", true},
                                           RangeCase{"txt_B", "-1", false}, RangeCase{"txt_Es", "0", true},
                                           RangeCase{"txt_Es", "-1", false}, RangeCase{"txt_Es", "", false},
                                           RangeCase{"txt_Es", "1.5E+04", true}, RangeCase{"txt_Es", "15,000", false},
                                           RangeCase{"txt_x", " 2 ", true}, RangeCase{"txt_x", "2 m", false}));

TEST_F(StressDialog, TheMessageTellsTheRange) {
    OnStress(1, [this](frmstress& form) {
        Type(form, "txt_Nue", "0.6");
        ExpectRefused(form, form.txt_Nue, "Poisson's ratio:");
        EXPECT_THAT(host.LastMessage().Text, HasSubstr("0.5"));
    });
}

TEST_F(StressDialog, AHiddenLoadIsNotCheckedAndStoredAllTheSame) {
    OnStress(2, [](frmstress& form) {
        Type(form, "txt_B", "-3");
        Click(form, "optLoadType(2)");
        Click(form, "cmdSave");
        EXPECT_TRUE(Session.DataValid);
        EXPECT_EQ(Session.B, -3);
        EXPECT_EQ(Session.LoadType, 3);
    });
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(StressDialog, TheRadiusFollowsTheLengthAsItIsStored) {
    OnStress(2, [](frmstress& form) {
        Type(form, "txt_A", "8");
        EXPECT_EQ(Session.A0, 5);
        Click(form, "cmdSave");
        EXPECT_EQ(Session.A, 8);
        EXPECT_EQ(Session.A0, 8);
    });
}

TEST_F(StressDialog, AHiddenLoadThatIsNoNumberLeavesItsFieldAsItWas) {
    OnStress(2, [](frmstress& form) {
        Type(form, "txt_B", "wide");
        Type(form, "txt_A", "8");
        Click(form, "optLoadType(2)");
        Click(form, "cmdSave");
        EXPECT_TRUE(Session.DataValid);
        EXPECT_EQ(Session.B, 5);
        EXPECT_EQ(Session.A, 8);
    });
}

// Deliberate: the stress problem hides the modulus and still wants a valid one, since its strains are computed too.
TEST_F(StressDialog, TheHiddenModulusOfTheStressProblemMustBeValid) {
    WriteBytes(DataFile("P1.SSD"), Lines({"1", "1", "1", "900", "10", "6", "7", ".3", "-1", "2"}));
    SetProblemSaved(1, true);
    OnStress(1, [this](frmstress& form) {
        EXPECT_FALSE(form.txt_Es.Visible);
        ExpectRefused(form, form.txt_Es, "Modulus of Compressibility:");
    });
}

TEST_F(StressDialog, TheModulusIsHiddenInTheStressProblemAlone) {
    for (const int problem : {1, 2, 3})
        OnStress(problem, [&](frmstress& form) {
            for (const char* name : {"txt_Es", "lblE_Modulus", "Label69", "lblknm1"})
                EXPECT_EQ(form.Find(name)->Visible, problem != 1) << name;
            EXPECT_TRUE(form.txt_Nue.Visible && form.lblPoissonRatio.Visible && form.Label60.Visible);
        });
}

TEST_F(StressDialog, AFormThatIsShownAgainForAnotherProblemShowsItsModulus) {
    frmstress form;
    for (const int problem : {1, 2}) {
        Session.ProblemType = problem;
        host.OnForm([&](Form&) { EXPECT_EQ(form.txt_Es.Visible, problem == 2); });
        CurrentHost().ShowForm(form);
    }
}

// With lengths in mm one kN/mm2 is 1E+06 kN/m2, so 1E+38 in the box does not fit 32 bits (3.4E+38).
TEST_F(StressDialog, AValueThatDoesNotFitIsToldAndNothingIsStored) {
    Session.Len1Label = "[mm]";
    Session.Len1Factor = 1000;
    OnStress(2, [this](frmstress& form) {
        Type(form, "txt_P", "1E+38");
        Session.x = -77;
        Click(form, "cmdResult");
        EXPECT_FALSE(Session.DataValid);
        EXPECT_EQ(Session.x, -77);
        EXPECT_EQ(host.Messages.size(), 1u);
    });
}

// What stands in the controls of a load type, by hand.
TEST_F(StressDialog, EachLoadShowsItsOwnBoxes) {
    const std::vector<std::string> pointLoad = {"txt_Q", "lplPointLoad", "lblQp", "lblkn"};
    const std::vector<std::string> area = {"txt_P", "LblDistributedload", "lblq", "lblknm2",
                                           "txt_A", "lblLength_Radius",   "lbla", "lblm4"};
    const std::vector<std::string> width = {"txt_B", "lblWidth", "lblb", "lblm5"};
    OnStress(2, [&](frmstress& form) {
        const auto expectShown = [&](const std::vector<std::string>& names, bool shown) {
            for (const auto& name : names) EXPECT_EQ(form.Find(name)->Visible, shown) << name;
        };
        for (const int option : {1, 0, 2, 1}) {  // the first click is on what is chosen already
            Click(form, "optLoadType(" + std::to_string(option) + ")");
            expectShown(pointLoad, option == 0);
            expectShown(area, option != 0);
            expectShown(width, option == 1);
            EXPECT_EQ(form.optLoadType.Selected(), option);
        }
    });
}

TEST_F(StressDialog, ALoadTypeThatDoesNotExistShowsNoLoadAndIsKept) {
    WriteBytes(DataFile("P1.SSD"), Lines({"1", "1", "1", "900", "10", "6", "7", ".3", "1000", "7"}));
    SetProblemSaved(2, true);
    OnStress(2, [](frmstress& form) {
        EXPECT_EQ(form.optLoadType.Selected(), -1);
        EXPECT_FALSE(form.txt_Q.Visible || form.txt_P.Visible || form.txt_A.Visible || form.txt_B.Visible);
        Click(form, "cmdSave");
        EXPECT_EQ(Session.LoadType, 7);
    });
}

}  // namespace
}  // namespace lithmark::tests
