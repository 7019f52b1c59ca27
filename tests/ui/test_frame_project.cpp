// The life of a project in the frame: new, open, check, save under another name, packed and plain.
#include <map>
#include <string>
#include <vector>

#include "FrameTest.h"
#include "ui/frmstress.h"

using namespace lithmark;
using namespace lithmark::tests;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

class FrameProject : public FrameTest {
  protected:
    FrameProject() { Start(); }

    void OnCheck(std::function<void(frmProjectCheck&)> script) { host.OnForm<frmProjectCheck>(std::move(script)); }
    void GoOn() {
        OnCheck([](frmProjectCheck& form) { Click(form, "cmdok"); });
    }
    void Stay() {
        OnCheck([](frmProjectCheck& form) { Click(form, "CmdCancel"); });
    }
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
    EXPECT_EQ(Session.ProblemType, 2);
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

// The entries are disabled before the question is asked.
TEST_F(FrameProject, StayingWithAnIncompleteProjectKeepsItButDisablesItsMenu) {
    WriteProject("P1", 1);
    GoOn();
    OpenByDialog("P1.PO3");
    Stay();
    frame.m_cMenu_Click("mnuNewProject");
    EXPECT_EQ(Session.ProjectName, "P1");
    EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
    EXPECT_FALSE(Enabled("mnuMainProblem"));
    EXPECT_FALSE(Enabled("mnuSaveProjectAs"));
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
    EXPECT_EQ(Session.ProblemType, 1);
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
    EXPECT_EQ(Session.ProblemType, 3);
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
    EXPECT_EQ(Session.ProblemType, 1);
    EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P1.PO3")));
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD", "note.txt"));

    Session.ProjectFile = DataFile("note.txt");
    Session.ProjectName = "note";
    frame.OpenProject();
    EXPECT_EQ(Session.ProblemType, 1);
    EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
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

TEST_F(FrameProject, ADamagedProjectFileIsToldAndTheMenuStays) {
    OpenStressProject("P1");
    WriteBytes(DataFile("P2.PO3"), "Version 9\r\nabc\r\n");
    OpenByDialog("P2.PO3");
    ASSERT_EQ(host.Messages.size(), 1u);
    EXPECT_THAT(host.LastMessage().Text, HasSubstr("P2.PO3"));
    EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
    EXPECT_THAT(VisibleProblems(), ElementsAre(0, 1));
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
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
    OnCheck([](frmProjectCheck& form) {
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

TEST_F(FrameProject, ADamagedArchiveIsToldOnceAndLeftAlone) {
    const std::string archive = "PK\x03\x04 broken";
    WriteBytes(DataFile("P1.PO3"), archive);
    OpenByDialog("P1.PO3");
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_EQ(ReadBytes(DataFile("P1.PO3")), archive);
    EXPECT_FALSE(Enabled("mnuMainProblem"));
}

// --- save under another name ---

TEST_F(FrameProject, SaveAsCopiesTheFilesOfTheTickedEntries) {
    OpenStressProject("P1");
    WriteBytes(DataFile("P1.CON"), "of another problem");
    WriteBytes(DataFile("P1.TXT"), "of nobody");
    std::filesystem::create_directory(DataFile("sub"));
    host.AnswerFileToSave(DataFile("sub/Q"));
    frame.m_cMenu_Click("mnuSaveProjectAs");
    EXPECT_EQ(host.SaveQuestions.back().Name, "P1");
    EXPECT_EQ(host.SaveQuestions.back().StartDir, DataDir());
    EXPECT_EQ(ReadBytes(DataFile("sub/Q.PO3")), ReadBytes(DataFile("P1.PO3")));
    EXPECT_EQ(ReadBytes(DataFile("sub/Q.AUF")), ReadBytes(DataFile("P1.AUF")));
    EXPECT_EQ(ReadBytes(DataFile("sub/Q.SSD")), ReadBytes(DataFile("P1.SSD")));
    EXPECT_FALSE(std::filesystem::exists(DataFile("sub/Q.CON")));
    EXPECT_FALSE(std::filesystem::exists(DataFile("sub/Q.TXT")));
    EXPECT_EQ(Session.ProjectName, "Q");
    EXPECT_EQ(Session.DataDir, DataFile("sub/"));
    EXPECT_EQ(frame.Caption, "Lithmark - [Q]");
    EXPECT_THAT(Recent(), ElementsAre(DataFile("sub/Q.PO3"), DataFile("P1.PO3")));
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
}

TEST_F(FrameProject, SaveAsLeavesOutWhatIsNotTicked) {
    OpenStressProject("P1");
    SetProblemSaved(1, false);
    host.AnswerFileToSave(DataFile("Q.PO3"));
    frame.m_cMenu_Click("mnuSaveProjectAs");
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD", "Q.AUF", "Q.PO3"));
}

TEST_F(FrameProject, SaveAsKnowsTheFileOfEveryEntry) {
    const std::map<int, const char*> extensions = {{2, "SSD"}, {3, "SSD"}, {4, "CON"}, {5, "RAT"},
                                                   {6, "TST"}, {7, "RDE"}, {8, "RCO"}, {9, "SC1"}};
    for (const auto& [entry, extension] : extensions) {
        frame.NewProjectState();
        Session.ProjectName = "P1";
        WriteBytes(DataFile(std::string("P1.") + extension), extension);
        SetProblemSaved(entry, true);
        const std::string name = "Q" + std::to_string(entry);
        host.AnswerFileToSave(DataFile(name));
        frame.m_cMenu_Click("mnuSaveProjectAs");
        EXPECT_EQ(ReadBytes(DataFile(name + "." + extension)), extension);
        EXPECT_FALSE(std::filesystem::exists(DataFile(name + ".PO3")));
    }
}

TEST_F(FrameProject, SaveAsOntoTheSameNameChangesNothing) {
    OpenStressProject("P1");
    const auto time = std::filesystem::last_write_time(DataFile("P1.SSD"));
    host.AnswerFileToSave(DataFile("P1.PO3"));
    frame.m_cMenu_Click("mnuSaveProjectAs");
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD"));
    EXPECT_EQ(std::filesystem::last_write_time(DataFile("P1.SSD")), time);
    EXPECT_EQ(Session.ProjectName, "P1");
    EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P1.PO3")));
}

TEST_F(FrameProject, SaveAsDoesNothingWithoutAProjectOrWhenCancelled) {
    frame.m_cMenu_Click("mnuSaveProjectAs");
    EXPECT_THAT(host.SaveQuestions, IsEmpty());
    OpenStressProject("P1");
    host.AnswerFileToSave(std::nullopt);
    frame.m_cMenu_Click("mnuSaveProjectAs");
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD"));
}

TEST_F(FrameProject, SaveAsTellsAFileThatItCannotCopyAndCopiesTheOthers) {
    OpenStressProject("P1");
    std::filesystem::remove(DataFile("P1.AUF"));
    host.AnswerFileToSave(DataFile("Q"));
    frame.m_cMenu_Click("mnuSaveProjectAs");
    EXPECT_THAT(DataFiles(), ElementsAre("P1.PO3", "P1.SSD", "Q.PO3", "Q.SSD"));
    ASSERT_EQ(host.Messages.size(), 1u);
    EXPECT_THAT(host.LastMessage().Text, HasSubstr("P1.AUF"));
    EXPECT_EQ(Session.ProjectName, "Q");
}

TEST_F(FrameProject, TheFileListUnpacksTheOpenProject) {
    Session.CompressFlag = 7;
    OpenStressProject("P1");
    OpenStressProject("P2");
    Session.ProjectName = "P1";  // as if another program had packed the open project
    frame.m_cMenu_Click("mnuFileList");
    EXPECT_TRUE(std::filesystem::exists(DataFile("P1.SSD")));
}

// --- recent files ---

TEST_F(FrameProject, TheRecentFilesAreFourTheNewestFirst) {
    for (const char* name : {"P1", "P2", "P3", "P4", "P5"}) OpenStressProject(name);
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P5.PO3"), DataFile("P4.PO3"), DataFile("P3.PO3"), DataFile("P2.PO3")));
    EXPECT_TRUE(frame.Menu["MnuRecentFile(0)"].Visible);
    const StartPage page = frame.RecentProjects();
    ASSERT_EQ(page.RecentProjects.size(), 4u);
    EXPECT_EQ(page.RecentProjects[1].Index, 2);
    EXPECT_EQ(page.RecentProjects[1].Path, DataFile("P4.PO3"));
}

TEST_F(FrameProject, ARecentFileOpensAndMovesToTheTop) {
    Session.CompressFlag = 7;
    OpenStressProject("P1");
    OpenStressProject("P2");
    frame.m_cMenu_Click("MnuRecentFile(2)");
    EXPECT_EQ(Session.ProjectName, "P1");
    EXPECT_EQ(Session.ProjectFile, DataFile("P1.PO3"));
    EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P1.PO3"), DataFile("P2.PO3")));
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD", "P2.PO3"));  // the other one is packed now
    EXPECT_TRUE(Enabled("mnuSaveProjectAs"));
}

TEST_F(FrameProject, ARecentFileThatIsGoneIsToldAndLeavesTheList) {
    OpenStressProject("P1");
    OpenStressProject("P2");
    std::filesystem::remove(DataFile("P1.PO3"));
    frame.m_cMenu_Click("MnuRecentFile(2)");
    EXPECT_EQ(Session.ProjectName, "P2");
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P2.PO3")));
    ASSERT_EQ(host.Messages.size(), 1u);
    EXPECT_THAT(host.LastMessage().Text, HasSubstr("P1.PO3"));
}

TEST_F(FrameProject, ARecentFileWaitsForTheAnswerAboutAnIncompleteProject) {
    OpenStressProject("P1");
    WriteProject("P2", 1);
    GoOn();
    OpenByDialog("P2.PO3");
    Stay();
    frame.m_cMenu_Click("MnuRecentFile(2)");
    EXPECT_EQ(Session.ProjectName, "P2");
    GoOn();
    frame.m_cMenu_Click("MnuRecentFile(2)");
    EXPECT_EQ(Session.ProjectName, "P1");
}

TEST_F(FrameProject, AFailureAtARecentFileHidesThemAll) {
    WriteProject("P1", 1);
    GoOn();
    OpenByDialog("P1.PO3");
    host.OnForm([](Form&) { Fail(FailureKind::Other, "no window"); });
    frame.m_cMenu_Click("MnuRecentFile(1)");
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_THAT(Recent(), IsEmpty());
    EXPECT_FALSE(frame.Menu["MnuRecentFile(0)"].Visible);
}

TEST_F(FrameProject, TheSeparatorAndEmptyRowsDoNothing) {
    frame.m_cMenu_Click("MnuRecentFile(0)");
    frame.m_cMenu_Click("MnuRecentFile(3)");
    EXPECT_EQ(Session.ProjectName, "");
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_THAT(frame.RecentProjects().RecentProjects, IsEmpty());
}

}  // namespace
