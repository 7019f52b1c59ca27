// The life of a project in the frame: new, open, check, packed and plain.
#include <map>
#include <string>

#include "FrameTest.h"
#include "support/Matchers.h"
#include "ui/frmstress.h"

namespace lithmark::tests {
namespace {

class FrameProject : public FrameTest {
  protected:
    FrameProject() { Start(); }
};

// --- the whole life ---

TEST_F(FrameProject, FromNewThroughSaveToReopening) {
    host.OnForm<frmProblemType>([this](frmProblemType& form) {
        EXPECT_EQ(form.cmbItem.ListIndex, 0);
        Type(form, "txtAuftr", "A 17");
        Type(form, "txtDatum", "2024-05-17");
        Type(form, "txtProj", "Halle");
        Select(form, "cmbItem", 1);  // strains
        host.AnswerFileToSave(DataFile("Halle"));
        Click(form, "cmdSave");
        EXPECT_TRUE(form.Unloaded());
    });
    frame.m_cMenu_Click("mnuNewProject");
    EXPECT_EQ(frame.Caption, "Lithmark - [Halle]");
    EXPECT_EQ(Session.ProjectName, "Halle");
    EXPECT_EQ(Session.DataDir, DataDir());
    EXPECT_EQ(ReadBytes(DataFile("Halle.PO3")), Lines({"Version 9", "2", "0"}));
    EXPECT_EQ(ReadBytes(DataFile("Halle.AUF")), Lines({"A 17", "2024-05-17", "Halle"}));
    EXPECT_TRUE(Enabled("mnuMainProblem"));
    EXPECT_TRUE(Enabled("mnuSaveProjectAs"));
    EXPECT_THAT(VisibleProblems(), ElementsAre(0, 2));
    EXPECT_THAT(TickedProblems(), ElementsAre(0));
    EXPECT_THAT(Recent(), ElementsAre(DataFile("Halle.PO3")));
    EXPECT_THAT(frame.Summary().MissingData, ElementsAre("Strains in soil"));

    host.OnForm<frmstress>([](frmstress& form) {
        EXPECT_EQ(form.Caption, "Strains in soil");
        Type(form, "txt_z", "2.5");
        Click(form, "cmdSave");
        Click(form, "cmdok");
    });
    frame.m_cMenu_Click("mnuProblem(2)");
    EXPECT_THAT(TickedProblems(), ElementsAre(0, 2));
    EXPECT_THAT(frame.Summary().MissingData, IsEmpty());

    MDITools next;
    next.SetClock([this] { return now; });
    next.Start(DataFile("Halle.PO3"));
    EXPECT_EQ(next.Caption, "Lithmark - [Halle]");
    EXPECT_EQ(Session.ProblemType, Problem::SoilStrain);
    EXPECT_EQ(Session.Auftr, "A 17");
    EXPECT_EQ(Session.Proj, "Halle");
    host.OnForm<frmstress>([](frmstress& form) { EXPECT_EQ(form.txt_z.Text, "2.50"); });
    next.m_cMenu_Click("mnuProblem(2)");
    EXPECT_THAT(host.Messages, IsEmpty());
}

// --- new ---

TEST_F(FrameProject, ACancelledNewProjectLeavesNone) {
    OpenStressProject("P1");
    host.OnForm<frmProblemType>([](frmProblemType& form) {
        EXPECT_EQ(form.txtAuftr.Text, "");  // nothing of the old project
        Click(form, "CmdCancel");
    });
    frame.m_cMenu_Click("mnuNewProject");
    EXPECT_EQ(Session.ProjectName, "");
    EXPECT_EQ(frame.Caption, "Lithmark - [Untitled]");
    EXPECT_EQ(Session.WorkDir, DataDir());
    EXPECT_FALSE(Enabled("mnuMainProblem"));
    EXPECT_FALSE(Enabled("mnuSaveProjectAs"));
    EXPECT_THAT(TickedProblems(), IsEmpty());
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P1.PO3")));
}

TEST_F(FrameProject, ADialogClosedAtItsCornerCountsAsCancelled) {
    OpenStressProject("P1");
    host.OnForm<frmProblemType>([](frmProblemType& form) { form.Unload(); });
    frame.m_cMenu_Click("mnuNewProject");
    EXPECT_FALSE(Session.DialogOk);
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P1.PO3")));
}

TEST_F(FrameProject, StayingAtANewProjectLeavesTheFrameAsItWas) {
    WriteProject("P1", 1);
    GoOn();
    OpenByDialog("P1.PO3");
    Stay();
    frame.m_cMenu_Click("mnuNewProject");
    EXPECT_EQ(Session.ProjectName, "P1");
    EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
    EXPECT_TRUE(Enabled("mnuMainProblem"));
    EXPECT_TRUE(Enabled("mnuSaveProjectAs"));
    EXPECT_THAT(VisibleProblems(), ElementsAre(0, 1));
    EXPECT_THAT(host.FormsShown, ElementsAre("frmProjectCheck", "frmProjectCheck"));
}

TEST_F(FrameProject, ANewProjectLeavesTheOldOnePlain) {
    OpenStressProject("P1");
    Session.CompressFlag = 7;
    host.OnForm<frmProblemType>([](frmProblemType& form) { Click(form, "CmdCancel"); });
    frame.m_cMenu_Click("mnuNewProject");
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD"));
}

// --- open ---

TEST_F(FrameProject, OpeningReadsTheProblemAndTheHeading) {
    OpenStressProject("P1");
    EXPECT_EQ(Session.ProblemType, Problem::SoilStress);
    EXPECT_EQ(Session.Auftr, "Order P1");
    EXPECT_EQ(Session.Datum, "1 May");
    EXPECT_EQ(Session.Proj, "House P1");
    EXPECT_EQ(Session.ProjectFile, DataFile("P1.PO3"));
    EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
    EXPECT_THAT(VisibleProblems(), ElementsAre(0, 1));
    EXPECT_THAT(TickedProblems(), ElementsAre(0, 1));
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P1.PO3")));
    EXPECT_TRUE(Enabled("mnuSaveProjectAs"));
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
    EXPECT_THAT(host.FormsShown, IsEmpty());
    EXPECT_EQ(host.OpenQuestions.back().Pattern, "*.PO3");
    EXPECT_EQ(host.OpenQuestions.back().StartDir, DataDir());
}

TEST_F(FrameProject, EachProblemShowsItsOwnEntryAndLooksForItsOwnFile) {
    const std::map<int, std::pair<int, const char*>> rows = {
        {1, {1, "SSD"}}, {2, {2, "SSD"}}, {3, {3, "SSD"}}, {4, {4, "CON"}},  {5, {5, "RAT"}}, {6, {6, "TST"}},
        {7, {6, "TST"}}, {8, {6, "TST"}}, {9, {7, "RDE"}}, {10, {8, "RCO"}}, {11, {9, "SC1"}}};
    for (const auto& [problem, row] : rows) {
        const std::string name = "P" + std::to_string(problem);
        WriteProject(name, problem);
        WriteBytes(DataFile(name + "." + row.second), "");
        OpenByDialog(name + ".PO3");
        EXPECT_EQ(Session.ProblemType, problem);
        EXPECT_THAT(VisibleProblems(), ElementsAre(0, row.first)) << name;
        EXPECT_THAT(TickedProblems(), ElementsAre(0, row.first)) << name;
    }
    EXPECT_THAT(host.FormsShown, IsEmpty());
}

TEST_F(FrameProject, FilesOfLowerCaseExtensionsAreFound) {
    WriteBytes(DataFile("P1.po3"), Lines({"Version 9", "3", "0"}));
    WriteBytes(DataFile("P1.auf"), Lines({"A", "B", "C"}));
    WriteBytes(DataFile("P1.ssd"), Lines({"1", "2", "3", "900", "10", "6", "7", ".3", "5000", "1"}));
    OpenByDialog("P1.po3");
    EXPECT_EQ(Session.ProblemType, Problem::SoilDisplacement);
    EXPECT_EQ(Session.Proj, "C");
    EXPECT_THAT(TickedProblems(), ElementsAre(0, 3));
    EXPECT_THAT(DataFiles(), ElementsAre("P1.auf", "P1.po3", "P1.ssd"));
}

TEST_F(FrameProject, AFileOfAnotherExtensionOpensNothing) {
    OpenStressProject("P1");
    Session.CompressFlag = 7;
    WriteBytes(DataFile("note.txt"), Lines({"Version 9", "4", "0"}));
    OpenByDialog("note.txt");
    EXPECT_EQ(Session.ProjectName, "P1");
    EXPECT_EQ(Session.ProblemType, Problem::SoilStress);
    EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P1.PO3")));
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD", "note.txt"));

    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(FrameProject, ACancelledOpenChangesNothing) {
    OpenStressProject("P1");
    host.AnswerFileToOpen(std::nullopt);
    frame.m_cMenu_Click("mnuOpenProject");
    EXPECT_EQ(Session.ProjectName, "P1");
    EXPECT_THAT(TickedProblems(), ElementsAre(0, 1));
}

TEST_F(FrameProject, AProjectWithoutAHeadingFileHasNoneOfTheProjectBefore) {
    OpenStressProject("P1");
    WriteStressProject("P2");
    std::filesystem::remove(DataFile("P2.AUF"));
    OpenByDialog("P2.PO3");
    EXPECT_EQ(Session.Auftr, "");
    EXPECT_EQ(Session.Proj, "");
    EXPECT_THAT(TickedProblems(), ElementsAre(1));
    EXPECT_THAT(host.FormsShown, IsEmpty());  // a missing heading file is on no list
}

TEST_F(FrameProject, AProblemNumberThatDoesNotExistShowsNoProblem) {
    WriteProject("P1", 12);
    OpenByDialog("P1.PO3");
    EXPECT_THAT(VisibleProblems(), ElementsAre(0));
    EXPECT_EQ(frame.Summary().Problem, "");
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(FrameProject, AProjectOfProblem11FailsInTheProjectDialogAndKeepsItsHeading) {
    WriteProject("P1", 11);
    WriteBytes(DataFile("P1.SC1"), "");
    OpenByDialog("P1.PO3");
    host.OnForm<frmProblemType>([this](frmProblemType& form) {
        EXPECT_EQ(host.Messages.size(), 1u);
        EXPECT_EQ(host.LastMessage().Text, Text(900015_text));  // a subscript out of range
        EXPECT_EQ(form.cmbItem.ListIndex, -1);
        EXPECT_EQ(form.txtAuftr.Text, "Order P1");
        Click(form, "cmdSave");
    });
    frame.m_cMenu_Click("mnuProblem(0)");
    EXPECT_EQ(ReadBytes(DataFile("P1.PO3")), Lines({"Version 9", "11", "0"}));
    EXPECT_EQ(ReadBytes(DataFile("P1.AUF")), Lines({"Order P1", "1 May", "House P1"}));
}

// --- what is missing ---

TEST_F(FrameProject, OpeningTellsWhatIsMissing) {
    WriteProject("P1", 9);
    host.OnForm<frmProjectCheck>([](frmProjectCheck& form) {
        EXPECT_EQ(form.Caption, "Lithmark - [P1]");
        EXPECT_EQ(form.txtProjectCheck.Text, Text(140189_text) + "\r\n");
        EXPECT_TRUE(form.txtProjectCheck.ReadOnly);
        Click(form, "cmdok");
    });
    OpenByDialog("P1.PO3");
    EXPECT_THAT(TickedProblems(), ElementsAre(0));
    EXPECT_EQ(Session.ProjectName, "P1");
}

TEST_F(FrameProject, AtOpeningTheAnswerChangesNothing) {
    WriteProject("P1", 1);
    Stay();
    OpenByDialog("P1.PO3");
    EXPECT_EQ(Session.ProjectName, "P1");
    EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
}

TEST_F(FrameProject, LeavingAnIncompleteProjectAsksAndObeys) {
    WriteProject("P1", 1);
    WriteStressProject("P2");
    GoOn();
    OpenByDialog("P1.PO3");
    Stay();
    frame.m_cMenu_Click("mnuOpenProject");  // no file is asked for
    EXPECT_EQ(Session.ProjectName, "P1");
    GoOn();
    OpenByDialog("P2.PO3");
    EXPECT_EQ(Session.ProjectName, "P2");
}

TEST_F(FrameProject, TheCheckAsksForTheEndOnlyWhenItIsToAsk) {
    OpenStressProject("P1");
    bool ok = false;
    frame.ProjectCheck(0, ok);
    EXPECT_TRUE(ok);
    EXPECT_THAT(host.Questions, IsEmpty());

    host.AnswerYesNo(false);
    frame.ProjectCheck(1, ok);
    EXPECT_FALSE(ok);
    EXPECT_FALSE(Session.DialogOk);
    host.AnswerYesNo(true);
    frame.ProjectCheck(1, ok);
    EXPECT_TRUE(ok);
    EXPECT_TRUE(Session.DialogOk);
}

TEST_F(FrameProject, TheCheckPutsTheProjectIntoTheRecentFiles) {
    Session.ProjectName = "P9";
    frame.SetProblemMenu();
    bool ok = true;
    Stay();
    frame.ProjectCheck(0, ok);
    EXPECT_FALSE(ok);
    EXPECT_THAT(Recent(), IsEmpty());
    GoOn();
    frame.ProjectCheck(0, ok);
    EXPECT_TRUE(ok);
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P9.PO3")));
}

TEST_F(FrameProject, TheSummarySaysWhatIsOpenAndWhatIsMissing) {
    WriteProject("P1", 4);
    GoOn();
    OpenByDialog("P1.PO3");
    const ProjectSummary summary = frame.Summary();
    EXPECT_TRUE(frame.ProjectOpen());
    EXPECT_EQ(summary.Name, "P1");
    EXPECT_EQ(summary.Directory, DataDir());
    EXPECT_EQ(summary.Problem, "Consolidation settlement");
    EXPECT_EQ(summary.ProblemEntry, 4);
    EXPECT_EQ(summary.Order, "Order P1");
    EXPECT_EQ(summary.Date, "1 May");
    EXPECT_EQ(summary.Project, "House P1");
    EXPECT_THAT(summary.MissingData, ElementsAre("Consolidation settlement"));
}

// --- packed ---

TEST_F(FrameProject, WithPackingOnTheProjectThatIsLeftIsPackedAndComesBack) {
    Session.CompressFlag = 7;
    OpenStressProject("P1");
    const std::string data = ReadBytes(DataFile("P1.SSD"));
    OpenStressProject("P2");
    EXPECT_THAT(DataFiles(), ElementsAre("P1.PO3", "P2.AUF", "P2.PO3", "P2.SSD"));
    OpenByDialog("P1.PO3");
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD", "P2.PO3"));
    EXPECT_EQ(ReadBytes(DataFile("P1.SSD")), data);
    EXPECT_EQ(Session.Proj, "House P1");
    EXPECT_THAT(TickedProblems(), ElementsAre(0, 1));
}

TEST_F(FrameProject, OpeningTheOpenProjectAgainPacksNothing) {
    Session.CompressFlag = 7;
    OpenStressProject("P1");
    OpenByDialog("P1.PO3");
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD"));
}

// --- comparison ---

class FrameComparison : public FrameTest {
  protected:
    FrameComparison() {
        Start();
        WriteStressProject("P2");
        WriteProject("P3", 2);
        WriteBytes(DataFile("P3.SSD"), ReadBytes(DataFile("P2.SSD")));
    }
};

TEST_F(FrameComparison, TheOpenProjectIsHeldAgainstAnotherOne) {
    OpenStressProject("P1");
    host.AnswerFileToOpen(DataFile("P2.PO3"));
    frame.m_cMenu_Click("mnuCompare");
    EXPECT_EQ(host.OpenQuestions.back().Title, "Compare with \"P1\"");
    ASSERT_EQ(window.Compared.size(), 1u);
    EXPECT_EQ(window.Compared[0].NameOfOne, "P1");
    EXPECT_EQ(window.Compared[0].NameOfOther, "P2");
    EXPECT_EQ(Session.ProjectName, "P1");
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
}

TEST_F(FrameComparison, WithoutAnOpenProjectBothAreAskedFor) {
    WriteStressProject("P1");
    host.AnswerFileToOpen(DataFile("P2.PO3"));
    host.AnswerFileToOpen(DataFile("P1.PO3"));
    frame.m_cMenu_Click("mnuCompare");
    EXPECT_EQ(host.OpenQuestions[0].Title, "First project");
    ASSERT_EQ(window.Compared.size(), 1u);
    EXPECT_EQ(window.Compared[0].NameOfOne, "P2");
    EXPECT_FALSE(frame.ProjectOpen());
}

TEST_F(FrameComparison, ACancelledQuestionComparesNothing) {
    host.AnswerFileToOpen(std::nullopt);
    frame.m_cMenu_Click("mnuCompare");
    OpenStressProject("P1");
    host.AnswerFileToOpen(std::nullopt);
    frame.m_cMenu_Click("mnuCompare");
    EXPECT_TRUE(window.Compared.empty());
    EXPECT_TRUE(host.Messages.empty());
}

TEST_F(FrameComparison, WhatCannotBeComparedIsToldByName) {
    OpenStressProject("P1");
    host.AnswerFileToOpen(DataFile("P3.PO3"));
    frame.m_cMenu_Click("mnuCompare");
    EXPECT_THAT(host.LastMessage().Text, StartsWith(DataFile("P3.PO3")));
    EXPECT_TRUE(window.Compared.empty());
    EXPECT_EQ(Session.ProjectName, "P1");
    EXPECT_EQ(Session.ProblemType, Problem::SoilStress);
}

}  // namespace
}  // namespace lithmark::tests
