// The page without a project: recent and pinned projects, problems, examples; and the way back to it.
#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "FrameTest.h"
#include "services/storage/UserFolders.h"
#include "support/Matchers.h"
#include "support/Places.h"
#include "support/Variable.h"
#include "ui/frmMethodtype.h"

namespace lithmark::tests {
namespace {

class StartPageTest : public FrameTest {
  protected:
    StartPageTest() {
        std::filesystem::create_directories(own_ / "home/Documents");
        home_.Set(own_ / "home");
        config_.Unset();
        Start();
    }
    std::string Examples() const { return (SourceDir() / "examples/").string(); }
    std::string Documents(const std::string& name) const { return own_ / ("home/Documents/" + name); }
    ExampleProject Example(const std::string& name) const {
        for (const ExampleProject& example : ExampleProjects(Examples()))
            if (example.Name == name) return example;
        ADD_FAILURE() << name;
        return {};
    }

    TestFolder own_;
    Variable home_{"HOME"}, config_{"XDG_CONFIG_HOME"};
};

// --- projects to go on with ---

TEST_F(StartPageTest, RecentProjectsTellProblemAndDay) {
    OpenStressProject("P1");
    const StartPage page = frame.RecentProjects();
    ASSERT_EQ(page.RecentProjects.size(), 1u);
    EXPECT_EQ(page.RecentProjects[0].Path, DataFile("P1.PO3"));
    EXPECT_EQ(page.RecentProjects[0].ProblemType, Problem::SoilStress);
    EXPECT_EQ(page.RecentProjects[0].Changed.size(), 10u);  // "2026-03-02"
    EXPECT_FALSE(page.RecentProjects[0].Pinned);
    EXPECT_EQ(ProblemInShort(1), "[1] Stresses in soil");
    EXPECT_EQ(ProblemInShort(0), "");
}

TEST_F(StartPageTest, PinsOutliveTheFourRecentOnesAndTheProgram) {
    for (const char* name : {"P1", "P2", "P3"}) OpenStressProject(name);
    frame.PinProject(DataFile("P2.PO3"), true);
    frame.PinProject(DataFile("P1.PO3"), true);
    frame.PinProject(DataFile("P1.PO3"), true);  // once
    for (const char* name : {"P4", "P5", "P6", "P7"}) OpenStressProject(name);
    MDITools next;
    const StartPage page = next.RecentProjects();
    ASSERT_EQ(page.PinnedProjects.size(), 2u);
    EXPECT_EQ(page.PinnedProjects[0].Path, DataFile("P2.PO3"));
    EXPECT_EQ(page.PinnedProjects[1].Path, DataFile("P1.PO3"));
    EXPECT_TRUE(page.PinnedProjects[0].Pinned);
    EXPECT_THAT(Recent(), ElementsAre(DataFile("P7.PO3"), DataFile("P6.PO3"), DataFile("P5.PO3"), DataFile("P4.PO3")));
    frame.PinProject(DataFile("P2.PO3"), false);
    EXPECT_THAT(PinnedPaths(), ElementsAre(DataFile("P1.PO3")));
}

TEST_F(StartPageTest, APinnedProjectOpensAndBecomesRecent) {
    WriteStressProject("Far");
    frame.PinProject(DataFile("Far.PO3"), true);
    frame.OpenListed(DataFile("Far.PO3"));
    EXPECT_EQ(Session.ProjectName, "Far");
    EXPECT_THAT(Recent(), ElementsAre(DataFile("Far.PO3")));
    EXPECT_TRUE(frame.RecentProjects().RecentProjects[0].Pinned);
}

TEST_F(StartPageTest, APinnedProjectThatIsGoneIsToldAndPinnedNoMore) {
    OpenStressProject("P1");
    frame.PinProject(DataFile("Gone.PO3"), true);
    frame.OpenListed(DataFile("Gone.PO3"));
    EXPECT_THAT(host.LastMessage().Text, HasSubstr(DataFile("Gone.PO3"))) << "the whole path, however long it is";
    EXPECT_THAT(PinnedPaths(), IsEmpty());
    EXPECT_EQ(Session.ProjectName, "P1");  // stays open
}

// --- problems ---

TEST_F(StartPageTest, TenCardsHaveTenNames) {
    for (const Language language : {Language::German, Language::English, Language::Arabic}) {
        LanguageTexts().SetCurrent(language);
        const std::vector<ProblemCard> cards = ProblemCards();
        ASSERT_EQ(cards.size(), 10u);
        std::vector<std::string> names;
        for (std::size_t i = 0; i < cards.size(); ++i) {
            EXPECT_EQ(cards[i].ProblemType, static_cast<int>(i) + 1);
            names.push_back(cards[i].Name);
        }
        std::ranges::sort(names);
        EXPECT_EQ(std::ranges::adjacent_find(names), names.end());
    }
}

TEST_F(StartPageTest, ACardBeginsAProjectOfItsProblem) {
    for (const ProblemCard& card : ProblemCards()) {
        const std::string name = "N" + std::to_string(card.ProblemType);
        host.OnForm<frmProblemType>([](frmProblemType& form) { Click(form, "cmdSave"); });
        host.AnswerFileToSave(DataFile(name));
        frame.BeginProject(card.ProblemType);
        EXPECT_EQ(Session.ProjectName, name);
        EXPECT_EQ(Session.ProblemType, card.ProblemType);
        EXPECT_EQ(ReadBytes(DataFile(name + ".PO3")),
                  Lines({"Version 9", std::to_string(card.ProblemType).c_str(), "0"}));
        GoOn();  // its data are not there yet
        frame.mnuCloseProject_Click();
    }
}

// The methods of the time-settlement curve are one row of the list of problems; the card's is proposed behind it.
TEST_F(StartPageTest, AMethodsCardProposesItsMethod) {
    host.OnForm<frmProblemType>([](frmProblemType& form) {
        EXPECT_EQ(form.cmbItem.ListIndex, 5);
        Click(form, "cmdSave");
    });
    host.AnswerFileToSave(DataFile("Tower"));
    frame.BeginProject(8);
    host.OnForm<frmMethodtype>([](frmMethodtype& form) {
        EXPECT_EQ(form.OptMethodType.Selected(), 2);
        Click(form, "CmdCancel");
    });
    frame.m_cMenu_Click("mnuProblem(6)");
}

TEST_F(StartPageTest, ACardThatIsCancelledLeavesNoProject) {
    host.OnForm<frmProblemType>([](frmProblemType& form) { Click(form, "CmdCancel"); });
    frame.BeginProject(9);
    EXPECT_FALSE(frame.ProjectOpen());
    EXPECT_EQ(Session.ProblemType, Problem::SoilStress);
    EXPECT_THAT(DataFiles(), IsEmpty());
}

TEST_F(StartPageTest, NoProjectIsProposedWhereTheProgramLies) {
    for (const std::string& place :
         {SharedServices().ExecutableDir(), SharedServices().ResourceDir() + "examples/A/", Session.ProgramDir}) {
        Session.DataDir = place;
        host.OnForm<frmProblemType>([](frmProblemType& form) { Click(form, "cmdSaveAs"); });
        host.AnswerFileToSave(std::nullopt);
        frame.m_cMenu_Click("mnuNewProject");
        EXPECT_EQ(host.SaveQuestions.back().StartDir, DataDir()) << place;
    }
}

// --- examples ---

TEST_F(StartPageTest, EveryExampleHasItsLineInThreeLanguages) {
    std::vector<std::string> folders, listed;
    for (const auto& entry : std::filesystem::directory_iterator(Examples()))
        if (entry.is_directory()) folders.push_back(entry.path().filename());
    int problem = 0;
    for (const ExampleProject& example : ExampleProjects(Examples())) {
        listed.push_back(example.Name);
        EXPECT_GE(example.ProblemType, problem) << example.Name;
        problem = example.ProblemType;
        EXPECT_FALSE(example.Line.empty()) << example.Name;
    }
    std::ranges::sort(folders);
    std::ranges::sort(listed);
    EXPECT_EQ(listed, folders);
    EXPECT_THAT(ExampleProjects(DataDir()), IsEmpty());
}

TEST_F(StartPageTest, AnExampleOpensAsACopyInTheDocuments) {
    const ExampleProject example = Example("SquareRaft");
    frame.OpenExample(example);
    EXPECT_EQ(Session.ProjectName, "SquareRaft");
    EXPECT_EQ(Session.DataDir, Documents("Lithmark/"));
    EXPECT_EQ(Session.ProblemType, Problem::RaftDisplacement);
    for (const char* ending : {".PO3", ".AUF", ".RDE"})
        EXPECT_EQ(ReadBytes(Documents(std::string("Lithmark/SquareRaft") + ending)),
                  ReadBytes(Examples() + "SquareRaft/SquareRaft" + ending));
    EXPECT_THAT(host.Messages, IsEmpty());
    // A second one beside the first, which the user may have changed.
    WriteBytes(Documents("Lithmark/SquareRaft.RDE"), "mine");
    frame.mnuCloseProject_Click();
    frame.OpenExample(example);
    EXPECT_EQ(Session.ProjectName, "SquareRaft 2");
    EXPECT_EQ(ReadBytes(Documents("Lithmark/SquareRaft.RDE")), "mine");
}

TEST_F(StartPageTest, AnExampleThatCannotBeCopiedIsToldAndOpensNothing) {
    WriteBytes(Documents("Lithmark"), "a file in the place of the folder");
    frame.OpenExample(Example("PointLoad"));
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_FALSE(frame.ProjectOpen());
}

// --- back to the page ---

TEST_F(StartPageTest, ClosingAProjectGoesBackToThePage) {
    EXPECT_FALSE(Enabled("mnuCloseProject"));
    OpenStressProject("P1");
    EXPECT_TRUE(Enabled("mnuCloseProject"));
    frame.m_cMenu_Click("mnuCloseProject");
    EXPECT_FALSE(frame.ProjectOpen());
    EXPECT_EQ(frame.Caption, "Lithmark - [Untitled]");
    EXPECT_FALSE(Enabled("mnuCloseProject"));
    EXPECT_FALSE(Enabled("mnuMainProblem"));
    EXPECT_THAT(DataFiles(), ElementsAre("P1.AUF", "P1.PO3", "P1.SSD"));
    OpenByDialog("P1.PO3");  // its lock was given back
    EXPECT_EQ(Session.ProjectName, "P1");
}

TEST_F(StartPageTest, AClosedProjectIsPackedIfThatIsAskedFor) {
    Session.CompressFlag = 7;
    OpenStressProject("P1");
    frame.m_cMenu_Click("mnuCloseProject");
    EXPECT_THAT(DataFiles(), ElementsAre("P1.PO3"));
}

TEST_F(StartPageTest, AnIncompleteProjectAsksBeforeItIsClosed) {
    WriteProject("P1", 1);
    GoOn();
    OpenByDialog("P1.PO3");
    Stay();
    frame.m_cMenu_Click("mnuCloseProject");
    EXPECT_EQ(Session.ProjectName, "P1");
    GoOn();
    frame.m_cMenu_Click("mnuCloseProject");
    EXPECT_FALSE(frame.ProjectOpen());
}

// --- status bar, colours ---

TEST_F(StartPageTest, TheStatusBarTellsUnitsAndDecimalSignAtAllTimes) {
    EXPECT_EQ(frame.Status().Units, "\u2066m, cm, kN, MN\u2069");
    EXPECT_EQ(frame.Status().DecimalSign, "Decimal sign \".\"");
    EXPECT_EQ(frame.Status().Problem, "");
    EXPECT_EQ(frame.Status().Saved, "");
    SharedServices().DecimalSign = ',';
    EXPECT_EQ(frame.Status().DecimalSign, "Decimal sign \",\"");
}

TEST_F(StartPageTest, TheStatusBarTellsTheProblemAndWhetherItsDataAreSaved) {
    WriteProject("P1", 1);
    GoOn();
    OpenByDialog("P1.PO3");
    EXPECT_EQ(frame.Status().Problem, "[1] Stresses in soil");
    EXPECT_EQ(frame.Status().Saved, "No data yet");
    host.OnForm([](Form& form) { Click(form, "cmdSave"); });
    frame.m_cMenu_Click("mnuProblem(1)");
    EXPECT_EQ(frame.Status().Saved, "Data saved");
    host.OnForm([](Form& form) {
        Type(form, "txt_z", "7");
        form.KeepInput();
    });
    frame.m_cMenu_Click("mnuProblem(1)");
    EXPECT_EQ(frame.Status().Saved, "Input not saved");
}

class ThemeWindow : public RecordingWindow {
  public:
    std::vector<ThemeChoice> Shown;
    void ShowTheme(ThemeChoice choice) override { Shown.push_back(choice); }
};

TEST_F(StartPageTest, TheChosenColoursAreShownTickedAndRemembered) {
    ThemeWindow first;
    frame.SetWindow(&first);
    frame.m_cMenu_Click("mnuThemeDark");
    EXPECT_THAT(first.Shown, ElementsAre(ThemeChoice::Dark));
    EXPECT_TRUE(frame.Menu["mnuThemeDark"].Checked());
    EXPECT_FALSE(frame.Menu["mnuThemeSystem"].Checked());
    frame.SetWindow(nullptr);
    MDITools next;
    ThemeWindow second;
    next.SetWindow(&second);
    next.SetClock([this] { return now; });
    next.Start("");
    EXPECT_THAT(second.Shown, ElementsAre(ThemeChoice::Dark));
    EXPECT_TRUE(next.Menu["mnuThemeDark"].Checked());
}

TEST_F(StartPageTest, WithoutAChoiceTheColoursAreTheSystems) {
    EXPECT_TRUE(frame.Menu["mnuThemeSystem"].Checked());
    SharedServices().SaveSetting(kApplicationTitle, "Settings", "Theme", std::string("purple"));
    MDITools next;
    next.SetClock([this] { return now; });
    next.Start("");
    EXPECT_TRUE(next.Menu["mnuThemeSystem"].Checked());
}

}  // namespace
}  // namespace lithmark::tests
