// The frame's bars: what they hold, what is shown, what is kept.
#include <map>
#include <string>

#include "FrameTest.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class FrameBars : public FrameTest {
  protected:
    static bool Stored(const std::string& key) {
        return SharedServices().GetSetting(kApplicationTitle, "Settings", key, true);
    }
    static void Store(const std::string& key, bool value) {
        SharedServices().SaveSetting(kApplicationTitle, "Settings", key, value);
    }
};

TEST_F(FrameBars, FourBarsHoldTheEntriesOfFourMenus) {
    Start();
    ASSERT_EQ(frame.Bars.All().size(), 5u);
    EXPECT_EQ(frame.Bars.MenuBar().Name, "MENU");
    EXPECT_EQ(frame.Bars.MenuBar().Caption, "Menu bar");
    EXPECT_THAT(frame.Bars.MenuBar().Buttons,
                ElementsAre("mnuFile", "MnuVeiw", "mnuMainProblem", "mnuMainData", "mnuHelp"));
    EXPECT_EQ(frame.Bars[0].Name, "mnuFile");
    EXPECT_EQ(frame.Bars[0].Caption, "File");
    EXPECT_THAT(frame.Bars[0].Buttons, ElementsAre("mnuNewProject", "mnuOpenProject", "mnuSaveProjectAs", "mnuFileList",
                                                   "mnuCompare", "mnuCloseProject", "mnuFileExit"));
    EXPECT_EQ(frame.Bars[1].Name, "mnuMainProblem");
    EXPECT_EQ(frame.Bars[1].Buttons.size(), 10u);  // entries 0 to 9; the others have no text
    EXPECT_EQ(frame.Bars[2].Name, "mnuMainData");
    EXPECT_EQ(frame.Bars[3].Name, "mnuHelp");
    EXPECT_THAT(frame.Bars[3].Buttons,
                ElementsAre("mnuHelpContents", "mnuShortDescription", "mnuNewVersion", "mnuAbout"));
    EXPECT_EQ(KindOf([&] { frame.Bars[4]; }), FailureKind::SubscriptRange);
}

TEST_F(FrameBars, ABarsSizeComesFromItsButtons) {
    Start();
    for (const Toolbar& bar : frame.Bars.All()) {
        EXPECT_EQ(bar.Width, ListTools().BarWidth(static_cast<int>(bar.Buttons.size()))) << bar.Name;
        EXPECT_EQ(bar.Height, ListTools().BarHeight()) << bar.Name;
    }
    EXPECT_GT(frame.Bars[1].Width, frame.Bars[0].Width);
}

TEST_F(FrameBars, TheWordsOfABarStandInTheOrderOfTheControl) {
    LanguageTexts().SetCurrent(Language::Ids);
    frame.Load();
    EXPECT_THAT(frame.Bars[0].Words, ElementsAre("T<68>", "T<70>", "T<69>"));
}

// Deliberate: the keys of the last bars do not say what they hold.
TEST_F(FrameBars, TheSettingsKeysOfTheBarsAreCrossed) {
    Start();
    EXPECT_EQ(frame.Bars[0].SettingsKey, "File Bar");
    EXPECT_EQ(frame.Bars[1].SettingsKey, "Solve Bar");
    EXPECT_EQ(frame.Bars[2].SettingsKey, "Help Bar");
    EXPECT_EQ(frame.Bars[3].SettingsKey, "Main Problem Bar");
    EXPECT_EQ(frame.Bars.MenuBar().SettingsKey, "");
}

TEST_F(FrameBars, EverythingIsShownWithoutSettings) {
    Start();
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(frame.Bars[i].Visible) << i;
        EXPECT_TRUE(frame.Menu.At("MnuVeiwToolBar", i).Checked()) << i;
    }
    EXPECT_TRUE(frame.mnu_TBStyle.Checked());
    EXPECT_TRUE(frame.Menu["MnuStatusBar"].Checked());
    EXPECT_TRUE(frame.StatusBarVisible);
}

TEST_F(FrameBars, StoredStatesComeBack) {
    Store("Solve Bar", false);
    Store("Main Problem Bar", false);
    Store("Transparent Bar", false);
    Store("Status Bar", false);
    Start();
    EXPECT_TRUE(frame.Bars[0].Visible);
    EXPECT_FALSE(frame.Bars[1].Visible);
    EXPECT_TRUE(frame.Bars[2].Visible);
    EXPECT_FALSE(frame.Bars[3].Visible);
    EXPECT_FALSE(frame.mnu_TBStyle.Checked());
    EXPECT_FALSE(frame.StatusBarVisible);
}

TEST_F(FrameBars, AClickTurnsABar) {
    Start();
    const int before = window.Refreshes;
    frame.m_cMenu_Click("MnuVeiwToolBar(1)");
    EXPECT_FALSE(frame.Bars[1].Visible);
    EXPECT_FALSE(frame.Menu["MnuVeiwToolBar(1)"].Checked());
    EXPECT_GT(window.Refreshes, before);
    EXPECT_TRUE(Stored("Solve Bar"));  // kept at the end of the program only
    frame.m_cMenu_Click("MnuVeiwToolBar(1)");
    EXPECT_TRUE(frame.Bars[1].Visible);
    EXPECT_TRUE(frame.Bars.MenuBar().Visible);
}

TEST_F(FrameBars, ABarThatDoesNotExistIsToldAsAFailure) {
    Start();
    EXPECT_NO_THROW(frame.m_cMenu_Click("MnuVeiwToolBar(4)"));
    EXPECT_EQ(host.Messages.size(), 1u);
}

TEST_F(FrameBars, SavingKeepsSixStatesAndTheLayout) {
    Start();
    frame.m_cMenu_Click("MnuVeiwToolBar(0)");
    frame.m_cMenu_Click("MnuVeiwToolBar(3)");
    frame.mnu_TBStyle.SetChecked(false);
    window.Docked = "all to the left";
    frame.SaveTBar();
    const std::map<std::string, bool> stored = {{"File Bar", false},        {"Solve Bar", true},
                                                {"Help Bar", true},         {"Main Problem Bar", false},
                                                {"Transparent Bar", false}, {"Status Bar", true}};
    for (const auto& [key, value] : stored) EXPECT_EQ(Stored(key), value) << key;
    EXPECT_EQ(ListTools().LoadDockLayout("MDITools", kApplicationTitle), "all to the left");
}

TEST_F(FrameBars, AtTheStartTheStoredLayoutIsLaidOut) {
    ListTools().SaveDockLayout("MDITools", "all to the left", kApplicationTitle);
    Start();
    EXPECT_EQ(window.Docked, "all to the left");
}

TEST_F(FrameBars, WithoutAStoredLayoutTheDefaultOrderIsTaken) {
    Start();
    EXPECT_EQ(window.Docked, "");
}

TEST_F(FrameBars, ResetForgetsTheLayoutAndKeepsWhatIsShown) {
    ListTools().SaveDockLayout("MDITools", "all to the left", kApplicationTitle);
    Start();
    frame.m_cMenu_Click("MnuVeiwToolBar(2)");
    frame.m_cMenu_Click("mnuResetToolbar");
    EXPECT_EQ(window.Docked, "");
    EXPECT_EQ(ListTools().LoadDockLayout("MDITools", kApplicationTitle), std::nullopt);
    EXPECT_FALSE(frame.Bars[2].Visible);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(FrameBars, AFailingResetIsToldAndLeavesTheBars) {
    Start();
    window.Docked = "all to the left";
    window.OnDock = [] { Fail(FailureKind::Other, "no dock"); };
    EXPECT_NO_THROW(frame.m_cMenu_Click("mnuResetToolbar"));
    EXPECT_EQ(window.Docked, "all to the left");
    EXPECT_EQ(host.Messages.size(), 1u);
}

}  // namespace
}  // namespace lithmark::tests
