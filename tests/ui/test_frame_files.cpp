// Projects saved under another name, and the recent files.
#include <map>
#include <string>

#include "FrameTest.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class FrameFiles : public FrameTest {
  protected:
    FrameFiles() { Start(); }
};

// --- save under another name ---

TEST_F(FrameFiles, SaveAsCopiesTheFilesOfTheTickedEntries) {
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

TEST_F(FrameFiles, SaveAsLeavesOutWhatIsNotTicked) {
    OpenStressProject("P1");
    SetProblemSaved(1, false);
    host.AnswerFileToSave(DataFile("Q.PO3"));
    frame.m_cMenu_Click("mnuSaveProjectAs");
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD", "Q.AUF", "Q.PO3"));
}

TEST_F(FrameFiles, SaveAsKnowsTheFileOfEveryEntry) {
    const std::map<int, const char*> extensions = {{2, "SSD"}, {3, "SSD"}, {4, "CON"}, {5, "RAT"},
                                                   {6, "TST"}, {7, "RDE"}, {8, "RCO"}, {9, "SC1"}};
    WriteBytes(DataFile("P1.PO3"), Lines({"Version 9", "7", "0"}));
    for (const auto& [entry, extension] : extensions) {
        frame.NewProjectState();
        Session.ProjectName = "P1";
        WriteBytes(DataFile(std::string("P1.") + extension), extension);
        SetProblemSaved(entry, true);
        const std::string name = "Q" + std::to_string(entry);
        host.AnswerFileToSave(DataFile(name));
        frame.m_cMenu_Click("mnuSaveProjectAs");
        EXPECT_EQ(ReadBytes(DataFile(name + "." + extension)), extension);
    }
}

// Time-settlement projects have no heading file when their method alone was saved.
TEST_F(FrameFiles, SaveAsCopiesTheProjectFileAlwaysAndTheHeadingIfThereIsOne) {
    for (const bool heading : {true, false}) {
        WriteProject("P1", 7);
        WriteBytes(DataFile("P1.TST"), "data");
        if (!heading) std::filesystem::remove(DataFile("P1.AUF"));
        OpenByDialog("P1.PO3");
        const std::string name = heading ? "Q" : "R";
        host.AnswerFileToSave(DataFile(name));
        frame.m_cMenu_Click("mnuSaveProjectAs");
        EXPECT_EQ(ReadBytes(DataFile(name + ".PO3")), Lines({"Version 9", "7", "0"}));
        EXPECT_EQ(ReadBytes(DataFile(name + ".TST")), "data");
        EXPECT_EQ(std::filesystem::exists(DataFile(name + ".AUF")), heading);
        // A copy that was made can be opened.
        OpenByDialog("P1.PO3");
        OpenByDialog(name + ".PO3");
        EXPECT_EQ(Session.ProjectName, name);
        EXPECT_EQ(Session.ProblemType, Problem::TimeOedometer);
        EXPECT_EQ(TickedProblems(), heading ? std::vector<int>({0, 6}) : std::vector<int>({6}));
    }
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(FrameFiles, SaveAsThatCannotWriteLeavesTheOldProjectOpenAndSaysSoOnce) {
    OpenStressProject("P1");
    std::filesystem::create_directory(DataFile("folder.PO3"));
    std::filesystem::create_directory(DataFile("data.SSD"));
    WriteBytes(DataFile("packed.PO3"), "PK\x03\x04 broken");
    const std::vector<std::string> before = DataFiles();
    for (const char* name : {"folder", "data", "packed", "no/such/folder/Q"}) {
        SCOPED_TRACE(name);
        host.Messages.clear();
        host.AnswerFileToSave(DataFile(name));
        frame.m_cMenu_Click("mnuSaveProjectAs");
        ASSERT_EQ(host.Messages.size(), 1u);
        EXPECT_THAT(host.LastMessage().Text, HasSubstr(name));
        EXPECT_EQ(Session.ProjectName, "P1");
        EXPECT_EQ(Session.ProjectFile, DataFile("P1.PO3"));
        EXPECT_EQ(Session.DataDir, DataDir());
        EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
        EXPECT_THAT(Recent(), ElementsAre(DataFile("P1.PO3")));
        EXPECT_EQ(DataFiles(), before);  // nothing of a copy either
    }
}

TEST_F(FrameFiles, SaveAsOnAFullDiskLeavesTheOldProjectAndNoPieceOfACopy) {
    OpenStressProject("P1");
    const std::vector<std::string> before = DataFiles();
    EXPECT_TRUE(OnAFullDisk(20, [&] {
        host.AnswerFileToSave(DataFile("Q"));
        frame.m_cMenu_Click("mnuSaveProjectAs");
        return host.Messages.size() == 1 && Session.ProjectName == "P1" && frame.Caption == "Lithmark - [P1]";
    }));
    EXPECT_EQ(DataFiles(), before);
}

TEST_F(FrameFiles, SaveAsOntoAPackedProjectUnpacksItFirst) {
    WriteStressProject("Q");
    WriteBytes(DataFile("Q.CON"), "of another problem");
    ASSERT_TRUE(ProjectStore().PackProject(DataFile("Q"), 7, "", ".po3"));
    OpenStressProject("P1");
    host.AnswerFileToSave(DataFile("Q"));
    frame.m_cMenu_Click("mnuSaveProjectAs");
    EXPECT_EQ(Session.ProjectName, "Q");
    EXPECT_EQ(ReadBytes(DataFile("Q.AUF")), Lines({"Order P1", "1 May", "House P1"}));
    EXPECT_EQ(ReadBytes(DataFile("Q.CON")), "of another problem");
}

TEST_F(FrameFiles, SaveAsOntoTheSameNameChangesNothing) {
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

TEST_F(FrameFiles, SaveAsDoesNothingWithoutAProjectOrWhenCancelled) {
    frame.m_cMenu_Click("mnuSaveProjectAs");
    EXPECT_THAT(host.SaveQuestions, IsEmpty());
    OpenStressProject("P1");
    host.AnswerFileToSave(std::nullopt);
    frame.m_cMenu_Click("mnuSaveProjectAs");
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD"));
}

TEST_F(FrameFiles, TheFileListUnpacksTheOpenProject) {
    Session.CompressFlag = 7;
    OpenStressProject("P1");
    OpenStressProject("P2");
    Session.ProjectName = "P1";  // as if another program had packed the open project
    frame.m_cMenu_Click("mnuFileList");
    EXPECT_TRUE(std::filesystem::exists(DataFile("P1.SSD")));
}

// --- recent files ---

TEST_F(FrameFiles, TheRecentFilesAreFourTheNewestFirst) {
    for (const char* name : {"P1", "P2", "P3", "P4", "P5"}) OpenStressProject(name);
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P5.PO3"), DataFile("P4.PO3"), DataFile("P3.PO3"), DataFile("P2.PO3")));
    EXPECT_TRUE(frame.Menu["MnuRecentFile(0)"].Visible);
    const StartPage page = frame.RecentProjects();
    ASSERT_EQ(page.RecentProjects.size(), 4u);
    EXPECT_EQ(page.RecentProjects[1].Index, 2);
    EXPECT_EQ(page.RecentProjects[1].Path, DataFile("P4.PO3"));
}

TEST_F(FrameFiles, ARecentFileOpensAndMovesToTheTop) {
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

TEST_F(FrameFiles, ARecentFileThatIsGoneIsToldAndLeavesTheList) {
    OpenStressProject("P1");
    OpenStressProject("P2");
    std::filesystem::remove(DataFile("P1.PO3"));
    frame.m_cMenu_Click("MnuRecentFile(2)");
    EXPECT_EQ(Session.ProjectName, "P2");
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P2.PO3")));
    ASSERT_EQ(host.Messages.size(), 1u);
    EXPECT_THAT(host.LastMessage().Text, HasSubstr("P1.PO3"));
}

TEST_F(FrameFiles, ARecentFileWaitsForTheAnswerAboutAnIncompleteProject) {
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

TEST_F(FrameFiles, AFailureAtARecentFileHidesThemAll) {
    WriteProject("P1", 1);
    GoOn();
    OpenByDialog("P1.PO3");
    host.OnForm([](Form&) { Fail(FailureKind::Other, "no window"); });
    frame.m_cMenu_Click("MnuRecentFile(1)");
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_THAT(Recent(), IsEmpty());
    EXPECT_FALSE(frame.Menu["MnuRecentFile(0)"].Visible);
}

// A row of the start page that is hidden in the menu would do nothing.
TEST_F(FrameFiles, AfterAFailureAtARecentFileTheStartPageOffersNoneEither) {
    WriteProject("P1", 1);
    GoOn();
    OpenByDialog("P1.PO3");
    ASSERT_EQ(frame.RecentProjects().RecentProjects.size(), 1u);
    host.OnForm([](Form&) { Fail(FailureKind::Other, "no window"); });
    frame.m_cMenu_Click("MnuRecentFile(1)");
    EXPECT_THAT(frame.RecentProjects().RecentProjects, IsEmpty());
}

TEST_F(FrameFiles, TheSeparatorAndEmptyRowsDoNothing) {
    frame.m_cMenu_Click("MnuRecentFile(0)");
    frame.m_cMenu_Click("MnuRecentFile(3)");
    EXPECT_EQ(Session.ProjectName, "");
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_THAT(frame.RecentProjects().RecentProjects, IsEmpty());
}

}  // namespace
}  // namespace lithmark::tests
