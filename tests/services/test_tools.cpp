// ListTools, TextTools, FileTools and the command line's host.
#include <csignal>

#include "services/FileTools.h"
#include "services/ListTools.h"
#include "services/ServicesTest.h"
#include "services/TextTools.h"
#include "services/host/ConsoleHost.h"
#include "support/Languages.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class Tools : public ServicesTest {
  protected:
    std::vector<std::string> Visible(const RecentFileTable& table) const {
        std::vector<std::string> captions;
        for (const RecentFile& row : table)
            if (row.Visible) captions.push_back(row.Caption);
        return captions;
    }
};

// --- ListTools -----------------------------------------------------------------------------------------------------

TEST_F(Tools, TheKeyOfAMenuEntryEndsInItsIndex) {
    EXPECT_EQ(ListTools().KeyIndex("mnuProblem(0)"), 0);
    EXPECT_EQ(ListTools().KeyIndex("MnuRecentFile(4)"), 4);
    EXPECT_EQ(ListTools().KeyIndex("mnuProblem(15)"), 15);
    for (const char* key :
         {"mnuFile", "", "mnuProblem()", "mnuProblem(x)", "mnuProblem(1", "mnuProblem(1)x", "mnuProblem(99999999999)"})
        EXPECT_EQ(ListTools().KeyIndex(key), -1) << key;
}

TEST_F(Tools, ARecentFileGoesToTheTopAndStandsThereOnce) {
    RecentFileTable table;
    for (const char* name : {"A.PO3", "B.PO3", "C.PO3", "A.po3"})
        ListTools().AddRecentFile(folder / name, "App", table);
    EXPECT_THAT(Visible(table), ElementsAre("-", folder / "A.PO3", folder / "C.PO3", folder / "B.PO3"));
}

TEST_F(Tools, TheListKeepsFourFilesAndIsStored) {
    RecentFileTable table;
    for (const char* name : {"A.PO3", "B.PO3", "C.PO3", "D.PO3", "E.PO3"})
        ListTools().AddRecentFile(folder / name, "App", table);
    RecentFileTable loaded;
    ListTools().LoadRecentFiles("App", loaded);
    EXPECT_THAT(Visible(loaded),
                ElementsAre("-", folder / "E.PO3", folder / "D.PO3", folder / "C.PO3", folder / "B.PO3"));
    EXPECT_EQ(Visible(loaded), Visible(table));
    ListTools().LoadRecentFiles("Another", loaded);
    EXPECT_THAT(Visible(loaded), IsEmpty());
}

TEST_F(Tools, AnExistingRecentFileIsGivenAndTheListStays) {
    LITHMARK_NEEDS(NamesByCase);
    RecentFileTable table;
    WriteBytes(folder / "A.po3", "");
    ListTools().AddRecentFile(folder / "A.PO3", "App", table);
    EXPECT_EQ(ListTools().GetRecentFile("App", 1, table), folder / "A.po3");
    for (const int index : {0, 2, 4, 5, -1}) EXPECT_EQ(ListTools().GetRecentFile("App", index, table), "");
    EXPECT_THAT(Visible(table), SizeIs(2));
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(Tools, AMissingRecentFileIsToldAndTakenFromTheList) {
    RecentFileTable table;
    WriteBytes(folder / "A.PO3", "");
    for (const char* name : {"A.PO3", "B.PO3"}) ListTools().AddRecentFile(folder / name, "App", table);
    EXPECT_EQ(ListTools().GetRecentFile("App", 1, table), "");
    EXPECT_THAT(host.LastMessage().Text, HasSubstr(folder / "B.PO3"));
    EXPECT_THAT(Visible(table), ElementsAre("-", folder / "A.PO3"));
    RecentFileTable loaded;
    ListTools().LoadRecentFiles("App", loaded);
    EXPECT_EQ(Visible(loaded), Visible(table));
}

TEST_F(Tools, PlacesOfWindowsAndBarsComeBack) {
    EXPECT_FALSE(ListTools().LoadFormPosition("MDITools", "App", "Settings"));
    ListTools().SaveFormPosition("MDITools", {-8, 20, 1200, 800, true}, "App", "Settings");
    const auto position = ListTools().LoadFormPosition("MDITools", "App", "Settings");
    ASSERT_TRUE(position);
    EXPECT_EQ(position->Left, -8);
    EXPECT_EQ(position->Height, 800);
    EXPECT_TRUE(position->Maximized);
    for (const char* damaged : {"1 2 3", "a b c d e", "0 0 0 100 0", "0 0 99999999999 1 0"}) {
        SharedServices().SaveSetting("App", "Settings", "MDITools Position", std::string(damaged));
        EXPECT_FALSE(ListTools().LoadFormPosition("MDITools", "App", "Settings")) << damaged;
    }
    EXPECT_FALSE(ListTools().LoadDockLayout("MDITools", "App"));
    ListTools().SaveDockLayout("MDITools", "00ff17", "App");
    EXPECT_EQ(ListTools().LoadDockLayout("MDITools", "App"), "00ff17");
    ListTools().SaveDockLayout("MDITools", "", "App");
    EXPECT_FALSE(ListTools().LoadDockLayout("MDITools", "App"));
}

TEST_F(Tools, ABarIsAsWideAsItsButtonsOfSixteenPixels) {
    EXPECT_EQ(ListTools().BarHeight(), 24);
    EXPECT_EQ(ListTools().BarWidth(0), 10);
    EXPECT_EQ(ListTools().BarWidth(5) - ListTools().BarWidth(4), 24);
    EXPECT_EQ(ListTools().BarWidth(-3), 10);
}

// --- TextTools -----------------------------------------------------------------------------------------------------

TEST_F(Tools, BlanksAreNoneForANegativeCount) {
    EXPECT_EQ(TextTools().Blanks(3), "   ");
    EXPECT_EQ(TextTools().Blanks(0), "");
    EXPECT_EQ(TextTools().Blanks(-5), "");
}

TEST_F(Tools, DaysAreNumberedByTheGregorianCalendar) {
    EXPECT_EQ(TextTools().DayNumber(1970, 1, 1), 25569);
    EXPECT_EQ(TextTools().DayNumber(2000, 2, 29), 36585);   // 25569 + 30 years of 365 days + 7 leap days + 59
    EXPECT_EQ(TextTools().DayNumber(2026, 11, 21), 46347);  // 25569 + 56 years + 14 leap days + 324
    EXPECT_EQ(TextTools().DayNumber(1900, 2, 29), std::nullopt);
    EXPECT_EQ(TextTools().DayNumber(2026, 13, 1), std::nullopt);
    EXPECT_EQ(TextTools().DayNumber(2026, 4, 31), std::nullopt);
    EXPECT_EQ(TextTools().DayNumber(26, 1, 1), std::nullopt);
}

TEST_F(Tools, ALongDateIsWrittenAsTheLanguageDoes) {
    const int day = *TextTools().DayNumber(2026, 11, 21);
    LanguageTexts().SetCurrent(Language::German);
    EXPECT_EQ(TextTools().LongDate(day), "Samstag, 21. November 2026");
    LanguageTexts().SetCurrent(Language::English);
    EXPECT_EQ(TextTools().LongDate(day), "Saturday, November 21, 2026");
    LanguageTexts().SetCurrent(Language::Arabic);
    EXPECT_EQ(TextTools().LongDate(day), "السبت، 21 نوفمبر 2026");
    EXPECT_EQ(KindOf([] { TextTools().LongDate(99999999); }), FailureKind::Overflow);
}

TEST_F(Tools, ALongDateOfAnyLanguageIsReadInEveryOther) {
    const int first = *TextTools().DayNumber(1999, 12, 20), last = *TextTools().DayNumber(2001, 1, 10);
    for (const Language written : kLanguages)
        for (int day = first; day <= last; ++day) {
            LanguageTexts().SetCurrent(written);
            const std::string text = TextTools().LongDate(day);
            LanguageTexts().SetCurrent(Language::English);
            ASSERT_EQ(TextTools().ReadDate(text), day) << text;
        }
}

TEST_F(Tools, DatesAreReadAsPeopleTypeThem) {
    const int day = *TextTools().DayNumber(2026, 3, 5);
    for (const char* text : {"5. März 2026", "March 5, 2026", "5 march 2026", "2026-03-05", "05.03.2026", "5.3.2026",
                             "Thursday, March 5, 2026", "٥ مارس ٢٠٢٦"})
        EXPECT_EQ(TextTools().ReadDate(text), day) << text;
    for (const char* text : {"", "today", "March 2026", "5. Brumaire 2026", "30. Februar 2026", "5. März",
                             "Someday, March 5, 2026", "99999.3.2026", "1 2 3 4", "March March March"})
        EXPECT_EQ(TextTools().ReadDate(text), std::nullopt) << text;
}

TEST_F(Tools, TodayIsTodaysDate) {
    EXPECT_EQ(TextTools().ReadDate(TextTools().LongDateOfToday()), TextTools().Today());
    EXPECT_GT(TextTools().Today(), *TextTools().DayNumber(2025, 1, 1));
}

TEST_F(Tools, APictureIsShownWhenItsFileIsThere) {
    Form form("frmAbout");
    Control picture(form, ControlKind::Picture, "imgLogo");
    EXPECT_FALSE(TextTools().LoadPictureFile(picture, folder / "logo.bmp"));
    EXPECT_EQ(picture.Text, "");
    WriteBytes(folder / "logo.bmp", "BM");
    EXPECT_TRUE(TextTools().LoadPictureFile(picture, folder / "logo.bmp"));
    EXPECT_EQ(picture.Text, folder / "logo.bmp");
}

TEST_F(Tools, AnErrorIsShownInWords) {
    TextTools().ShowError(Failure(FailureKind::OutOfMemory));
    EXPECT_EQ(host.LastMessage().Text, "There is not enough memory.");
}

TEST_F(Tools, WindowsWithFilesAndTextsAreTheHosts) {
    FileTools().ShowFileList("/program/", "/data/", "po3");
    FileTools().ShowTextEditor("/program/", "text");
    EXPECT_THAT(host.FileLists, ElementsAre(std::pair<std::string, std::string>("/data/", "po3")));
    EXPECT_THAT(host.EditorTexts, ElementsAre("text"));
}

// --- ConsoleHost ---------------------------------------------------------------------------------------------------

class Console : public ::testing::Test {
  protected:
    ~Console() override { std::fclose(out); }
    std::string Printed() const {
        std::fflush(out);
        std::string text(1000, '\0');
        std::rewind(out);
        text.resize(std::fread(text.data(), 1, text.size(), out));
        return text;
    }
    std::FILE* out = std::tmpfile();
};

TEST_F(Console, MessagesAreCollectedAndPrintedOnceEachOnALineOfItsOwn) {
    ConsoleHost host(out, false);
    host.ShowMessage("Lithmark", "first\r\nline ", MessageIcon::None);
    host.ShowMessage("Lithmark", "second", MessageIcon::Critical);
    EXPECT_EQ(Printed(), "");
    host.PrintMessages();
    host.PrintMessages();
    EXPECT_EQ(Printed(), "Lithmark: first line\nLithmark: second\n");
    ASSERT_THAT(host.Messages(), SizeIs(2));
    EXPECT_EQ(host.Messages()[0].Text, "first\r\nline ");
}

TEST_F(Console, TheBarComesOnATerminalOnlyAndGoesAgain) {
    {
        ConsoleHost host(out, false);
        EXPECT_TRUE(host.Progress(0.5));
    }
    EXPECT_EQ(Printed(), "");
    {
        ConsoleHost host(out, true);
        EXPECT_TRUE(host.Progress(0.5));
        EXPECT_TRUE(host.Progress(0.501));  // nothing new to show
    }
    EXPECT_EQ(Printed(), "\r[" + std::string(20, '#') + std::string(20, ' ') + "] 50 %\r\x1B[K");
}

TEST_F(Console, CtrlCEndsARunInOrder) {
    ConsoleHost host(out, false);
    EXPECT_TRUE(host.Progress(0.1));
    std::raise(SIGINT);
    EXPECT_FALSE(host.Progress(0.2));
    EXPECT_TRUE(host.Progress(0.3));
}

TEST_F(Console, ASecondCtrlCEndsTheProcessAtOnce) {
    EXPECT_EXIT(
        {
            ConsoleHost host(out, false);
            std::raise(SIGINT);
            std::raise(SIGINT);
        },
        ::testing::ExitedWithCode(130), "");
}

TEST_F(Console, CtrlCMeansWhatItMeantBeforeAndAfterTheHost) {
    const auto before = std::signal(SIGINT, SIG_IGN);
    { ConsoleHost host(out, false); }
    EXPECT_EQ(std::signal(SIGINT, before), SIG_IGN);
}

}  // namespace
}  // namespace lithmark::tests
