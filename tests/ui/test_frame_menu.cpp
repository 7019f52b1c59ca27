// The frame's menu: its tree, its captions, where a click leads, the pop-up menu, help and language.
#include <map>
#include <string>
#include <vector>

#include "FrameTest.h"
#include "support/Matchers.h"
#include "ui/frmAbout.h"
#include "ui/frmDataDir.h"
#include "ui/frmNumberFormats.h"
#include "ui/frmPreferences.h"
#include "ui/frmUnits.h"
#include "ui/frmstress.h"

namespace lithmark::tests {
namespace {

class FrameMenu : public FrameTest {
  protected:
    FrameMenu() { frame.Load(); }

    std::vector<std::string> Keys(const std::string& parent) {
        std::vector<std::string> keys;
        for (const MenuItem* item : frame.Menu.Children(parent)) keys.push_back(item->Key);
        return keys;
    }
    std::vector<std::string> Captions(const std::string& parent) {
        std::vector<std::string> captions;
        for (const MenuItem* item : frame.Menu.Children(parent)) captions.push_back(item->Caption);
        return captions;
    }
};

TEST_F(FrameMenu, TheBarHoldsFiveMenus) {
    EXPECT_THAT(Keys(""), ElementsAre("mnuFile", "MnuVeiw", "mnuMainProblem", "mnuMainData", "mnuHelp"));
    EXPECT_THAT(Captions(""), ElementsAre("&File", "&View", "&Calculation", "&Settings", "&Help"));
}

TEST_F(FrameMenu, TheMenusHoldTheirEntriesInOrder) {
    EXPECT_THAT(Keys("mnuFile"),
                ElementsAre("mnuNewProject", "mnuOpenProject", "mnuSaveProjectAs", "mnuFileList", "mnuCompare",
                            "mnuCloseProject", "MnuRecentFile(0)", "MnuRecentFile(1)", "MnuRecentFile(2)",
                            "MnuRecentFile(3)", "MnuRecentFile(4)", "mnuFileDash2", "mnuFileExit"));
    EXPECT_THAT(Keys("MnuVeiw"), ElementsAre("MnuStatusBar", "MnuVeiwDash1", "mnu_Toolbar", "mnuTheme"));
    EXPECT_THAT(Keys("mnuTheme"), ElementsAre("mnuThemeSystem", "mnuThemeLight", "mnuThemeDark"));
    EXPECT_THAT(Keys("mnu_Toolbar"), ElementsAre("MnuVeiwToolBar(0)", "MnuVeiwToolBar(1)", "MnuVeiwToolBar(2)",
                                                 "MnuVeiwToolBar(3)", "MnuVeiwDashRestToolBar", "mnuResetToolbar"));
    EXPECT_THAT(Keys("mnuMainData"), ElementsAre("mnuFirmaData", "mnuDirOfData", "mnuPreferences", "MnuLanguage",
                                                 "mnuUnits", "mnuNumberFormats"));
    EXPECT_THAT(Keys("mnuHelp"),
                ElementsAre("mnuHelpContents", "mnuShortDescription", "mnuNewVersion", "mnuHelpDash", "mnuAbout"));
    const auto problems = Keys("mnuMainProblem");
    ASSERT_EQ(problems.size(), 16u);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(problems[static_cast<std::size_t>(i)], "mnuProblem(" + std::to_string(i) + ")");
}

TEST_F(FrameMenu, TheEntriesHaveTheirTexts) {
    LanguageTexts().SetCurrent(Language::Ids);
    frame.Load();
    const std::map<std::string, std::string> captions = {{"mnuFile", "T<107>"},
                                                         {"mnuNewProject", "T<10340>"},
                                                         {"mnuOpenProject", "T<124>"},
                                                         {"mnuSaveProjectAs", "T<10339>"},
                                                         {"mnuFileList", "T<70025>"},
                                                         {"mnuCloseProject", "T<913400>"},
                                                         {"MnuRecentFile(0)", "-"},
                                                         {"mnuFileDash2", "-"},
                                                         {"mnuFileExit", "T<110>"},
                                                         {"MnuVeiw", "T<116>"},
                                                         {"MnuStatusBar", "T<79>"},
                                                         {"MnuVeiwDash1", "-"},
                                                         {"mnu_Toolbar", "T<115>"},
                                                         {"MnuVeiwToolBar(0)", "T<107>"},
                                                         {"MnuVeiwToolBar(1)", "T<400010>"},
                                                         {"MnuVeiwToolBar(2)", "T<10341>"},
                                                         {"MnuVeiwToolBar(3)", "T<8>"},
                                                         {"MnuVeiwDashRestToolBar", "-"},
                                                         {"mnuResetToolbar", "T<69>"},
                                                         {"mnuTheme", "T<913401>"},
                                                         {"mnuThemeSystem", "T<913402>"},
                                                         {"mnuThemeLight", "T<913403>"},
                                                         {"mnuThemeDark", "T<913404>"},
                                                         {"mnuMainProblem", "T<400010>"},
                                                         {"mnuProblem(0)", "T<400009>"},
                                                         {"mnuProblem(1)", "T<140185>"},
                                                         {"mnuProblem(2)", "T<300100>"},
                                                         {"mnuProblem(3)", "T<300001>"},
                                                         {"mnuProblem(4)", "T<140186>"},
                                                         {"mnuProblem(5)", "T<140187>"},
                                                         {"mnuProblem(6)", "T<140188>"},
                                                         {"mnuProblem(7)", "T<140189>"},
                                                         {"mnuProblem(8)", "T<140190>"},
                                                         {"mnuProblem(9)", "T<400190>"},
                                                         {"mnuProblem(10)", ""},
                                                         {"mnuMainData", "T<10341>"},
                                                         {"mnuFirmaData", "T<140116>"},
                                                         {"mnuDirOfData", "T<140161>"},
                                                         {"mnuPreferences", "T<92>"},
                                                         {"MnuLanguage", "T<83>"},
                                                         {"mnuUnits", "T<17>"},
                                                         {"mnuNumberFormats", "T<913405>"},
                                                         {"mnuHelp", "T<8>"},
                                                         {"mnuHelpContents", "T<80>"},
                                                         {"mnuShortDescription", "T<82>"},
                                                         {"mnuNewVersion", "T<81>"},
                                                         {"mnuHelpDash", "-"},
                                                         {"mnuAbout", "T<114>"}};
    for (const auto& [key, caption] : captions) EXPECT_EQ(frame.Menu[key].Caption, caption) << key;
}

TEST_F(FrameMenu, EntriesKeepTheirMarksAndThoseWithAFileDialogHaveDots) {
    EXPECT_EQ(frame.Menu["mnuNewProject"].Caption, "&New project");
    EXPECT_EQ(frame.Menu["mnuOpenProject"].Caption, "&Open project...");
    EXPECT_EQ(frame.Menu["mnuSaveProjectAs"].Caption, "Save project &as...");
    EXPECT_EQ(frame.Menu["mnuFileExit"].Caption, "E&xit");
}

TEST_F(FrameMenu, ThreeEntriesHaveShortcuts) {
    std::map<std::string, std::string> shortcuts;
    for (const MenuItem& item : frame.Menu.Items())
        if (!item.Shortcut.empty()) shortcuts[item.Key] = item.Shortcut;
    EXPECT_EQ(shortcuts, (std::map<std::string, std::string>{
                             {"mnuNewProject", "Ctrl+N"}, {"mnuOpenProject", "Ctrl+O"}, {"mnuFileExit", "Ctrl+Q"}}));
}

TEST_F(FrameMenu, AtLoadTheProblemsAndTheHelpPagesAreDisabled) {
    for (const char* key : {"mnuMainProblem", "mnuHelpContents", "mnuShortDescription", "mnuNewVersion"})
        EXPECT_FALSE(Enabled(key)) << key;
    for (const char* key : {"mnuFile", "mnuNewProject", "mnuOpenProject", "mnuUnits", "mnuAbout", "mnuProblem(0)"})
        EXPECT_TRUE(Enabled(key)) << key;
}

TEST_F(FrameMenu, EntriesWithoutADialogAreDisabled) {
    for (int entry = 0; entry <= 8; ++entry)
        EXPECT_EQ(frame.Menu.At("mnuProblem", entry).Enabled, MDITools::DialogExists(entry)) << entry;
    for (int entry = 0; entry <= 3; ++entry) EXPECT_TRUE(MDITools::DialogExists(entry)) << entry;
    EXPECT_FALSE(MDITools::DialogExists(9));
}

TEST_F(FrameMenu, ATickOfAProblemIsTheFlagOfItsData) {
    SetProblemSaved(7, true);
    EXPECT_TRUE(frame.Menu["mnuProblem(7)"].Checked());
    frame.Menu["mnuProblem(7)"].SetChecked(false);
    EXPECT_FALSE(ProblemSaved(7));
    frame.Menu["MnuStatusBar"].SetChecked(true);
    EXPECT_TRUE(frame.Menu["MnuStatusBar"].Checked());
    EXPECT_THAT(TickedProblems(), IsEmpty());
}

TEST_F(FrameMenu, AKeyThatDoesNotExistIsFoundOut) {
    EXPECT_EQ(frame.Menu.Find("mnuNothing"), nullptr);
    EXPECT_EQ(KindOf([&] { frame.Menu["mnuNothing"]; }), FailureKind::SubscriptRange);
    EXPECT_EQ(KindOf([&] { frame.Menu.At("mnuProblem", 16); }), FailureKind::SubscriptRange);
}

// --- clicks ---

TEST_F(FrameMenu, TheProblemEntriesShowTheirDialogs) {
    for (int entry = 1; entry <= 3; ++entry) {
        Session.ProblemType = entry;
        host.OnForm<frmstress>([](frmstress&) {});
        frame.m_cMenu_Click("mnuProblem(" + std::to_string(entry) + ")");
    }
    host.OnForm<frmProblemType>([](frmProblemType&) {});
    frame.m_cMenu_Click("mnuProblem(0)");
    EXPECT_THAT(host.FormsShown, ElementsAre("frmstress", "frmstress", "frmstress", "frmProblemType"));
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(FrameMenu, TheNinthProblemHasNoDialogAndSaysSo) {
    frame.m_cMenu_Click("mnuProblem(9)");
    ASSERT_EQ(host.Messages.size(), 1u);
    EXPECT_EQ(host.LastMessage().Text, Text(900019_text));
    EXPECT_THAT(host.FormsShown, IsEmpty());
}

TEST_F(FrameMenu, EntriesBeyondTheNinthDoNothing) {
    for (int entry = 10; entry <= 15; ++entry) frame.m_cMenu_Click("mnuProblem(" + std::to_string(entry) + ")");
    frame.mnuProblem_Click(16);
    frame.mnuProblem_Click(-1);
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_THAT(host.FormsShown, IsEmpty());
}

TEST_F(FrameMenu, AClickComesByThePlaceOfTheEntryToo) {
    const auto& items = frame.Menu.Items();
    for (std::size_t i = 0; i < items.size(); ++i)
        if (items[i].Key == "mnuUnits") {
            host.OnForm<frmUnits>([](frmUnits&) {});
            frame.m_cMenu_Click(static_cast<int>(i));
        }
    frame.m_cMenu_Click(-1);
    frame.m_cMenu_Click(static_cast<int>(items.size()));
    EXPECT_THAT(host.FormsShown, ElementsAre("frmUnits"));
}

TEST_F(FrameMenu, TheSettingsEntriesShowTheirDialogs) {
    host.OnForm<frmDataDir>([](frmDataDir&) {});
    frame.m_cMenu_Click("mnuDirOfData");
    host.OnForm<frmPreferences>([](frmPreferences&) {});
    frame.m_cMenu_Click("mnuPreferences");
    host.OnForm<frmAbout>([](frmAbout&) {});
    frame.m_cMenu_Click("mnuAbout");
    host.OnForm<frmNumberFormats>([](frmNumberFormats&) {});
    frame.m_cMenu_Click("mnuNumberFormats");
    EXPECT_THAT(host.FormsShown, ElementsAre("frmDataDir", "frmPreferences", "frmAbout", "frmNumberFormats"));
}

TEST_F(FrameMenu, HeadingsSeparatorsAndStatesHaveNoCommand) {
    for (const char* key : {"mnuFile", "MnuVeiw", "mnuMainProblem", "mnuMainData", "mnuHelp", "mnu_Toolbar", "mnuTheme",
                            "MnuStatusBar", "mnuFileDash2", "MnuRecentFile(0)", "no such key"})
        frame.m_cMenu_Click(key);
    EXPECT_THAT(host.FormsShown, IsEmpty());
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_TRUE(frame.StatusBarVisible);
}

TEST_F(FrameMenu, CompanyLinesAreEdited) {
    Session.FirmaLine1 = "Old 1";
    host.AnswerCompanyLines(CompanyLines{"Bau GmbH", "Berlin"});
    frame.m_cMenu_Click("mnuFirmaData");
    EXPECT_EQ(Session.FirmaLine1, "Bau GmbH");
    EXPECT_EQ(Session.FirmaLine2, "Berlin");
    host.AnswerCompanyLines(std::nullopt);
    frame.m_cMenu_Click("mnuFirmaData");
    EXPECT_EQ(Session.FirmaLine1, "Bau GmbH");
}

TEST_F(FrameMenu, TheFileListShowsTheProjectsOfTheDataDirectory) {
    frame.m_cMenu_Click("mnuFileList");
    EXPECT_THAT(host.FileLists, ElementsAre(std::pair(DataDir(), std::string("po3"))));
}

TEST_F(FrameMenu, HelpTopicsHaveTheirKeys) {
    frame.mnuHelpContents_Click();
    frame.mnuShortDescription_Click();
    frame.mnuNewVersion_Click();
    EXPECT_THAT(host.HelpTopics, ElementsAre("Titel", "2", "verda_new"));
}

TEST_F(FrameMenu, AnotherLanguageHoldsForWhatIsOpenedLater) {
    host.AnswerLanguage(Language::German);
    frame.m_cMenu_Click("MnuLanguage");
    EXPECT_EQ(frame.Menu["mnuFile"].Caption, "&File");
    EXPECT_EQ(frame.Bars.MenuBar().Caption, "Menu bar");
    host.OnForm<frmAbout>([](frmAbout& form) { EXPECT_EQ(form.Caption, "Über Lithmark"); });
    frame.m_cMenu_Click("mnuAbout");
}

TEST_F(FrameMenu, TheRightButtonPopsUpTheProblemsOrTheFileMenu) {
    EXPECT_EQ(frame.PopupKey(2), "mnuOpenProject");
    frame.SetProblemMenu();
    EXPECT_EQ(frame.PopupKey(2), "mnuProblem(0)");
    EXPECT_EQ(frame.PopupKey(1), "");
    EXPECT_EQ(frame.PopupKey(4), "");
}

// A host that can show no forms at all: the command tells it, and nothing is thrown.
TEST_F(FrameMenu, AHostThatShowsNothingIsToldAsAFailure) {
    struct MessagesOnly : Host {
        int Messages = 0;
        void ShowMessage(const std::string&, const std::string&, MessageIcon) override { ++Messages; }
    } bare;
    SetCurrentHost(&bare);
    for (const char* key : {"mnuProblem(0)", "mnuProblem(1)", "mnuUnits", "mnuAbout", "mnuFirmaData", "MnuLanguage",
                            "mnuOpenProject", "mnuNewProject", "mnuFileExit", "mnuFileList", "mnuHelpContents"})
        EXPECT_NO_THROW(frame.m_cMenu_Click(key)) << key;
    SetCurrentHost(&host);
    EXPECT_EQ(bare.Messages, 11);
    EXPECT_FALSE(frame.Ended);
}

TEST_F(FrameMenu, ArabicRunsFromRightToLeft) {
    LanguageTexts().SetCurrent(Language::Arabic);
    frame.Load();
    EXPECT_TRUE(frame.RightToLeft);
    EXPECT_EQ(frame.Menu["mnuFile"].Caption, "ملف");
}

}  // namespace
}  // namespace lithmark::tests
