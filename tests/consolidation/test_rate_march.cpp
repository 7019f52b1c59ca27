// The marching of pore water pressures against a plain transcription of the five-point product, digit by digit.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "kernels/consolidation/PorePressureMarch.h"
#include "support/ScriptedHost.h"

namespace lithmark::tests {
namespace {

// Five terms in order on a zeroed value, each assignment rounded and checked.
Array<Single> PlainProduct(const Array<FivePointRow>& rows, const Array<Single>& old) {
    const int last = old.Upper();
    Array<Single> out{0, last};
    for (int m = 0; m <= last; ++m) {
        if (m > 1) out(m) += rows(m).Cm2 * old(m - 2);
        if (m > 0) out(m) += rows(m).Cm1 * old(m - 1);
        out(m) += rows(m).C0 * old(m);
        if (m < last) out(m) += rows(m).Cp1 * old(m + 1);
        if (m < last - 1) out(m) += rows(m).Cp2 * old(m + 2);
    }
    return out;
}

std::vector<double> Numbers(std::span<const Single::Storage> values) {
    return {values.begin(), values.end()};
}

std::vector<double> Numbers(const Array<Single>& values) {
    std::vector<double> numbers;
    for (const Single& value : values) numbers.push_back(value);
    return numbers;
}

struct Case {
    Array<FivePointRow> Rows;
    Array<Single> Old;
};

// Plain rows with two sets of weights, full rows at both ends and at two places between; irregular values.
Case IrregularCase(int last) {
    std::mt19937 random(20240517);
    std::uniform_real_distribution<double> value(-100, 100), weight(0, 0.2);
    Case c{{0, last}, {0, last}};
    for (int m = 0; m <= last; ++m) {
        c.Old(m) = value(random);
        const double lambda = m < last / 2 ? 1.0 / 6.0 : 0.123;
        c.Rows(m) = {0, lambda, 1 - 2 * lambda, lambda, 0};
        if (m < 2 || m > last - 2 || m == last / 2 || m == last / 3)
            c.Rows(m) = {weight(random), weight(random), weight(random), weight(random), weight(random)};
    }
    return c;
}

TEST(PorePressureMarch, EqualsThePlainFivePointProductInEveryDigit) {
    for (const int last : {4, 5, 17, 64, 301}) {
        const Case c = IrregularCase(last);
        Array<Single> expected = PlainProduct(c.Rows, c.Old);
        PorePressureMarch march(c.Rows, c.Old);
        EXPECT_EQ(Numbers(march.Values()), Numbers(expected)) << "first step, last node " << last;
        for (int k = 0; k < 700; ++k) expected = PlainProduct(c.Rows, expected);
        march.Advance(700);
        EXPECT_EQ(Numbers(march.Values()), Numbers(expected)) << "701 steps, last node " << last;
        EXPECT_EQ(Numbers(march.OneStepOn()), Numbers(PlainProduct(c.Rows, expected)));
        EXPECT_EQ(Numbers(march.Values()), Numbers(expected)) << "a look ahead must not advance";
    }
}

TEST(PorePressureMarch, StepsInTwoPartsAreTheSameStepsInOne) {
    const Case c = IrregularCase(40);
    PorePressureMarch once(c.Rows, c.Old), twice(c.Rows, c.Old);
    once.Advance(533);
    twice.Advance(17);
    twice.Advance(516);
    EXPECT_EQ(Numbers(once.Values()), Numbers(twice.Values()));
}

TEST(PorePressureMarch, NoStepsOrANegativeNumberLeaveTheFirstStep) {
    const Case c = IrregularCase(12);
    PorePressureMarch march(c.Rows, c.Old);
    march.Advance(0);
    march.Advance(-3);
    EXPECT_EQ(Numbers(march.Values()), Numbers(PlainProduct(c.Rows, c.Old)));
}

// Pressures that have died away to the smallest 32-bit numbers stand still; ending early there must change nothing.
TEST(PorePressureMarch, EndingEarlyInTheSteadyStateChangesNoDigit) {
    const int last = 8;
    Case c{{0, last}, {0, last}};
    for (int m = 1; m < last; ++m) {
        c.Rows(m) = {0, 1.0 / 6.0, 2.0 / 3.0, 1.0 / 6.0, 0};
        c.Old(m) = 100;
    }
    Array<Single> expected = PlainProduct(c.Rows, c.Old);
    int changes = 0;
    for (int k = 0; k < 20000; ++k) {
        Array<Single> next = PlainProduct(c.Rows, expected);
        if (Numbers(next) != Numbers(expected)) changes = k;
        expected = next;
    }
    ASSERT_LT(changes, 15000) << "the case must become steady for this test to mean anything";
    PorePressureMarch march(c.Rows, c.Old);
    march.Advance(20000);
    EXPECT_EQ(Numbers(march.Values()), Numbers(expected));
}

// Every second weight changes sign: the amplitude grows by the factor 1.5 in each step and passes 3.4e38.
TEST(PorePressureMarch, AnUnstableSchemeEndsAsOverflow) {
    const int last = 8;
    Case c{{0, last}, {0, last}};
    for (int m = 0; m <= last; ++m) {
        c.Rows(m) = {0, 0.75, -0.5, 0.75, 0};
        c.Old(m) = m % 2 == 0 ? 1 : -1;
    }
    PorePressureMarch march(c.Rows, c.Old);
    try {
        march.Advance(5000);
        FAIL() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    }
}

TEST(PorePressureMarch, AnOverflowInTheVeryFirstStepIsFound) {
    Case c{{0, 4}, {0, 4}};
    c.Rows(2) = {0, 3, 3, 3, 0};
    for (int m = 0; m <= 4; ++m) c.Old(m) = 1e38;
    EXPECT_THROW(PorePressureMarch(c.Rows, c.Old), Failure);
}

// An infinity beside a drained node of weights 0 and under weights that are 0 stays visible until the next look.
TEST(PorePressureMarch, AnOverflowIsNotLostUnderZeroWeights) {
    Case c{{0, 4}, {0, 4}};
    c.Rows(2) = {0, 3, 3, 3, 0};
    for (int m = 0; m <= 4; ++m) c.Old(m) = 1e37;
    c.Rows(1) = c.Rows(3) = {0, 0, 1, 0, 0};
    PorePressureMarch march(c.Rows, c.Old);
    EXPECT_THROW(march.Advance(4 + 256 + 1), Failure);
}

TEST(PorePressureMarch, TellsItsProgressAndEndsWhenTheUserCancels) {
    const Case c = IrregularCase(40);
    ScriptedHost host;
    PorePressureMarch march(c.Rows, c.Old);
    march.Advance(1024);
    ASSERT_FALSE(host.ProgressReports.empty());
    EXPECT_EQ(host.ProgressReports.back(), 1);
    host.CancelAtProgress(static_cast<int>(host.ProgressReports.size()) + 1);
    try {
        march.Advance(2000);
        FAIL() << "not cancelled";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Kind(), FailureKind::Cancelled);
    }
}

}  // namespace
}  // namespace lithmark::tests
