// The board of notices: ids, order, sentences, languages, and measured values as words.
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>

#include "core/Units.h"
#include "report/KernelRun.h"
#include "report/Measured.h"
#include "services/SharedServices.h"
#include "support/Files.h"
#include "support/Matchers.h"
#include "support/Places.h"
#include "support/Raised.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

class NoticesTest : public testing::Test {
  protected:
    NoticesTest() {
        FreshSession();
        Notices().Clear();
    }
    ~NoticesTest() override {
        Notices().Clear();
        LanguageTexts().SetCurrent(Language::English);
    }
    ScriptedHost host_;
};

TEST_F(NoticesTest, AreShownInTheOrderOfTheirIdsHoweverTheyWereRaised) {
    EXPECT_EQ(NoticeIds(), "");
    Notices().Raise(NoticeId::IterationEnd, 907011_text, {"12"});
    Notices().Raise(NoticeId::RaftTension, 907003_text, {"-3 kN/m²", "4 %", "80 kN/m²"});
    Notices().Raise(NoticeId::QImpossible, 907033_text, {"2", "1", "0.9"});
    EXPECT_EQ(NoticeIds(), "raft-tension q-impossible iteration-end");
}

TEST_F(NoticesTest, ASecondCallAddsASentence) {
    Notices().Raise(NoticeId::RaftEquilibrium, 907001_text, {"11 kN", "10 kN", "10 %"});
    Notices().Raise(NoticeId::RaftEquilibrium, 907002_text, {"x", "2 kN.m", "1 kN.m"});
    EXPECT_EQ(Notices().All().size(), 1u);
    EXPECT_EQ(Told(NoticeId::RaftEquilibrium),
              "The node forces sum to 11 kN instead of the load of 10 kN (10 %). Their moment along x is 2 kN.m, the "
              "load's is 1 kN.m.");
}

TEST_F(NoticesTest, AreTextsOfTheLanguageInForceWhenTheyAreRead) {
    Notices().Raise(NoticeId::IterationEnd, 907011_text, {"12"});
    LanguageTexts().SetCurrent(Language::German);
    EXPECT_THAT(Told(NoticeId::IterationEnd), HasSubstr("12 Durchgängen"));
    LanguageTexts().SetCurrent(Language::Ids);
    EXPECT_EQ(Told(NoticeId::IterationEnd), "T<907011>(12)");
}

TEST_F(NoticesTest, ARunStartsWithAnEmptyBoardAndAFailureKeepsWhatItRaised) {
    Notices().Raise(NoticeId::IterationEnd, 907011_text, {"12"});
    RunKernel([] {});
    EXPECT_EQ(NoticeIds(), "");
    RunKernel([] {
        Notices().Raise(NoticeId::MarchUnstable, 907019_text, {"1", "2", "0.5"});
        Fail(FailureKind::Overflow);
    });
    EXPECT_TRUE(Session.CalcAborted);
    EXPECT_EQ(NoticeIds(), "march-unstable");
    // No result is shown that it could stand beside, so the failure's message has it.
    EXPECT_EQ(host_.LastMessage().Text,
              "The calculation was stopped: a value became too large. Layer 1: the step number is 2; beyond 0.5 the "
              "march is unstable.");
}

TEST_F(NoticesTest, AMeasureThatFailsEndsAlone) {
    MeasureRun([] { Fail(FailureKind::DivisionByZero); });
    EXPECT_TRUE(host_.Messages.empty());
}

// Scripts and the manual know a notice by its name, in each language.
TEST_F(NoticesTest, EveryIdHasANameAndASectionOfTheManual) {
    std::set<std::string> names;
    for (int id = 0; id < kNoticeIds; ++id) names.emplace(NoticeName(static_cast<NoticeId>(id)));
    EXPECT_EQ(names.size(), static_cast<std::size_t>(kNoticeIds));
    for (const char* page : {"notices.md", "manual/de/notices.md", "manual/ar/notices.md"}) {
        const std::string manual = ReadBytes((SourceDir() / "docs" / page).string());
        for (const std::string& name : names) EXPECT_THAT(manual, HasSubstr("\n## " + name + "\n")) << page;
    }
}

TEST_F(NoticesTest, MeasuredValuesHaveFourDigitsAndTheUnitInForce) {
    EXPECT_EQ(MeasuredLength(12), "12 m");
    EXPECT_EQ(MeasuredLength(0.3333333), "0.3333 m");
    EXPECT_EQ(MeasuredSettlement(-11.51), "-11.51 cm");
    EXPECT_EQ(MeasuredPressure(12866.4), "12866 kN/m²");
    EXPECT_EQ(MeasuredPercent(0.1234567), "12.35 %");
    EXPECT_EQ(MeasuredNumber(3e24), "3.00E+24");
    EXPECT_EQ(MeasuredNumber(0), "0");
    Session.Len1Factor = 1 / 0.3048;
    Session.Len1Label = Text(36_text);
    EXPECT_EQ(MeasuredLength(3.048), "10.00 ft");
    SharedServices().DecimalSign = ',';
    EXPECT_EQ(MeasuredNumber(0.5), "0,5000");
    SharedServices().DecimalSign = '.';
}

TEST_F(NoticesTest, ArabicKeepsAValueAndItsUnitTogether) {
    LanguageTexts().SetCurrent(Language::Arabic);
    EXPECT_EQ(MeasuredLength(12), "\u206812 m\u2069");
    EXPECT_EQ(MeasuredIn(7, Text(10002_text)), "\u20687 أسبوع\u2069");
}

}  // namespace
}  // namespace lithmark::tests
