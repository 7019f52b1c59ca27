// Which project is open: the frame, its page and the session say the same at every moment, and a project is never half
// open.
#include <string>

#include "FrameTest.h"
#include "services/TextTools.h"
#include "services/storage/ProjectArchive.h"
#include "services/storage/ProjectLock.h"
#include "support/Matchers.h"
#include "ui/frmstress.h"

namespace lithmark::tests {
namespace {

class FrameState : public FrameTest {
  protected:
    FrameState() { Start(); }

    // What the user sees and what is stored agree.
    void ExpectAgreement() {
        const bool open = frame.ProjectOpen();
        const ProjectSummary page = frame.Summary();
        EXPECT_EQ(frame.Caption, "Lithmark - [" + (open ? Session.ProjectName : std::string("Untitled")) + "]");
        EXPECT_EQ(Enabled("mnuMainProblem"), open);
        EXPECT_EQ(Enabled("mnuSaveProjectAs"), open);
        EXPECT_EQ(page.Name, Session.ProjectName);
        if (!open) {
            EXPECT_THAT(TickedProblems(), IsEmpty());
            EXPECT_EQ(Session.ProblemType, Problem::SoilStress);
            EXPECT_EQ(Session.ProjectFile, "");
            EXPECT_EQ(page.Order + page.Project, "");
            return;
        }
        EXPECT_EQ(Session.ProjectFile, Session.DataDir + Session.ProjectName + ".PO3");
        // The heading is of the project that is named, or empty.
        EXPECT_THAT(page.Order, ::testing::AnyOf("", "Order " + Session.ProjectName));
        EXPECT_THAT(page.Project, ::testing::AnyOf("", "House " + Session.ProjectName));
    }
    void ExpectNoProject() {
        EXPECT_FALSE(frame.ProjectOpen());
        ExpectAgreement();
        EXPECT_EQ(host.Pointer(), PointerShape::Default);
    }
};

// Looks at the frame whenever the user could see it: at each message and each form.
class WatchingHost : public ScriptedHost {
  public:
    std::function<void()> Look;
    void ShowMessage(const std::string& title, const std::string& text, MessageIcon icon) override {
        if (Look) Look();
        ScriptedHost::ShowMessage(title, text, icon);
    }
    void ShowForm(Form& form) override {
        if (Look) Look();
        ScriptedHost::ShowForm(form);
    }
};

// --- failed opens ---

TEST_F(FrameState, AFailedOpenEndsInNoProject) {
    WriteBytes(DataFile("packed.PO3"), "PK\x03\x04 broken");
    WriteBytes(DataFile("number.PO3"), Lines({"Version 9", "abc"}));
    WriteBytes(DataFile("short.PO3"), "Version 9");
    std::filesystem::create_directory(DataFile("folder.PO3"));
    for (const char* name : {"packed", "number", "short", "folder", "missing"})
        for (const bool packs : {false, true}) {
            SCOPED_TRACE(name);
            OpenStressProject("P2");
            Session.CompressFlag = packs ? 7 : 0;
            host.Messages.clear();
            OpenByDialog(name + std::string(".PO3"));
            EXPECT_THAT(host.Messages, SizeIs(name == std::string("missing") ? 0 : 1));
            ExpectNoProject();
            EXPECT_THAT(Recent(), ElementsAre(DataFile("P2.PO3")));
            Session.CompressFlag = 0;
        }
}

TEST_F(FrameState, AFailedOpenFromTheCommandLineOrTheRecentFilesEndsInNoProject) {
    WriteBytes(DataFile("bad.PO3"), Lines({"Version 9", "abc"}));
    frame.OpenFromCommandLine(DataFile("bad.PO3"));
    ExpectNoProject();
    EXPECT_THAT(Recent(), IsEmpty());
    OpenStressProject("P1");
    OpenStressProject("P2");
    WriteBytes(DataFile("P1.PO3"), Lines({"Version 9", "abc"}));
    frame.m_cMenu_Click("MnuRecentFile(2)");
    ExpectNoProject();
}

TEST_F(FrameState, ADamagedPackedProjectOpenedFromAnotherLosesNeither) {
    const std::string archive = "PK\x03\x04 broken";
    WriteBytes(DataFile("P1.PO3"), archive);
    OpenStressProject("P2");
    const std::string data = ReadBytes(DataFile("P2.SSD"));
    OpenByDialog("P1.PO3");
    ExpectNoProject();
    // A save from here asks for a name.
    host.OnForm<frmProblemType>([this](frmProblemType& form) {
        host.AnswerFileToSave(std::nullopt);
        Click(form, "cmdSave");
    });
    frame.m_cMenu_Click("mnuNewProject");
    EXPECT_EQ(ReadBytes(DataFile("P1.PO3")), archive);
    EXPECT_EQ(ReadBytes(DataFile("P2.SSD")), data);
}

TEST_F(FrameState, ADamagedProjectFileOpenedFromAnotherLosesNeither) {
    OpenStressProject("P1");
    WriteStressProject("P2");
    const std::string damaged = Lines({"Version 9", "#"});
    WriteBytes(DataFile("P2.PO3"), damaged);
    OpenByDialog("P2.PO3");
    ExpectNoProject();
    host.OnForm<frmProblemType>([this](frmProblemType& form) {
        EXPECT_EQ(form.txtProj.Text, "");
        host.AnswerFileToSave(std::nullopt);
        Click(form, "cmdSave");
    });
    frame.m_cMenu_Click("mnuProblem(0)");
    EXPECT_EQ(ReadBytes(DataFile("P2.PO3")), damaged);
    EXPECT_EQ(ReadBytes(DataFile("P2.AUF")), Lines({"Order P2", "1 May", "House P2"}));
    EXPECT_EQ(ReadBytes(DataFile("P1.AUF")), Lines({"Order P1", "1 May", "House P1"}));
}

TEST_F(FrameState, ADamagedHeadingIsToldAndTheProjectOpensWithoutIt) {
    OpenStressProject("P1");
    WriteStressProject("P2");
    WriteBytes(DataFile("P2.AUF"), std::string("\0\0", 2));
    OpenByDialog("P2.PO3");
    EXPECT_EQ(Session.ProjectName, "P2");
    EXPECT_THAT(host.Messages, SizeIs(1));
    ExpectAgreement();
}

// --- at every moment ---

TEST_F(FrameState, FramePageAndSessionAgreeAtEveryMoment) {
    WatchingHost watching;
    watching.Look = [this] { ExpectAgreement(); };
    const auto open = [&](const char* file) {
        watching.AnswerFileToOpen(DataFile(file));
        frame.m_cMenu_Click("mnuOpenProject");
        ExpectAgreement();
    };
    WriteStressProject("P1");
    WriteProject("P2", 4);  // without its data: the list of what is missing comes
    WriteStressProject("P3");
    WriteBytes(DataFile("P3.AUF"), std::string("\0", 1));
    WriteBytes(DataFile("P4.PO3"), "PK\x03\x04 broken");
    for (const long flags : {0L, 7L}) {
        Session.CompressFlag = flags;
        open("P1.PO3");
        watching.OnForm([](Form& form) { Click(form, "cmdok"); });
        open("P2.PO3");
        watching.OnForm([](Form& form) { Click(form, "cmdok"); });
        open("P3.PO3");
        open("P4.PO3");
        open("P1.PO3");
        watching.OnForm([](Form& form) { Click(form, "CmdCancel"); });
        frame.m_cMenu_Click("mnuNewProject");
        ExpectAgreement();
    }
}

TEST_F(FrameState, ANewStartBehindAFailedOneHasNothingOfIt) {
    MDITools next;
    next.SetClock([this] { return now; });
    WriteBytes(DataFile("bad.PO3"), Lines({"Version 9", "abc"}));
    next.Start(DataFile("bad.PO3"));
    EXPECT_FALSE(next.ProjectOpen());
    EXPECT_EQ(next.Caption, "Lithmark - [Untitled]");
    EXPECT_FALSE(next.Menu["mnuMainProblem"].Enabled);
}

// --- problems that share a file ---

TEST_F(FrameState, AProblemChangedToOneOfTheSameFileFindsItsData) {
    OpenStressProject("P1");
    const std::string data = ReadBytes(DataFile("P1.SSD"));
    host.OnForm<frmProblemType>([](frmProblemType& form) {
        Select(form, "cmbItem", 1);
        Click(form, "cmdSave");
    });
    frame.m_cMenu_Click("mnuProblem(0)");
    EXPECT_THAT(TickedProblems(), ElementsAre(0, 2));
    EXPECT_THAT(frame.Summary().MissingData, IsEmpty());
    host.OnForm<frmstress>([](frmstress& form) {
        EXPECT_EQ(form.txt_x.Text, "1.00");
        EXPECT_EQ(form.txt_Q.Text, "900.0");
        Click(form, "cmdSave");
    });
    frame.m_cMenu_Click("mnuProblem(2)");
    EXPECT_EQ(ReadBytes(DataFile("P1.SSD")), data);
}

// --- archives ---

TEST_F(FrameState, AnArchiveIsReplacedOnlyOnceItIsUnpacked) {
    Session.CompressFlag = 7;
    OpenStressProject("P1");
    // Another program packs the open project; its lock has been broken.
    ASSERT_TRUE(ProjectStore().PackProject(DataFile("P1"), 7, "", ".po3"));
    ASSERT_TRUE(IsArchiveFile(DataFile("P1.PO3")));
    host.OnForm<frmProblemType>([](frmProblemType& form) { Click(form, "cmdSave"); });
    frame.m_cMenu_Click("mnuProblem(0)");
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD"));
    EXPECT_FALSE(IsArchiveFile(DataFile("P1.PO3")));
}

// --- locks ---

TEST_F(FrameState, AProjectThatIsOpenElsewhereIsToldAndStaysClosed) {
    WriteStressProject("P1");
    OpenStressProject("P2");
    {
        const ProjectLock elsewhere(DataFile("P1"));
        OpenByDialog("P1.PO3");
        ASSERT_THAT(host.Messages, SizeIs(1));
        EXPECT_THAT(host.LastMessage().Text, HasSubstr("is open already: by "));
        ExpectNoProject();
    }
    OpenByDialog("P1.PO3");
    EXPECT_EQ(Session.ProjectName, "P1");
}

TEST_F(FrameState, TheOpenProjectIsLockedAsLongAsItIsOpen) {
    const auto locked = [this](const char* name) {
        return KindOf([&] { ProjectLock(DataFile(name)); }) == FailureKind::ProjectInUse;
    };
    OpenStressProject("P1");
    EXPECT_TRUE(locked("P1"));
    OpenStressProject("P2");
    EXPECT_FALSE(locked("P1"));
    EXPECT_TRUE(locked("P2"));
    host.AnswerFileToSave(DataFile("P3"));
    frame.m_cMenu_Click("mnuSaveProjectAs");
    EXPECT_FALSE(locked("P2"));
    EXPECT_TRUE(locked("P3"));
    OpenByDialog("none.PO3");
    EXPECT_FALSE(locked("P3"));
    host.OnForm<frmProblemType>([this](frmProblemType& form) {
        host.AnswerFileToSave(DataFile("P4"));
        Click(form, "cmdSave");
    });
    frame.m_cMenu_Click("mnuNewProject");
    EXPECT_TRUE(locked("P4"));
    frame.ExitProgram();
    EXPECT_FALSE(locked("P4"));
    for (const auto& entry : std::filesystem::directory_iterator(DataDir()))
        EXPECT_NE(entry.path().extension(), ".lock");
}

}  // namespace
}  // namespace lithmark::tests
