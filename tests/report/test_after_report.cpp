// What stands behind a report: the box of notices and the tables for a check by hand, as text.
#include <gtest/gtest.h>

#include <string>

#include "base/Utf8.h"
#include "report/AfterReport.h"
#include "report/Notices.h"
#include "report/ToolLib.h"
#include "support/Lines.h"
#include "support/Matchers.h"
#include "support/StepsOn.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

class AfterReport : public testing::Test {
  protected:
    AfterReport() {
        FreshSession();
        Notices().Clear();
        Session.ResultText = "Report" + kLineEnd;
    }
    ~AfterReport() override {
        Notices().Clear();
        LanguageTexts().SetCurrent(Language::English);
    }
    static void AddTable() {
        StepTable& table = Steps().Add("Parts");
        table.AddColumn(std::string("Part"), "i");
        table.AddColumn(std::string("Depth of the middle"), "z", "[m]");
        table.AddColumn(std::string("Settlement"), "ds", "[cm]");
        table.Rows = {{1.0, 0.125, 12.25}, {2.0, 0.375, 0.5}, {3.0, {}, "none"}};
        table.AddSums({2});
        table.AddLine("Result", {{}, 12.75});
        table.Notes.push_back("ds is the settlement of a part.");
    }
    StepsOn on_;
};

TEST_F(AfterReport, NothingToTellLeavesTheReportAlone) {
    EXPECT_EQ(NoticeBox(), "");
    EXPECT_EQ(ReportWith({}), Session.ResultText);
    EXPECT_EQ(ReportWith({.Notices = false}), Session.ResultText);
    EXPECT_THAT(ReportWith({.Notices = false, .Tables = true}), HasSubstr("This run has no steps to show."));
}

TEST_F(AfterReport, TheBoxHasIdsAndTextsInLinesOfTheReportsWidth) {
    Notices().Raise(NoticeId::RaftTension, 907003_text, {"-121 kN/m²", "12.5 %", "314 kN/m²"});
    Notices().Raise(NoticeId::IterationEnd, 907011_text, {"12"});
    EXPECT_THAT(
        ReportLinesOf(NoticeBox()),
        ElementsAre("", Ruler(), "Notices:", Ruler(), "raft-tension: The contact pressure goes down to -121 kN/m²",
                    "and is tension on 12.5 % of the area, under a mean of", testing::StartsWith("314 kN/m². "),
                    testing::_, "iteration-end: The iteration ended after 12 passes, before",
                    "the settlements stood still.", Ruler()));
    for (const std::string& line : ReportLinesOf(NoticeBox())) EXPECT_LE(CharacterCount(line), 60u) << line;
    EXPECT_EQ(ReportWith({}), Session.ResultText + NoticeBox());
}

TEST_F(AfterReport, NoLineEndsInsideAValueOrAFormula) {
    for (int length = 1; length < 60; ++length) {
        const std::string before(static_cast<std::size_t>(length), 'x');
        Notices().Clear();
        Notices().Raise(NoticeId::CircleNearNodes, 907031_text, {before + " 1.667 m", "1.083 cm", "1.244 cm"});
        Notices().Raise(NoticeId::HistoryShift, 907025_text, {"0.8160"});
        const std::string box = NoticeBox();
        for (const char* kept : {"1.667 m", "1.083 cm", "1.244 cm", "t - 1"}) EXPECT_THAT(box, HasSubstr(kept));
    }
}

TEST_F(AfterReport, InArabicAValueIsNotPartedFromItsUnit) {
    LanguageTexts().SetCurrent(Language::Arabic);
    const std::string value = "\u2066-121.4 kN/m²\u2069";
    Notices().Raise(NoticeId::RaftTension, 907003_text, {value, value, value});
    std::string text;
    for (const std::string& line : ReportLinesOf(NoticeBox())) {
        // Every isolate ends in the line in which it begins.
        int open = 0;
        for (const char32_t c : CodePoints(line)) open += c == 0x2066 ? 1 : c == 0x2069 ? -1 : 0;
        EXPECT_EQ(open, 0) << line;
    }
    // The name of a notice, too, is one word apart from the sentence's signs.
    EXPECT_THAT(NoticeBox(), HasSubstr("\u2066raft-tension\u2069: "));
}

TEST_F(AfterReport, ATableHasItsColumnsUnderEachOtherAndItsSums) {
    AddTable();
    EXPECT_THAT(ReportLinesOf(StepTablesText()),
                ElementsAre("", "Tables for a check by hand", "--------------------------", "", "Parts:",
                            "------------------------------",  //
                            "  Part    Depth of  Settlement",  //
                            "        the middle",              //
                            "     i           z          ds",  //
                            "               [m]        [cm]",  //
                            "------------------------------",  //
                            "     1   0.1250000    12.25000",  //
                            "     2   0.3750000     0.50000",  //
                            "     3                    none",  //
                            "------------------------------",  //
                            "Sum                   12.75000",  //
                            "Result                12.75000",  //
                            "------------------------------",  //
                            "ds is the settlement of a part.", ""));
    EXPECT_EQ(ReportWith({.Notices = false, .Tables = true}), Session.ResultText + StepTablesText());
}

TEST_F(AfterReport, NoticesComeAheadOfTables) {
    AddTable();
    Notices().Raise(NoticeId::IterationEnd, 907011_text, {"12"});
    EXPECT_EQ(ReportWith({.Tables = true}), Session.ResultText + NoticeBox() + StepTablesText());
}

TEST_F(AfterReport, ASwitchedOffRecorderIsOffByDefault) {
    Steps().SwitchOn(false);
    EXPECT_FALSE(Steps().On());
}

}  // namespace
}  // namespace lithmark::tests
