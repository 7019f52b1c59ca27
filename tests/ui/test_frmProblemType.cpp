// The project dialog and the list of missing data.
#include <map>
#include <string>
#include <vector>

#include "FrameTest.h"
#include "services/TextTools.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class ProjectDialog : public FrameTest {
  protected:
    ProjectDialog() { frame.Load(); }

    void OnDialog(std::function<void(frmProblemType&)> script) {
        frmProblemType form([this] { frame.ShowProject(); });
        host.OnForm<frmProblemType>(std::move(script));
        CurrentHost().ShowForm(form);
    }
    // The project P1 with a heading and this problem, open.
    void HaveProject(int problemType) {
        WriteProject("P1", problemType);
        Session.ProjectName = "P1";
        SetProblemSaved(0, true);
    }
};

TEST_F(ProjectDialog, CaptionsComeByTheirNumbers) {
    LanguageTexts().SetCurrent(Language::Ids);
    OnDialog([](frmProblemType& form) {
        EXPECT_EQ(form.Caption, "T<400009>");
        const std::map<std::string, std::string> captions = {
            {"Frame3D1", "T<160>"},           {"lblAuftrag", "T<11>"},  {"lblDatum", "T<12>"}, {"lblProjekt", "T<95>"},
            {"frmSelectOption", "T<300003>"}, {"lblItem", "T<140242>"}, {"cmdSave", "T<111>"}, {"cmdSaveAs", "T<9>"},
            {"cmdOpen", "T<10016>"},          {"CmdCancel", "T<7>"},    {"cmdHelp", "T<8>"}};
        for (const auto& [name, caption] : captions) EXPECT_EQ(form.Find(name)->Caption, caption) << name;
        EXPECT_THAT(form.cmbItem.Items, ElementsAre("1- T<140185>", "2- T<300100>", "3- T<300001>", "4- T<140186>",
                                                    "5- T<140187>", "6- T<140188>", "7- T<140189>", "8- T<140190>"));
    });
}

TEST_F(ProjectDialog, ButtonsCarryTheirMarksAndFileButtonsTheirDots) {
    OnDialog([](frmProblemType& form) {
        EXPECT_EQ(form.Caption, "Project data");
        EXPECT_EQ(form.cmdSave.Caption, "&Save");
        EXPECT_EQ(form.cmdSaveAs.Caption, "Save &as...");
        EXPECT_EQ(form.cmdOpen.Caption, "&Load...");
        EXPECT_EQ(form.lblAuftrag.Caption, "Order");
        EXPECT_EQ(form.frmSelectOption.Caption, "Select item to calculate:");
    });
}

TEST_F(ProjectDialog, ANewProjectStartsEmptyWithTodayAndTheFirstProblem) {
    Session.Auftr = "left over";
    Session.ProblemType = Problem::ConsolidationRate;
    OnDialog([](frmProblemType& form) {
        const std::string today = TextTools().LongDateOfToday();
        EXPECT_EQ(form.txtAuftr.Text, "");
        EXPECT_EQ(form.txtDatum.Text, today);
        EXPECT_EQ(form.DTPicker1.Text, today);
        EXPECT_EQ(form.txtProj.Text, "");
        EXPECT_EQ(form.cmbItem.ListIndex, 0);
        EXPECT_EQ(form.cmbItem.Text, "1- Stresses in soil");
        EXPECT_FALSE(Session.DialogOk);
    });
}

TEST_F(ProjectDialog, TheProjectsDataAreShown) {
    HaveProject(10);
    OnDialog([this](frmProblemType& form) {
        EXPECT_EQ(form.txtAuftr.Text, "Order P1");
        EXPECT_EQ(form.txtDatum.Text, "1 May");
        EXPECT_EQ(form.txtProj.Text, "House P1");
        EXPECT_EQ(form.cmbItem.ListIndex, 7);
        EXPECT_EQ(Session.WorkDir, DataDir());
        EXPECT_EQ(Session.WorkName, "P1");
    });
}

TEST_F(ProjectDialog, AProjectWithoutAHeadingFileKeepsItsProblem) {
    for (const bool projectFile : {true, false}) {
        HaveProject(10);
        Session.ProblemType = Problem::RaftConsolidation;
        Session.Auftr = "of another project";
        std::filesystem::remove(DataFile("P1.AUF"));
        if (!projectFile) std::filesystem::remove(DataFile("P1.PO3"));
        SetProblemSaved(0, false);
        OnDialog([](frmProblemType& form) {
            EXPECT_EQ(form.txtAuftr.Text, "");
            EXPECT_EQ(form.txtProj.Text, "");
            EXPECT_EQ(form.cmbItem.ListIndex, 7);
            Click(form, "cmdSave");
        });
        EXPECT_EQ(ReadBytes(DataFile("P1.PO3")), Lines({"Version 9", "10", "0"}));
    }
    EXPECT_THAT(host.Messages, IsEmpty());
}

// A damaged file must not make the dialog's save write a problem that nobody chose.
TEST_F(ProjectDialog, AProjectWithDamagedFilesKeepsItsProblem) {
    for (const char* damaged : {"P1.AUF", "P1.PO3"}) {
        HaveProject(10);
        Session.ProblemType = Problem::RaftConsolidation;
        WriteBytes(DataFile(damaged), "x\r\n");
        host.Messages.clear();
        OnDialog([](frmProblemType& form) {
            EXPECT_EQ(form.cmbItem.ListIndex, 7);
            Click(form, "cmdSave");
        });
        EXPECT_EQ(host.Messages.size(), 1u) << damaged;
        EXPECT_EQ(ReadBytes(DataFile("P1.PO3")), Lines({"Version 9", "10", "0"})) << damaged;
    }
}

TEST_F(ProjectDialog, EachProblemHasItsRow) {
    const std::map<int, int> rows = {{1, 0}, {2, 1}, {3, 2}, {4, 3}, {5, 4}, {6, 5}, {7, 5}, {8, 5}, {9, 6}, {10, 7}};
    for (const auto& [problem, row] : rows) {
        HaveProject(problem);
        OnDialog([row = row](frmProblemType& form) { EXPECT_EQ(form.cmbItem.ListIndex, row); });
    }
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(ProjectDialog, EachRowStoresItsProblem) {
    const std::vector<int> problems = {1, 2, 3, 4, 5, 6, 9, 10};
    for (int row = 0; row < 8; ++row) {
        HaveProject(1);
        OnDialog([row](frmProblemType& form) {
            Select(form, "cmbItem", row);
            Click(form, "cmdSave");
        });
        EXPECT_EQ(Session.ProblemType, problems[static_cast<std::size_t>(row)]) << row;
        EXPECT_EQ(ReadBytes(DataFile("P1.PO3")),
                  Lines({"Version 9", std::to_string(problems[static_cast<std::size_t>(row)]).c_str(), "0"}));
    }
}

TEST_F(ProjectDialog, TheTimeSettlementFamilyKeepsItsMethod) {
    for (const int problem : {6, 7, 8}) {
        HaveProject(problem);
        OnDialog([](frmProblemType& form) {
            Select(form, "cmbItem", 5);
            Click(form, "cmdSave");
        });
        EXPECT_EQ(Session.ProblemType, problem);
        EXPECT_THAT(VisibleProblems(), ElementsAre(0, 6));
    }
}

// --- the date ---

TEST_F(ProjectDialog, ThePickerWritesALongDate) {
    OnDialog([](frmProblemType& form) {
        Type(form, "DTPicker1", "2026-11-21");
        EXPECT_EQ(form.txtDatum.Text, "Saturday, November 21, 2026");
        Type(form, "DTPicker1", "no date");
        EXPECT_EQ(form.txtDatum.Text, "Saturday, November 21, 2026");
    });
}

TEST_F(ProjectDialog, ThePickerTakesTheProjectsDateAndLeavesATextThatIsNone) {
    HaveProject(1);
    OnDialog([](frmProblemType& form) { EXPECT_EQ(form.DTPicker1.Text, TextTools().LongDateOfToday()); });
    WriteBytes(DataFile("P1.AUF"), Lines({"A", "17.5.2024", "C"}));
    OnDialog([](frmProblemType& form) {
        EXPECT_EQ(form.txtDatum.Text, "17.5.2024");
        EXPECT_EQ(form.DTPicker1.Text, "Friday, May 17, 2024");
    });
}

// --- Enter ---

TEST_F(ProjectDialog, EnterMovesOnAndSavesAtTheEnd) {
    HaveProject(1);
    OnDialog([](frmProblemType& form) {
        PressEnter(form, "txtAuftr");
        EXPECT_EQ(form.Focus, &form.txtDatum);
        PressEnter(form, "txtDatum");
        EXPECT_EQ(form.Focus, &form.txtProj);
        Type(form, "txtProj", "Turm");
        PressEnter(form, "txtProj");
        EXPECT_TRUE(form.Unloaded());
        EXPECT_TRUE(Session.DialogOk);
    });
    EXPECT_EQ(ReadBytes(DataFile("P1.AUF")), Lines({"Order P1", "1 May", "Turm"}));
}

// --- save ---

TEST_F(ProjectDialog, ASaveOfAnOpenProjectAsksForNoName) {
    HaveProject(1);
    OnDialog([](frmProblemType& form) {
        Session.WorkDir = "/elsewhere/";  // as opening another file leaves it
        Session.WorkName = "other";
        Select(form, "cmbItem", 3);
        Click(form, "cmdSave");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_TRUE(Session.FileSaved);
    EXPECT_EQ(Session.WorkName, "P1");
    EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
    EXPECT_TRUE(Enabled("mnuMainProblem"));
    EXPECT_THAT(VisibleProblems(), ElementsAre(0, 4));
    EXPECT_TRUE(ProblemSaved(0));
    EXPECT_THAT(host.SaveQuestions, IsEmpty());
}

TEST_F(ProjectDialog, AProjectWithoutANameIsAskedForOne) {
    OnDialog([this](frmProblemType& form) {
        Session.FileSaved = true;  // from another dialog
        host.AnswerFileToSave(std::nullopt);
        Click(form, "cmdSave");
        EXPECT_FALSE(form.Unloaded());
        EXPECT_EQ(Session.ProjectName, "");
        host.AnswerFileToSave(DataFile("Turm.PO3"));
        Click(form, "cmdSave");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_EQ(Session.ProjectName, "Turm");
    EXPECT_EQ(Session.DataDir, DataDir());
    EXPECT_TRUE(Session.DialogOk);
    EXPECT_THAT(DataFiles(), ElementsAre("Turm.AUF", "Turm.PO3"));
    EXPECT_EQ(host.SaveQuestions.back().Pattern, "PO3");
}

// The problems 1 to 3 share a data file, and a project may have been calculated as another problem before.
TEST_F(ProjectDialog, AfterASaveTheChosenProblemIsTickedExactlyWhenItsDataFileExists) {
    WriteStressProject("P1");
    WriteBytes(DataFile("P1.RDE"), "");
    const std::map<int, std::vector<int>> ticks = {{0, {0, 1}}, {1, {0, 2}}, {2, {0, 3}}, {3, {0}},
                                                   {4, {0}},    {5, {0}},    {6, {0, 7}}, {7, {0}}};
    Session.ProjectName = "P1";
    SetProblemSaved(0, true);
    for (const auto& [row, expected] : ticks) {
        OnDialog([row = row](frmProblemType& form) {
            Select(form, "cmbItem", row);
            Click(form, "cmdSave");
        });
        EXPECT_EQ(TickedProblems(), expected) << row;
    }
}

TEST_F(ProjectDialog, ANewProjectOverAnOldOneFindsItsDataFile) {
    WriteStressProject("Old");
    OnDialog([this](frmProblemType& form) {
        Select(form, "cmbItem", 1);
        host.AnswerFileToSave(DataFile("Old.PO3"));
        Click(form, "cmdSave");
    });
    EXPECT_THAT(TickedProblems(), ElementsAre(0, 2));
    EXPECT_EQ(Session.ProjectFile, DataFile("Old.PO3"));
}

TEST_F(ProjectDialog, ASaveOverAPackedProjectUnpacksItAndLosesNothingOfIt) {
    WriteStressProject("Old");
    const std::string data = ReadBytes(DataFile("Old.SSD"));
    ASSERT_TRUE(ProjectStore().PackProject(DataFile("Old"), 7, "", ".po3"));
    OnDialog([this](frmProblemType& form) {
        host.AnswerFileToSave(DataFile("Old.PO3"));
        Click(form, "cmdSave");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_EQ(ReadBytes(DataFile("Old.SSD")), data);
}

TEST_F(ProjectDialog, ADamagedArchiveIsNotReplacedByASave) {
    const std::string archive = "PK\x03\x04 broken";
    WriteBytes(DataFile("Old.PO3"), archive);
    OnDialog([&](frmProblemType& form) {
        host.AnswerFileToSave(DataFile("Old.PO3"));
        Click(form, "cmdSave");
        EXPECT_FALSE(form.Unloaded());
        EXPECT_EQ(Session.ProjectName, "");
    });
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_EQ(ReadBytes(DataFile("Old.PO3")), archive);
    EXPECT_THAT(DataFiles(), ElementsAre("Old.PO3"));  // no heading file either
}

TEST_F(ProjectDialog, ASaveThatFailsLeavesTheDialogAndAsksForAnotherNameNext) {
    std::filesystem::create_directory(DataFile("Turm.PO3"));
    OnDialog([this](frmProblemType& form) {
        host.AnswerFileToSave(DataFile("Turm.PO3"));
        Click(form, "cmdSave");
        EXPECT_FALSE(form.Unloaded());
        EXPECT_EQ(host.Messages.size(), 1u);
        EXPECT_EQ(Session.ProjectName, "");
        host.AnswerFileToSave(DataFile("Haus.PO3"));
        Click(form, "cmdSave");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_EQ(Session.ProjectName, "Haus");
}

TEST_F(ProjectDialog, SaveAsWritesACopyAndStaysWithTheProject) {
    HaveProject(2);
    OnDialog([this](frmProblemType& form) {
        Type(form, "txtProj", "Kopie");
        host.AnswerFileToSave(DataFile("Q"));
        Click(form, "cmdSaveAs");
        EXPECT_FALSE(form.Unloaded());
        EXPECT_EQ(Session.ProjectName, "P1");
        EXPECT_EQ(host.SaveQuestions.back().Name, "P1");
        Click(form, "CmdCancel");
    });
    EXPECT_EQ(ReadBytes(DataFile("Q.AUF")), Lines({"Order P1", "1 May", "Kopie"}));
    EXPECT_EQ(ReadBytes(DataFile("Q.PO3")), Lines({"Version 9", "2", "0"}));
    EXPECT_EQ(ReadBytes(DataFile("P1.AUF")), Lines({"Order P1", "1 May", "House P1"}));
}

// --- open ---

TEST_F(ProjectDialog, AnotherProjectsDataCanBeLoaded) {
    HaveProject(2);
    WriteProject("Q", 9);
    OnDialog([this](frmProblemType& form) {
        host.AnswerFileToOpen(DataFile("Q.PO3"));
        Click(form, "cmdOpen");
        EXPECT_EQ(form.txtAuftr.Text, "Order Q");
        EXPECT_EQ(form.cmbItem.ListIndex, 6);
        EXPECT_EQ(host.OpenQuestions.back().Pattern, "*.PO3");
        Click(form, "cmdSave");
    });
    EXPECT_EQ(ReadBytes(DataFile("P1.PO3")), Lines({"Version 9", "9", "0"}));
    EXPECT_EQ(ReadBytes(DataFile("P1.AUF")), Lines({"Order Q", "1 May", "House Q"}));
}

TEST_F(ProjectDialog, AnotherProjectWithoutAHeadingGivesItsProblemAndAnEmptyHeading) {
    HaveProject(2);
    WriteBytes(DataFile("bare.PO3"), Lines({"Version 9", "9", "0"}));
    OnDialog([this](frmProblemType& form) {
        host.AnswerFileToOpen(DataFile("bare.PO3"));
        Click(form, "cmdOpen");
        EXPECT_EQ(form.txtAuftr.Text, "");
        EXPECT_EQ(form.cmbItem.ListIndex, 6);
    });
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(ProjectDialog, AnOpenThatIsCancelledOrFailsChangesNothing) {
    HaveProject(2);
    WriteProject("damaged", 9);
    WriteBytes(DataFile("damaged.PO3"), Lines({"Version 9", "nine"}));
    WriteBytes(DataFile("packed.PO3"), "PK\x03\x04 broken");
    OnDialog([this](frmProblemType& form) {
        Type(form, "txtProj", "typed");
        host.AnswerFileToOpen(std::nullopt);
        Click(form, "cmdOpen");
        for (const char* file : {"damaged.PO3", "packed.PO3", "missing.PO3"}) {
            host.AnswerFileToOpen(DataFile(file));
            Click(form, "cmdOpen");
            EXPECT_EQ(form.txtAuftr.Text, "Order P1");
            EXPECT_EQ(form.txtProj.Text, "typed");
            EXPECT_EQ(form.cmbItem.ListIndex, 1);
            EXPECT_EQ(Session.WorkName, "P1");
        }
        EXPECT_EQ(host.Messages.size(), 2u);
        Click(form, "cmdSave");
    });
    EXPECT_EQ(ReadBytes(DataFile("P1.PO3")), Lines({"Version 9", "2", "0"}));
    EXPECT_EQ(ReadBytes(DataFile("damaged.PO3")), Lines({"Version 9", "nine"}));
    EXPECT_EQ(ReadBytes(DataFile("packed.PO3")), "PK\x03\x04 broken");
}

TEST_F(ProjectDialog, APackedProjectIsUnpackedBeforeItsDataAreLoaded) {
    HaveProject(2);
    WriteStressProject("Q");
    WriteProject("Q", 3);
    ASSERT_TRUE(ProjectStore().PackProject(DataFile("Q"), 7, "", ".po3"));
    OnDialog([this](frmProblemType& form) {
        host.AnswerFileToOpen(DataFile("Q.PO3"));
        Click(form, "cmdOpen");
        EXPECT_EQ(form.txtAuftr.Text, "Order Q");
        EXPECT_EQ(form.cmbItem.ListIndex, 2);
    });
    EXPECT_TRUE(std::filesystem::exists(DataFile("Q.SSD")));
    EXPECT_THAT(host.Messages, IsEmpty());
}

// Which project is open, the dialog's way to other files does not change.
TEST_F(ProjectDialog, LoadingFromAndSavingToOtherProjectsLeavesTheOpenOne) {
    HaveProject(2);
    WriteProject("Q", 9);
    Session.ProjectFile = DataFile("P1.PO3");
    OnDialog([this](frmProblemType& form) {
        host.AnswerFileToOpen(DataFile("Q.PO3"));
        Click(form, "cmdOpen");
        host.AnswerFileToSave(DataFile("R"));
        Click(form, "cmdSaveAs");
        Click(form, "CmdCancel");
    });
    EXPECT_EQ(Session.ProjectFile, DataFile("P1.PO3"));
    EXPECT_EQ(Session.ProjectName, "P1");
}

// --- cancel ---

TEST_F(ProjectDialog, CancelKeepsTheProjectsData) {
    HaveProject(2);
    Session.ProblemType = Problem::SoilStrain;
    Session.Auftr = "Order P1";
    WriteProject("Q", 9);
    OnDialog([this](frmProblemType& form) {
        host.AnswerFileToOpen(DataFile("Q.PO3"));
        Click(form, "cmdOpen");
        Session.DialogOk = true;
        Click(form, "CmdCancel");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_FALSE(Session.DialogOk);
    EXPECT_EQ(Session.ProblemType, Problem::SoilStrain);
    EXPECT_EQ(Session.Auftr, "Order P1");
    EXPECT_EQ(ReadBytes(DataFile("P1.PO3")), Lines({"Version 9", "2", "0"}));
}

// --- help ---

TEST_F(ProjectDialog, HelpEndsEachLineInAReturn) {
    OnDialog([this](frmProblemType& form) {
        Click(form, "cmdHelp");
        EXPECT_EQ(host.HelpTexts.back().Title, "Project data");
        EXPECT_EQ(host.HelpTexts.back().Text,
                  "In the menu, the problem type is defined. There are 11 different\r"
                  "calculation problems are available for studying\r"
                  "soil-structure interaction. Choose one of the calculation\rproblems.\r");
        LanguageTexts().SetCurrent(Language::German);
        Click(form, "cmdHelp");
        EXPECT_EQ(host.HelpTexts.back().Text,
                  "Im Menü wird der Problemtyp festgelegt. Es gibt\r"
                  "11 verschiedene Berechnungen. Hier wählen Sie eine Berechnung\r"
                  "für die Untersuchung der Interaktion Boden/ Bauwerk insgesamt\rzu untersuchen.\r");
        LanguageTexts().SetCurrent(Language::Arabic);
        Click(form, "cmdHelp");
        EXPECT_EQ(host.HelpTexts.back().Text,
                  "في هذه القائمة يتم تحديد نوع المسألة.\rيتاح 11 من المسائل الحسابية المختلفة لدراسة\r"
                  "رد الفعل التبادلي بين التربة و المنشأ.\rاختار واحدة من هذه المسائل.\r");
    });
}

// --- the list of missing data ---

class ProjectCheckDialog : public FormTest {
  protected:
    void OnDialog(std::function<void(frmProjectCheck&)> script) {
        frmProjectCheck form("Lithmark - [P1]", "Stresses in soil\r\n");
        host.OnForm<frmProjectCheck>(std::move(script));
        CurrentHost().ShowForm(form);
    }
};

TEST_F(ProjectCheckDialog, CaptionsComeByTheirNumbers) {
    LanguageTexts().SetCurrent(Language::Ids);
    OnDialog([](frmProjectCheck& form) {
        EXPECT_EQ(form.Caption, "Lithmark - [P1]");
        EXPECT_EQ(form.fraProjectCheck.Caption, "T<60001>");
        EXPECT_EQ(form.lblProjectCheck.Caption, "T<10018>");
        EXPECT_EQ(form.cmdok.Caption, "T<6>");
        EXPECT_EQ(form.CmdCancel.Caption, "T<7>");
        EXPECT_EQ(form.cmdHelp.Caption, "T<8>");
        EXPECT_EQ(form.txtProjectCheck.Text, "Stresses in soil\r\n");
        EXPECT_TRUE(form.txtProjectCheck.ReadOnly);
    });
}

TEST_F(ProjectCheckDialog, TheAnswerIsDialogOk) {
    OnDialog([](frmProjectCheck& form) { Click(form, "cmdok"); });
    EXPECT_TRUE(Session.DialogOk);
    OnDialog([](frmProjectCheck& form) { Click(form, "CmdCancel"); });
    EXPECT_FALSE(Session.DialogOk);
}

TEST_F(ProjectCheckDialog, HelpEndsEachLineInAReturn) {
    OnDialog([this](frmProjectCheck& form) {
        Click(form, "cmdHelp");
        EXPECT_EQ(host.HelpTexts.back().Title, "Lithmark - [P1]");
        EXPECT_EQ(host.HelpTexts.back().Text,
                  "The menu shows the project data, that are not defined.\rThese data are important for analysis.\r");
        LanguageTexts().SetCurrent(Language::German);
        Click(form, "cmdHelp");
        EXPECT_EQ(host.HelpTexts.back().Text,
                  "Dieses Menü zeigt die Projektdaten an, die nicht eingegeben werden.\r"
                  "Diese Daten sind für die Berechnung wichtig.\r");
        LanguageTexts().SetCurrent(Language::Arabic);
        Click(form, "cmdHelp");
        EXPECT_EQ(host.HelpTexts.back().Text,
                  "من خلال هذه القائمة يتم عرض معطيات المشروع التي لم تُعرف بعد.\r"
                  "هذه المعطيات مطلوبة لإجراء الحسابات.\r");
    });
}

}  // namespace
}  // namespace lithmark::tests
