// Ticks of axes, against what one would write at an axis by hand.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "contour/AxisTicks.h"
#include "services/texts/LanguageTexts.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

TEST(AxisTicksTest, StepsAreOneTwoOrFiveTimesAPowerOfTen) {
    EXPECT_THAT(RoundTicks(0, 20, 6).Places, ElementsAre(0, 5, 10, 15, 20));
    EXPECT_THAT(RoundTicks(0, 12.1, 8).Places, ElementsAre(0, 2, 4, 6, 8, 10, 12));
    EXPECT_THAT(RoundTicks(0.13, 0.42, 4).Places, ElementsAre(0.2, 0.3, 0.4));
    EXPECT_THAT(RoundTicks(-7, 7, 3).Places, ElementsAre(-5, 0, 5));
    for (double size = 1e-9; size < 1e9; size *= 1.37)
        for (const int most : {3, 5, 12}) {
            const AxisTicks ticks = RoundTicks(0.3 * size, 1.3 * size, most);
            ASSERT_LE(static_cast<int>(ticks.Places.size()), most) << size;
            ASSERT_GE(ticks.Places.size(), 1u) << size;
            const double mantissa = ticks.Step / std::pow(10, std::floor(std::log10(ticks.Step) + 1e-9));
            EXPECT_TRUE(std::abs(mantissa - 1) < 1e-6 || std::abs(mantissa - 2) < 1e-6 || std::abs(mantissa - 5) < 1e-6)
                << mantissa;
        }
}

TEST(AxisTicksTest, PlacesAreTheVeryDecimals) {
    EXPECT_THAT(RoundTicks(0, 0.7, 8).Places, ElementsAre(0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7));
}

TEST(AxisTicksTest, EndsThatRoundingPutsJustOutsideHaveTheirTick) {
    EXPECT_EQ(RoundTicks(0.1 + 0.2, 0.9, 8).Places.front(), 0.3);
    EXPECT_EQ(RoundTicks(0, 3 * 0.1 - 1e-17, 4).Places.back(), 0.3);
}

TEST(AxisTicksTest, CountedTimesHaveWholeTicks) {
    EXPECT_THAT(RoundTicks(0, 2, 12, true).Places, ElementsAre(0, 1, 2));
    EXPECT_THAT(RoundTicks(-0.04, 2.04, 12, true).Places, ElementsAre(0, 1, 2));
    EXPECT_THAT(RoundTicks(0, 30, 8, true).Places, ElementsAre(0, 5, 10, 15, 20, 25, 30));
    EXPECT_THAT(RoundTicks(0.2, 0.8, 5, true).Places, IsEmpty()) << "no whole number lies between";
}

TEST(AxisTicksTest, AnAxisWithoutWidthHasNoTicks) {
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_THAT(RoundTicks(1, 1, 5).Places, IsEmpty());
    EXPECT_THAT(RoundTicks(2, 1, 5).Places, IsEmpty());
    EXPECT_THAT(RoundTicks(0, infinite, 5).Places, IsEmpty());
    EXPECT_THAT(RoundTicks(std::nan(""), 1, 5).Places, IsEmpty());
}

TEST(AxisTicksTest, LabelsHaveTheDecimalsOfTheStepAndNoGrouping) {
    const AxisTicks ticks = RoundTicks(0, 1, 6);
    EXPECT_EQ(ticks.Decimals, 1);
    EXPECT_EQ(TickText(ticks.Places[1], ticks.Decimals, ','), "0,2");
    EXPECT_EQ(TickText(0, ticks.Decimals, ','), "0,0");
    EXPECT_EQ(TickText(1234567, 0, '.'), "1234567");
    EXPECT_EQ(TickText(-0.04, 1, '.'), "0.0");
}

TEST(AxisTicksTest, TheDecimalSignIsThatOfTheLanguage) {
    for (const auto& [language, sign] :
         {std::pair(Language::German, ','), {Language::English, '.'}, {Language::Arabic, '.'}}) {
        LanguageTexts().SetCurrent(language);
        EXPECT_EQ(LanguageDecimalSign(), sign);
    }
    LanguageTexts().SetCurrent(Language::English);
}

TEST(AxisTicksTest, DecimalsOfAStep) {
    EXPECT_EQ(DecimalsOf(5), 0);
    EXPECT_EQ(DecimalsOf(0.2), 1);
    EXPECT_EQ(DecimalsOf(0.05), 2);
    EXPECT_EQ(RoundStep(3), 5);
    EXPECT_EQ(RoundStep(0.2), 0.2);
    EXPECT_EQ(RoundStep(0.21), 0.5);
}

}  // namespace
}  // namespace lithmark::tests
