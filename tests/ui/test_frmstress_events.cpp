// The stress dialog's commands: the Enter key, files, results, picture, help, and what the title has to tell.
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "FormTest.h"
#include "support/Matchers.h"
#include "ui/frmResultTools.h"
#include "ui/frmstress.h"

namespace lithmark::tests {
namespace {

class StressCommands : public FormTest {
  protected:
    void OnStress(int problem, std::function<void(frmstress&)> script) {
        Session.ProblemType = problem;
        OnShown<frmstress>(std::move(script));
    }
    void OnViewer(std::function<void(frmResultTools&)> script) { host.OnForm<frmResultTools>(std::move(script)); }
};

// --- captions ---

TEST_F(StressCommands, TheCaptionNamesTheProblem) {
    const std::map<int, std::string> captions = {
        {1, "Stresses in soil"}, {2, "Strains in soil"}, {3, "Displacements in soil"}};
    for (const auto& [problem, caption] : captions)
        OnStress(problem, [caption = caption](frmstress& form) { EXPECT_EQ(form.Caption, caption); });
}

TEST_F(StressCommands, CaptionsComeByTheirNumbers) {
    LanguageTexts().SetCurrent(Language::Ids);
    OnStress(2, [](frmstress& form) {
        const std::map<std::string, std::string> captions = {{"frmSelectOption", "T<300003>"},
                                                             {"optLoadType(0)", "T<400186>"},
                                                             {"optLoadType(1)", "T<300002>"},
                                                             {"optLoadType(2)", "T<400127>"},
                                                             {"fraData", "T<140095>"},
                                                             {"fraPointCoordinates", "T<400128>"},
                                                             {"frmSoilProperties", "T<140162>"},
                                                             {"lblE_Modulus", "T<90003>"},
                                                             {"lblPoissonRatio", "T<90004>"},
                                                             {"lblLength_Radius", "T<400120>/ T<400001>"},
                                                             {"lblWidth", "T<101>"},
                                                             {"lplPointLoad", "T<400186>"},
                                                             {"LblDistributedload", "T<400170>"},
                                                             {"lbl_x_Coord", "T<90001>(x)"},
                                                             {"lbl_y_Coord", "T<90001>(y)"},
                                                             {"lbl_z_Coord", "T<90001>(z)"},
                                                             {"cmdok", "T<6>"},
                                                             {"cmdHelp", "T<8>"},
                                                             {"cmdSave", "T<111>"},
                                                             {"cmdSaveAs", "T<9>"},
                                                             {"cmdOpen", "T<10016>"},
                                                             {"cmdResult", "T<140096>"}};
        for (const auto& [name, caption] : captions) EXPECT_EQ(form.Find(name)->Caption, caption) << name;
    });
}

TEST_F(StressCommands, ButtonsCarryTheirMarksAndFileButtonsTheirDots) {
    OnStress(2, [](frmstress& form) {
        EXPECT_EQ(form.cmdResult.Caption, "&Results");
        EXPECT_EQ(form.cmdSave.Caption, "&Save");
        EXPECT_EQ(form.cmdSaveAs.Caption, "Save &as...");
        EXPECT_EQ(form.cmdOpen.Caption, "&Load...");
        EXPECT_EQ(form.fraData.Caption, "Data:");
        EXPECT_EQ(form.lblLength_Radius.Caption, "Radius/ Length");
    });
}

TEST_F(StressCommands, ArabicRunsFromRightToLeftAndNamesTheAxesWithItsLetters) {
    StartIn(Language::Arabic);
    OnStress(2, [](frmstress& form) {
        EXPECT_TRUE(form.RightToLeft);
        EXPECT_EQ(form.lbl_x_Coord.Caption, "الإحداثي س");
    });
}

// --- Enter ---

using EnterPath = std::vector<std::pair<const char*, const char*>>;

void ExpectPath(Form& form, const EnterPath& path) {
    for (const auto& [from, to] : path) {
        PressEnter(form, from);
        EXPECT_EQ(form.Focus, form.Find(to)) << "Enter in " << from << " leads to " << form.Focus->Name;
    }
}

TEST_F(StressCommands, EnterLeadsThroughTheBoxesThatAreShown) {
    OnStress(2, [](frmstress& form) {
        Click(form, "optLoadType(0)");
        ExpectPath(form, {{"txt_Q", "txt_x"},
                          {"txt_x", "txt_y"},
                          {"txt_y", "txt_z"},
                          {"txt_z", "txt_Es"},
                          {"txt_Es", "txt_Nue"},
                          {"txt_Nue", "cmdResult"}});
        Click(form, "optLoadType(1)");
        ExpectPath(form, {{"txt_P", "txt_A"}, {"txt_A", "txt_B"}, {"txt_B", "txt_x"}});
        Click(form, "optLoadType(2)");
        ExpectPath(form, {{"txt_P", "txt_A"}, {"txt_A", "txt_x"}});
    });
}

TEST_F(StressCommands, EnterPassesOverTheModulusInTheStressProblem) {
    OnStress(1, [](frmstress& form) { ExpectPath(form, {{"txt_z", "txt_Nue"}, {"txt_Nue", "cmdResult"}}); });
}

TEST_F(StressCommands, EnterOnlyMovesTheFocus) {
    OnStress(2, [this](frmstress& form) {
        PressEnter(form, "txt_Nue");
        EXPECT_THAT(host.FormsShown, ElementsAre("frmstress"));  // cmdResult was not pressed
        EXPECT_THAT(host.Messages, IsEmpty());
    });
}

// --- results ---

// Boussinesq (1885), on the axis of a point load: sigma_z = 3 Q / (2 pi z^2) = 3 * 7854 / (8 pi) = 937.5 kN/m2.
TEST_F(StressCommands, AResultOpensTheViewerOnTheReport) {
    OnStress(1, [this](frmstress& form) {
        Click(form, "optLoadType(0)");
        Type(form, "txt_x", "0");
        Type(form, "txt_y", "0");
        Type(form, "txt_z", "2");
        OnViewer([](frmResultTools& viewer) {
            EXPECT_EQ(viewer.Caption, "Stresses in soil - Notices: 1");  // the point is in line with the load
            EXPECT_EQ(viewer.txtResult.Text, Session.ResultText);
            EXPECT_THAT(viewer.txtResult.Text, HasSubstr("937.5"));
            EXPECT_TRUE(viewer.txtResult.ReadOnly);
            Click(viewer, "cmdok");
        });
        Click(form, "cmdResult");
        EXPECT_FALSE(Session.CalcAborted);
        EXPECT_NEAR(Session.Sigma_z, 3 * 7854 / (8 * 3.14159265358979), 1e-3);
        EXPECT_EQ(host.Pointer(), PointerShape::Default);
        EXPECT_FALSE(form.Unloaded());
    });
    EXPECT_THAT(host.FormsShown, ElementsAre("frmstress", "frmResultTools"));
    EXPECT_THAT(DataFiles(), IsEmpty());  // a result saves nothing
}

// The stress problem's modulus may be 0 by its range, and then its strains divide by it.
TEST_F(StressCommands, AKernelThatFailsOpensNoViewer) {
    WriteBytes(DataFile("P1.SSD"), Lines({"1", "1", "1", "900", "10", "6", "7", ".3", "0", "2"}));
    SetProblemSaved(1, true);
    OnStress(1, [this](frmstress& form) {
        EXPECT_EQ(form.txt_Es.Text, "0");
        Click(form, "cmdResult");
        EXPECT_TRUE(Session.DataValid);
        EXPECT_TRUE(Session.CalcAborted);
        EXPECT_EQ(host.Messages.size(), 1u);
        EXPECT_EQ(host.Pointer(), PointerShape::Default);
    });
    EXPECT_THAT(host.FormsShown, ElementsAre("frmstress"));
}

TEST_F(StressCommands, AFailureBeforeDoesNotKeepTheNextResultBack) {
    Session.CalcAborted = true;
    OnStress(2, [this](frmstress& form) {
        OnViewer([](frmResultTools&) {});
        Click(form, "cmdResult");
        EXPECT_FALSE(Session.CalcAborted);
    });
}

TEST_F(StressCommands, AnInvalidFieldOpensNoViewer) {
    OnStress(2, [](frmstress& form) {
        Session.DataValid = true;  // from another dialog
        Type(form, "txt_z", "-1");
        Click(form, "cmdResult");
        EXPECT_FALSE(Session.DataValid);
    });
    EXPECT_THAT(host.FormsShown, ElementsAre("frmstress"));
}

// --- files ---

TEST_F(StressCommands, SaveWritesTheProjectsFileAndTicksTheProblem) {
    OnStress(3, [this](frmstress& form) {
        Session.WorkDir = "/elsewhere/";  // as a save-as leaves it
        Session.WorkName = "other";
        Type(form, "txt_x", "-2.5");
        Type(form, "txt_Nue", "0.3");
        Click(form, "optLoadType(2)");
        Click(form, "cmdSave");
        EXPECT_EQ(ReadBytes(DataFile("P1.SSD")), Lines({"-2.5", "1", "0", "7854", "100", "5", "5", ".3", "5000", "3"}));
    });
    EXPECT_TRUE(ProblemSaved(3));
    EXPECT_FALSE(ProblemSaved(1));
    EXPECT_TRUE(Session.FileSaved);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(StressCommands, SaveOfAnInvalidFieldWritesNothingAndTicksNothing) {
    OnStress(3, [](frmstress& form) {
        Session.FileSaved = true;  // an earlier save
        Type(form, "txt_Nue", "0.6");
        Click(form, "cmdSave");
    });
    EXPECT_FALSE(ProblemSaved(3));
    EXPECT_THAT(DataFiles(), IsEmpty());
}

TEST_F(StressCommands, SaveThatCannotBeWrittenIsToldAndTicksNothing) {
    Session.DataDir = DataFile("no such folder/");
    OnStress(3, [this](frmstress& form) {
        Type(form, "txt_x", "2");
        Click(form, "cmdSave");
        EXPECT_EQ(host.Messages.size(), 1u);
        EXPECT_TRUE(form.Modified());
        EXPECT_EQ(host.Pointer(), PointerShape::Default);
    });
    EXPECT_FALSE(Session.FileSaved);
    EXPECT_FALSE(ProblemSaved(3));
}

TEST_F(StressCommands, SaveAsWritesUnderTheChosenNameAndTicksNothing) {
    host.AnswerFileToSave(DataFile("Other.SSD"));
    OnStress(2, [](frmstress& form) { Click(form, "cmdSaveAs"); });
    EXPECT_THAT(DataFiles(), ElementsAre("Other.SSD"));
    EXPECT_FALSE(ProblemSaved(2));
    ASSERT_EQ(host.SaveQuestions.size(), 1u);
    EXPECT_EQ(host.SaveQuestions[0].Title, "Strains in soil");
    EXPECT_EQ(host.SaveQuestions[0].Pattern, "SSD");
    EXPECT_EQ(host.SaveQuestions[0].Name, "P1");
    EXPECT_EQ(host.SaveQuestions[0].StartDir, DataDir());
    EXPECT_EQ(Session.WorkName, "Other");
    EXPECT_EQ(Session.ProjectName, "P1");
}

TEST_F(StressCommands, SaveAsThatIsCancelledChecksAndWritesNothing) {
    host.AnswerFileToSave(std::nullopt);
    OnStress(2, [](frmstress& form) {
        Type(form, "txt_Nue", "0.6");
        Click(form, "cmdSaveAs");
    });
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_THAT(DataFiles(), IsEmpty());
}

TEST_F(StressCommands, SaveAsOfAnInvalidFieldWritesNothing) {
    host.AnswerFileToSave(DataFile("Other.SSD"));
    OnStress(2, [](frmstress& form) {
        Type(form, "txt_Nue", "0.6");
        Click(form, "cmdSaveAs");
    });
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_THAT(DataFiles(), IsEmpty());
}

TEST_F(StressCommands, OpenReadsTheChosenFileAndShowsIt) {
    WriteBytes(DataFile("Other.SSD"), Lines({"-2", "3", "4.5", "900", "10", "6", "7", ".3", "12000", "1"}));
    host.AnswerFileToOpen(DataFile("Other.SSD"));
    OnStress(2, [this](frmstress& form) {
        Click(form, "cmdOpen");
        EXPECT_EQ(Session.x, -2);
        EXPECT_EQ(Session.LoadType, 1);
        EXPECT_EQ(form.txt_x.Text, "-2.00");
        EXPECT_EQ(form.txt_Q.Text, "900.0");
        EXPECT_TRUE(form.optLoadType[0].Value);
        EXPECT_TRUE(form.txt_Q.Visible);
        EXPECT_FALSE(form.txt_A.Visible);
        EXPECT_EQ(host.OpenQuestions[0].Title, "Strains in soil");
        EXPECT_EQ(host.OpenQuestions[0].Pattern, "*.SSD");
        EXPECT_EQ(host.OpenQuestions[0].StartDir, DataDir());
        Click(form, "cmdSave");  // into the project
    });
    EXPECT_THAT(DataFiles(), ElementsAre("Other.SSD", "P1.SSD"));
}

TEST_F(StressCommands, OpenInTheStressProblemKeepsTheModulusHidden) {
    WriteBytes(DataFile("Other.SSD"), Lines({"-2", "3", "4.5", "900", "10", "6", "7", ".3", "12000", "1"}));
    host.AnswerFileToOpen(DataFile("Other.SSD"));
    OnStress(1, [](frmstress& form) {
        Click(form, "cmdOpen");
        EXPECT_EQ(form.txt_Es.Text, "12000");
        EXPECT_FALSE(form.txt_Es.Visible);
    });
}

TEST_F(StressCommands, OpenThatIsCancelledChangesNothing) {
    host.AnswerFileToOpen(std::nullopt);
    OnStress(2, [](frmstress& form) {
        Type(form, "txt_x", "8");
        Click(form, "cmdOpen");
        EXPECT_EQ(form.txt_x.Text, "8");
        EXPECT_EQ(Session.x, 1);
        EXPECT_EQ(Session.WorkName, "P1");
    });
}

TEST_F(StressCommands, OpenOfADamagedFileIsToldAndKeepsWhatWasTyped) {
    WriteBytes(DataFile("Short.SSD"), Lines({"-2", "3", "4.5", "900", "10", "6", "7", ".3", "12000"}));
    host.AnswerFileToOpen(DataFile("Short.SSD"));
    OnStress(2, [this](frmstress& form) {
        Type(form, "txt_x", "8");
        Click(form, "cmdOpen");
        EXPECT_EQ(form.txt_x.Text, "8");
        EXPECT_EQ(host.Messages.size(), 1u);
        EXPECT_EQ(host.Pointer(), PointerShape::Default);
        EXPECT_EQ(Session.x, 1);  // nor does a hidden value come from the damaged file
        EXPECT_EQ(Session.WorkName, "P1");
    });
}

// --- closing and the title ---

TEST_F(StressCommands, ClosingStoresNothing) {
    OnStress(2, [](frmstress& form) {
        Type(form, "txt_x", "8");
        Click(form, "optLoadType(2)");
        Click(form, "cmdok");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_EQ(Session.x, 1);
    EXPECT_EQ(Session.LoadType, 2);
    EXPECT_THAT(DataFiles(), IsEmpty());
    EXPECT_THAT(host.Questions, IsEmpty());
}

TEST_F(StressCommands, TheFormKnowsWhetherItDiffersFromWhatIsSaved) {
    host.AnswerFileToSave(DataFile("Other.SSD"));
    OnStress(2, [this](frmstress& form) {
        EXPECT_FALSE(form.Modified());
        Type(form, "txt_x", "8");
        EXPECT_TRUE(form.Modified());
        Type(form, "txt_x", "1.00");
        EXPECT_FALSE(form.Modified());
        Click(form, "optLoadType(2)");
        EXPECT_TRUE(form.Modified());
        OnViewer([](frmResultTools&) {});
        Click(form, "cmdResult");
        EXPECT_TRUE(form.Modified());  // stored in the session, but in no file
        Click(form, "cmdSave");
        EXPECT_FALSE(form.Modified());
        Type(form, "txt_z", "3");
        Click(form, "cmdSaveAs");
        EXPECT_FALSE(form.Modified());
        Click(form, "CmdMoreLess");
        EXPECT_FALSE(form.Modified());
    });
}

TEST_F(StressCommands, DataOpenedFromAnotherFileAreNotTheProjectsUntilSaved) {
    WriteBytes(DataFile("Other.SSD"), Lines({"-2", "3", "4.5", "900", "10", "6", "7", ".3", "12000", "1"}));
    host.AnswerFileToOpen(DataFile("Other.SSD"));
    OnStress(2, [](frmstress& form) {
        Click(form, "cmdOpen");
        EXPECT_TRUE(form.Modified());
        Click(form, "cmdSave");
        EXPECT_FALSE(form.Modified());
    });
}

// --- the picture ---

TEST_F(StressCommands, ThePictureIsShownAtFirstAndItsStateIsKept) {
    OnStress(1, [](frmstress& form) {
        EXPECT_TRUE(form.More());
        EXPECT_TRUE(form.PctInvertedT.Visible);
        EXPECT_EQ(form.CmdMoreLess.Caption, "Less <<");
        Click(form, "CmdMoreLess");
        EXPECT_FALSE(form.More());
        EXPECT_FALSE(form.PctInvertedT.Visible);
        EXPECT_EQ(form.CmdMoreLess.Caption, "More >>");
    });
    EXPECT_FALSE(SharedServices().GetSetting("Lithmark", "Stress Form", "More State", true));
    OnStress(2, [](frmstress& form) {
        EXPECT_FALSE(form.More());
        Click(form, "CmdMoreLess");
        Click(form, "cmdok");
    });
    EXPECT_TRUE(SharedServices().GetSetting("Lithmark", "Stress Form", "More State", false));
}

TEST_F(StressCommands, ThePictureIsTheFileInTheProgramDirectory) {
    WriteBytes(Session.ProgramDir + "StressStrain.bmp", "BM");
    OnStress(1, [](frmstress& form) { EXPECT_EQ(form.PctInvertedT.Text, Session.ProgramDir + "StressStrain.bmp"); });
}

// --- help ---

TEST_F(StressCommands, HelpTellsWhatTheProblemComputesInThreeLanguages) {
    const auto helpOf = [this](Language language, int problem) {
        StartIn(language);
        OnStress(problem, [](frmstress& form) { Click(form, "cmdHelp"); });
        EXPECT_EQ(host.HelpTexts.back().Title, Text(problem == 1   ? 140185_text
                                                    : problem == 2 ? 300100_text
                                                                   : 300001_text));
        return host.HelpTexts.back().Text;
    };
    EXPECT_EQ(helpOf(Language::German, 1),
              "Das Menü dient zur Berechnung der Spannungen in einem beliebigen Punkt (x, y, z)\r"
              "im Baugrund infolge Einzellast, Rechteckflächenlast oder\rKreisflächenlast auf der Oberfläche.");
    EXPECT_EQ(helpOf(Language::English, 2),
              "The menu is used for determining the strains in an arbitrary point (x, y, z)\r"
              "in soil due to point load, rectangular uniform load or circular\runiform load on the surface.");
    EXPECT_EQ(helpOf(Language::Arabic, 3),
              "هذه القائمة تستخدم لتحديد الإزاحات\r"
              "في أي نقطة اعتباطية (x, y, z) في التربة نتيجة حمل مركز،\r"
              "حمل مستطيل موزع أو حمل دائري موزع عند السطح.");
}

}  // namespace
}  // namespace lithmark::tests
