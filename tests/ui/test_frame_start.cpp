// The start and the end of the program.
#include <string>
#include <vector>

#include "FrameTest.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

using FrameStart = FrameTest;

TEST_F(FrameStart, LeavesTheFrameWithoutAProject) {
    Start();
    EXPECT_TRUE(frame.Shown);
    EXPECT_EQ(frame.Caption, "Lithmark - [Untitled]");
    EXPECT_EQ(Session.ProjectName, "");
    EXPECT_EQ(Session.ProblemType, Problem::SoilStress);
    EXPECT_EQ(Session.WorkName, "Untitled");
    EXPECT_EQ(Session.DataDir, DataDir());
    EXPECT_EQ(Session.ProgramDir, SettingsFile(""));
    EXPECT_FALSE(Enabled("mnuMainProblem"));
    EXPECT_THAT(TickedProblems(), IsEmpty());
    EXPECT_EQ(frame.Menu["mnuFile"].Caption, "&File");
    EXPECT_THAT(frame.HelpFile, HasSubstr("verda"));
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_GT(window.Refreshes, 0);
}

TEST_F(FrameStart, ReadsTheSettingsFiles) {
    WriteBytes(SettingsFile("Units"), "\"[mm]\",1000\r\n\"[mm]\",10\r\n\"[N]\",1000\r\n\"[kN]\",1000\r\n\"[°K]\"\r\n");
    WriteBytes(SettingsFile("NOFORMAT"),
               Lines({"0.0000", "0.00", "0.0", "0.0", "0.0", "0.0", "0.0", "0.00", "0.00", "0.0000", "0.0000000",
                      "0.0000", "0.00", "0.00", "0.00", "0.0", "0.000", "0"}));
    WriteBytes(SettingsFile("Preferen.tol"), Lines({"1", ".75", ".5", "24", ".01", "50"}));
    SharedServices().SaveSetting(kApplicationTitle, "Company", "Line 1", std::string("Bau GmbH"));
    packing = 7;
    Start();
    EXPECT_EQ(Session.Len1Label, "[mm]");
    EXPECT_EQ(Session.Len2Factor, 10);
    EXPECT_EQ(Session.TempLabel, "[°K]");
    EXPECT_EQ(Session.FmtForce, "0.0000");
    EXPECT_EQ(Session.PrefND, 24);
    EXPECT_EQ(Session.PrefDy, 0.75);
    EXPECT_EQ(Session.FirmaLine1, "Bau GmbH");
    EXPECT_EQ(Session.CompressFlag, 7);
}

TEST_F(FrameStart, WithoutSettingsTheProgramDirectoryIsTheDataDirectory) {
    frame.Start("");
    EXPECT_EQ(Session.DataDir, Session.ProgramDir);
    EXPECT_EQ(Session.CompressFlag, 2);
    EXPECT_EQ(Session.Len1Label, "[m]");
    EXPECT_EQ(Session.PrefND, 12);
}

TEST_F(FrameStart, DamagedSettingsKeepNothingFromStarting) {
    WriteBytes(SettingsFile("Units"), "\"[mm]\",x\r\n");
    WriteBytes(SettingsFile("Preferen.tol"), "abc\r\n");
    WriteBytes(SettingsFile("NOFORMAT"), "0.0\r\n");
    WriteStressProject("P1");
    Start(DataFile("P1.PO3"));
    EXPECT_TRUE(frame.Shown);
    EXPECT_EQ(Session.ProjectName, "P1");
    EXPECT_EQ(host.Messages.size(), 3u);
}

TEST_F(FrameStart, TheStoredLanguageIsInForceFromTheFirstWord) {
    SharedServices().StoreLanguage(Language::German);
    Start();
    EXPECT_EQ(frame.Caption, "Lithmark - [Unbenannt]");
    EXPECT_EQ(frame.Menu["mnuFile"].Caption, "&Datei");
}

TEST_F(FrameStart, TheSplashStaysThreeSecondsAndTheFrameComesAfterIt) {
    std::vector<bool> shown;
    host.OnEvents = [&] {
        now += 250;
        shown.push_back(frame.Shown);
    };
    now = 70000;
    Start();
    EXPECT_THAT(host.SplashesShown, ElementsAre("frmSplash"));
    EXPECT_THAT(host.SplashesClosed, ElementsAre("frmSplash"));
    EXPECT_EQ(now, 73250);  // more than 3000 ms after the splash's load, in steps of 250
    EXPECT_EQ(shown, std::vector<bool>(13, false));
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
}

// An error before the frame is there: it is told once and the frame is shown all the same.
TEST_F(FrameStart, AFailureBeforeTheFrameIsThereIsToldAndTheFrameShown) {
    host.OnEvents = [] { Fail(FailureKind::Other, "no splash"); };
    Start();
    EXPECT_TRUE(frame.Shown);
    ASSERT_EQ(host.Messages.size(), 1u);
    EXPECT_THAT(host.LastMessage().Text, HasSubstr("no splash"));
}

TEST_F(FrameStart, AFailureBeforeTheFrameIsThereLeavesAFrameThatCanBeWorkedWith) {
    host.OnEvents = [] { Fail(FailureKind::Other, "no splash"); };
    Start();
    EXPECT_THAT(host.SplashesClosed, ElementsAre("frmSplash"));
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
    EXPECT_EQ(frame.Caption, "Lithmark - [Untitled]");
    EXPECT_EQ(frame.Menu["mnuFile"].Caption, "&File");
    EXPECT_FALSE(Enabled("mnuMainProblem"));
    EXPECT_FALSE(Enabled("mnuHelpContents"));
}

TEST_F(FrameStart, AFailingLayoutOfTheBarsDoesNotStopTheStart) {
    window.OnDock = [] { Fail(FailureKind::Other, "no dock"); };
    Start();
    EXPECT_TRUE(frame.Shown);
    EXPECT_EQ(frame.Caption, "Lithmark - [Untitled]");
    EXPECT_EQ(window.Docked, "as it came");
    EXPECT_EQ(host.Messages.size(), 1u);
}

// --- the command line ---

TEST_F(FrameStart, OpensTheProjectOfTheCommandLine) {
    WriteStressProject("P1");
    Start(DataFile("P1.PO3"));
    EXPECT_EQ(Session.ProjectName, "P1");
    EXPECT_EQ(Session.DataDir, DataDir());
    EXPECT_EQ(frame.Caption, "Lithmark - [P1]");
    EXPECT_TRUE(Enabled("mnuMainProblem"));
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P1.PO3")));
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
}

TEST_F(FrameStart, TheCommandLineMayBeQuotedAndHaveBlanksAround) {
    WriteStressProject("Haus 1");
    for (const std::string& line :
         {"\"" + DataFile("Haus 1.PO3") + "\"", "  \"" + DataFile("Haus 1.PO3") + "\"  ",
          "  " + DataFile("Haus 1.PO3") + " ", "\"" + DataFile("Haus 1.PO3"), DataFile("Haus 1")}) {
        frame.NewProjectState();
        frame.OpenFromCommandLine(line);
        EXPECT_EQ(Session.ProjectName, "Haus 1") << line;
    }
}

TEST_F(FrameStart, ACommandLineThatNamesNoProjectChangesNothing) {
    WriteBytes(DataFile("note.txt"), "x");
    for (const std::string& line : {std::string(), std::string("  "), std::string("\""), DataFile("none.PO3"),
                                    "\"" + DataFile("none") + "\"", DataFile("note.txt"), DataDir()}) {
        Start(line);
        EXPECT_EQ(Session.ProjectName, "") << line;
        EXPECT_EQ(Session.DataDir, DataDir()) << line;
        EXPECT_EQ(frame.Caption, "Lithmark - [Untitled]") << line;
        EXPECT_THAT(Recent(), IsEmpty()) << line;
    }
    EXPECT_THAT(host.Messages, IsEmpty());
}

// --- the end ---

TEST_F(FrameStart, TheEndIsAskedFor) {
    Start();
    host.AnswerYesNo(false);
    frame.m_cMenu_Click("mnuFileExit");
    EXPECT_FALSE(frame.Ended);
    EXPECT_FALSE(window.ProcessEnded);
    host.AnswerYesNo(true);
    frame.m_cMenu_Click("mnuFileExit");
    EXPECT_TRUE(frame.Ended);
    EXPECT_TRUE(window.ProcessEnded);
    EXPECT_EQ(host.Questions.size(), 2u);
}

TEST_F(FrameStart, ClosingTheWindowAsksOnceToo) {
    Start();
    host.AnswerYesNo(false);
    EXPECT_TRUE(frame.QueryUnload());
    host.AnswerYesNo(true);
    EXPECT_FALSE(frame.QueryUnload());
    EXPECT_FALSE(frame.QueryUnload());  // the window closes as the process ends
    EXPECT_EQ(host.Questions.size(), 2u);
}

TEST_F(FrameStart, TheEndSavesPlaceAndBarsAndPacksTheProject) {
    packing = 7;
    WriteStressProject("P1");
    Start(DataFile("P1.PO3"));
    window.At = FormPosition{10, 20, 800, 600, true};
    window.Docked = "file bar below";
    frame.m_cMenu_Click("MnuVeiwToolBar(2)");
    host.AnswerYesNo(true);
    frame.mnuFileExit_Click();
    EXPECT_THAT(DataFiles(), ElementsAre("P1.PO3"));
    EXPECT_EQ(ReadBytes(DataFile("P1.PO3")).substr(0, 2), "PK");

    MDITools next;
    RecordingWindow nextWindow;
    next.SetWindow(&nextWindow);
    next.SetClock([this] { return now; });
    next.Start("");
    ASSERT_TRUE(nextWindow.At);
    EXPECT_EQ(nextWindow.At->Left, 10);
    EXPECT_EQ(nextWindow.At->Height, 600);
    EXPECT_TRUE(nextWindow.At->Maximized);
    EXPECT_EQ(nextWindow.Docked, "file bar below");
    EXPECT_TRUE(next.Bars[1].Visible);
    EXPECT_FALSE(next.Bars[2].Visible);
    EXPECT_EQ(next.Menu["MnuRecentFile(1)"].Caption, DataFile("P1.PO3"));
}

TEST_F(FrameStart, WithPackingOffTheEndLeavesTheFiles) {
    WriteStressProject("P1");
    Start(DataFile("P1.PO3"));
    frame.ExitProgram();
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD"));
}

TEST_F(FrameStart, NothingKeepsTheProgramFromEnding) {
    Start();
    struct Broken : RecordingWindow {
        std::optional<FormPosition> Position() const override { Fail(FailureKind::Other, "no place"); }
        std::string DockLayout() const override { Fail(FailureKind::Other, "no layout"); }
    } broken;
    frame.SetWindow(&broken);
    EXPECT_NO_THROW(frame.ExitProgram());
    EXPECT_TRUE(broken.ProcessEnded);
    EXPECT_THAT(host.Messages, IsEmpty());
    frame.SetWindow(&window);
}

}  // namespace
}  // namespace lithmark::tests
