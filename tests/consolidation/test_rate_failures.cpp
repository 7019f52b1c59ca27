// Degree of consolidation: how a run ends that cannot be calculated. The pointer tells how far it came: a failure ahead
// of the nodes leaves the arrow, one among the nodes the hourglass.
#include <gtest/gtest.h>

#include <limits>

#include "RateCase.h"
#include "services/SharedServices.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class RateFailure : public testing::Test {
  protected:
    RateFailure() {
        FreshSession();
        Session.ResultText = "old report";
        c = RateCase();  // the word of the time unit is English from here on
        c.T = 1;
    }
    // The run ends in the shared failure routine with this kind.
    void ExpectFailure(FailureKind kind, PointerShape pointer) {
        c.Run();
        EXPECT_TRUE(Session.CalcAborted);
        ASSERT_EQ(host.Messages.size(), 1u);
        EXPECT_THAT(host.Messages[0].Text, HasSubstr(SharedServices().FailureText(Failure(kind))));
        EXPECT_EQ(host.Pointer(), pointer);
    }
    // The run ends in it with a cause that the input tells.
    void ExpectCause(const std::string& cause, PointerShape pointer) {
        c.Run();
        EXPECT_TRUE(Session.CalcAborted);
        ASSERT_EQ(host.Messages.size(), 1u);
        EXPECT_THAT(host.Messages[0].Text, HasSubstr("The calculation was stopped: " + cause + "."));
        EXPECT_EQ(host.Pointer(), pointer);
    }
    ScriptedHost host;
    RateCase c;
};

TEST_F(RateFailure, AnUnknownTimeUnitIsADivisionByZero) {
    c.TimeUnit = "[fortnight]";
    ExpectCause("the time unit \"[fortnight]\" is unknown", PointerShape::Default);
    EXPECT_EQ(Session.PrefDz, 1) << "overwritten ahead of the division";
    EXPECT_EQ(Session.ResultText, "old report");
}

TEST_F(RateFailure, TheTimeUnitIsTheWordOfTheCurrentLanguage) {
    c.TimeUnit = Text(10004_text);
    LanguageTexts().SetCurrent(Language::Arabic);
    c.Run();
    EXPECT_TRUE(Session.CalcAborted);
    ASSERT_EQ(host.Messages.size(), 1u);
    EXPECT_THAT(host.Messages[0].Text, HasSubstr("وحدة الزمن"));
    EXPECT_THAT(host.Messages[0].Text, HasSubstr("years"));
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
}

TEST_F(RateFailure, CvZeroInAllLayersInUseIsADivisionByZero) {
    c.Cv = Array<Single>::Of({0, 1});
    ExpectCause("coefficient of consolidation is 0", PointerShape::Default);
}

TEST_F(RateFailure, ARectangleAtDepthZeroIsADivisionByZero) {
    c.Pressure = false;
    c.z = 0;
    ExpectCause("z-coordinate is 0", PointerShape::Hourglass);
    EXPECT_EQ(Session.ResultText, "old report");
}

TEST_F(RateFailure, NoInitialPressureAtAllIsADivisionByZero) {
    c.U = 0;
    ExpectCause("constant pore water pressure is 0", PointerShape::Hourglass);
}

TEST_F(RateFailure, ALoadTypeOutside1To3GivesNoInitialPressure) {
    c.Pressure = false;
    for (const int type : {0, 4}) {
        host.Messages.clear();
        c.LoadType = type;
        ExpectFailure(FailureKind::DivisionByZero, PointerShape::Hourglass);
    }
}

// dz(2) = 1/4 of dz(1): lambda2 = 16/6, and errors of the last digit grow until 32 bits are full.
TEST_F(RateFailure, AnUnstableSchemeEndsAsOverflow) {
    c.NumLayers = 2;
    c.h = Array<Single>::Of({8, 1});
    ExpectCause("layer thickness 2 is too small", PointerShape::Hourglass);
}

TEST_F(RateFailure, UnequalLayersWithPermeabilityZeroAboveAreADivisionByZero) {
    c.NumLayers = 2;
    c.K(1) = 0;
    ExpectCause("coefficient of permeability 1 is 0", PointerShape::Hourglass);
}

TEST_F(RateFailure, ALayerWithoutThicknessIsADivisionByZero) {
    c.h(1) = 0;
    ExpectCause("layer thickness 1 is 0", PointerShape::Default);
    host.Messages.clear();
    c.h = Array<Single>::Of({4, 0});
    c.NumLayers = 2;
    ExpectCause("layer thickness 2 is 0", PointerShape::Hourglass);
}

TEST_F(RateFailure, MoreNodesThanAnIntegerCountsFailAtOnce) {
    for (const double h : {32766.5, 32767.0, 40000.0, 1e38}) {
        host.Messages.clear();
        c.h(1) = h;
        ExpectCause("layer thickness 1 is too large", PointerShape::Default);
    }
    host.Messages.clear();
    c.NumLayers = 2;
    c.h = Array<Single>::Of({20000, 20000});
    ExpectCause("layer thickness 1 is too large", PointerShape::Default);
}

TEST_F(RateFailure, TheThickestLayerThatCanBeCountedWorks) {
    c.h(1) = 32766;
    c.Run();
    EXPECT_FALSE(Session.CalcAborted);
    EXPECT_EQ(Session.IsoLast, 32766);
    EXPECT_GT(Session.Uc, 0);
}

TEST_F(RateFailure, LayersBeyondTwoOrNoneAreOutOfRange) {
    for (const int layers : {0, 3, 32767}) {
        host.Messages.clear();
        c.NumLayers = layers;
        ExpectFailure(FailureKind::SubscriptRange, PointerShape::Default);
    }
}

TEST_F(RateFailure, ADrainageConditionThatIsNeitherHasNoDrainageLength) {
    c.Drainage = 0;
    ExpectFailure(FailureKind::DivisionByZero, PointerShape::Default);
}

TEST_F(RateFailure, ATimeWhoseStepsDoNotFit32BitsIsAnOverflow) {
    c.T = 3e38;
    ExpectCause("time of consolidation is too large", PointerShape::Default);
}

// --- the limit of steps ---

// The longest time of 32000 steps as 32 bits count them, and the next longer one.
Single LongestTime(const RateCase& c) {
    const double dt = StepOf(c);
    float T = static_cast<float>(32000 * dt);
    while (static_cast<float>(T / dt) > 32000.0f) T = std::nextafterf(T, 0);
    while (static_cast<float>(std::nextafterf(T, 1e9f) / dt) <= 32000.0f) T = std::nextafterf(T, 1e9f);
    EXPECT_EQ(static_cast<float>(T / dt), 32000.0f);
    return T;
}

TEST_F(RateFailure, Exactly32000StepsPass) {
    c = StepCase(100);
    c.T = LongestTime(c);
    c.Run();
    EXPECT_FALSE(Session.CalcAborted);
    EXPECT_TRUE(host.Messages.empty());
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
}

TEST_F(RateFailure, OneDigitMoreGivesTheMessageWithTheTimeUnitAndNoReport) {
    for (const Language language : {Language::German, Language::English, Language::Arabic}) {
        FreshSession(language);
        Session.ResultText = "old report";
        host.Messages.clear();
        c = StepCase(100);
        c.T = std::nextafterf(static_cast<float>(LongestTime(c)), 1e9f);
        c.Run();
        EXPECT_TRUE(Session.CalcAborted);
        ASSERT_EQ(host.Messages.size(), 1u);
        EXPECT_EQ(host.Messages[0].Title, Text(140187_text));
        EXPECT_EQ(host.Messages[0].Text, Text(400123_text, {{"|1", Text(10001_text)}}));
        EXPECT_THAT(host.Messages[0].Text, HasSubstr(Text(10001_text)));
        EXPECT_EQ(host.Messages[0].Icon, MessageIcon::Exclamation);
        EXPECT_EQ(host.Pointer(), PointerShape::Default);
        EXPECT_EQ(Session.ResultText, "old report");
    }
}

TEST_F(RateFailure, AVeryLongTimeGivesTheMessageAtOnce) {
    c.T = 1e30;
    c.Run();
    EXPECT_TRUE(Session.CalcAborted);
    EXPECT_EQ(host.LastMessage().Title, Text(140187_text));
}

// What fails on the way to the limit fails as ever: the limit is looked at after the first step.
TEST_F(RateFailure, ARectangleAtDepthZeroFailsAlsoWithTooManySteps) {
    c.T = 1e30;
    c.Pressure = false;
    c.z = 0;
    ExpectCause("z-coordinate is 0", PointerShape::Hourglass);
}

TEST_F(RateFailure, ALongRunCanBeCancelled) {
    c = StepCase(100);
    c.T = 3000;
    host.CancelAtProgress(1);
    c.Run();
    EXPECT_TRUE(Session.CalcAborted);
    EXPECT_EQ(host.ProgressReports.size(), 1u);
    EXPECT_EQ(Session.ResultText, "old report");
}

TEST_F(RateFailure, AGoodRunAfterAFailedOneIsAsEver) {
    c.U = 0;
    c.Run();
    host.Messages.clear();
    c.U = 100;
    c.Run();
    EXPECT_FALSE(Session.CalcAborted);
    EXPECT_TRUE(host.Messages.empty());
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
}

}  // namespace
}  // namespace lithmark::tests
