// The heading block of a report, and lines of text.
#include <gtest/gtest.h>

#include "report/ToolLib.h"
#include "support/Lines.h"
#include "support/Matchers.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

class Heading : public testing::Test {
  protected:
    void SetUp() override { FreshSession(Language::Ids); }
};

TEST_F(Heading, ReplacesTheReportByElevenLinesInTheirOrder) {
    Session.ResultText = "an earlier report\r\n";
    ReportHeading();
    EXPECT_THAT(ReportLinesOf(Session.ResultText),
                ElementsAre(std::string(60, '*'), Centred("T<160030>"), Centred("T<91>(" LITHMARK_VERSION ")"),
                            Centred("T<90>" + LanguageTexts().AuthorsText()), std::string(60, '*'), "T<11>A 17/4",
                            "T<12>2024-05-17", "T<95>Lagerhalle, Prüffeld", "T<107>Halle17", "", std::string(60, '-')));
}

// A report goes to terminals and into documents that cannot hold every code point.
TEST_F(Heading, WhatFilesHoldComesPrintableIntoTheReport) {
    Session.Auftr = "\x1B]0;title\x07";
    Session.Proj = std::string("a\0b", 3) + "\uFFFE";
    ReportHeading();
    const auto lines = ReportLinesOf(Session.ResultText);
    EXPECT_EQ(lines.at(5), "T<11>\uFFFD]0;title\uFFFD");
    EXPECT_EQ(lines.at(7), "T<95>a\uFFFDb\uFFFD");
}

TEST_F(Heading, LeavesAnEmptyParameterBlockSoThatItsFirstLineIsEmpty) {
    AddParameter("left over");
    ReportHeading();
    Session.ResultText.clear();
    AddParameter("a line");
    ReportParameters();
    EXPECT_THAT(ReportLinesOf(Session.ResultText), ElementsAre("", "a line"));
}

TEST(CentredText, GivesHalfABlankToTheEvenNumber) {
    EXPECT_EQ(Centred(std::string(55, 'a')), "  " + std::string(55, 'a'));    // 2.5
    EXPECT_EQ(Centred(std::string(53, 'a')), "    " + std::string(53, 'a'));  // 3.5
    EXPECT_EQ(Centred(std::string(58, 'a')), " " + std::string(58, 'a'));
}

TEST(CentredText, CountsCharactersNotBytes) {
    EXPECT_EQ(Centred("öäüß"), std::string(28, ' ') + "öäüß");
}

TEST(CentredText, PutsNoBlanksBeforeATextLongerThanTheLine) {
    EXPECT_EQ(Centred(std::string(60, 'a')), std::string(60, 'a'));
    EXPECT_EQ(Centred(std::string(70, 'a')), std::string(70, 'a'));
}

class Lines : public testing::Test {
  protected:
    void SetUp() override {
        FreshSession(Language::Ids);
        Session.ResultText.clear();
    }
};

TEST_F(Lines, AreTextsByNumberOrAsTheyStand) {
    ReportLines({101_text, "a line", "101", ""});
    EXPECT_THAT(ReportLinesOf(Session.ResultText), ElementsAre("T<101>", "a line", "T<101>", ""));
}

TEST_F(Lines, AppendNothingForTextNumberZero) {
    ReportLines({TextId{0}, "0", Label()});
    EXPECT_EQ(Session.ResultText, "");
}

TEST_F(Lines, TakeOnlyDigitsForANumber) {
    ReportLines({"10 1", "-101", "1.5", "99999999999999999999"});
    EXPECT_THAT(ReportLinesOf(Session.ResultText), ElementsAre("10 1", "-101", "1.5", "99999999999999999999"));
}

}  // namespace
}  // namespace lithmark::tests
