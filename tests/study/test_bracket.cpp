// Brackets: where a function crosses zero, in how many trials.
#include <gmock/gmock.h>

#include <cmath>
#include <functional>

#include "study/Bracket.h"
#include "study/StudyFailure.h"
#include "study/StudyProblem.h"

namespace lithmark::tests {
namespace {

struct Found {
    double Value;
    bool BeyondAbove;
    int Trials;
};

Found Search(const std::string& range, const std::function<double(double)>& excess) {
    const SearchRange values(range);
    const double from = values.Points().front(), to = values.Points().back();
    const auto trial = [&](double value) { return Trial{value, excess(value), {}, {}}; };
    Bracket bracket(values, 1e-6, trial(from), trial(to));
    int trials = 0;
    while (const auto value = bracket.Next()) {
        bracket.Put(trial(*value));
        EXPECT_LT(++trials, 200);
    }
    EXPECT_LE(bracket.Inside().Excess, 0) << "what is told is not beyond";
    return {bracket.Inside().Value, bracket.BeyondAbove(), trials};
}

class Brackets : public testing::Test {
  protected:
    void SetUp() override { StartProblem(1); }
};

TEST_F(Brackets, ASmoothFunctionNeedsAHandfulOfTrials) {
    const Found root = Search("z=0:4", [](double z) { return z * z - 2; });
    EXPECT_NEAR(root.Value, std::sqrt(2.0), 3e-6);
    EXPECT_LE(root.Value, std::sqrt(2.0));
    EXPECT_TRUE(root.BeyondAbove);
    EXPECT_LT(root.Trials, 10);
    const Found falls = Search("z=4:8", [](double z) { return 100 / (z * z) - 5; });
    EXPECT_NEAR(falls.Value, std::sqrt(20.0), 1e-5);
    EXPECT_GE(falls.Value, std::sqrt(20.0) - 1e-7);
    EXPECT_FALSE(falls.BeyondAbove);
    EXPECT_LT(falls.Trials, 12);
}

// Halving 64 down to 3.3e-5 (a millionth of 33.3) takes 21 trials.
TEST_F(Brackets, AJumpNeedsHardlyMoreThanHalving) {
    for (const double high : {1.0, 1e6, 1e-6}) {
        const Found jump = Search("z=0:64", [high](double z) { return z > 100.0 / 3 ? high : -1; });
        EXPECT_NEAR(jump.Value, 100.0 / 3, 4e-5);
        EXPECT_LE(jump.Trials, 23);
    }
}

TEST_F(Brackets, ACountIsFoundToTheUnit) {
    const SearchRange range("PrefND=2:40");
    EXPECT_EQ(range.Points().size(), 17u);
    for (const double point : range.Points()) EXPECT_EQ(point, std::round(point));
    EXPECT_EQ(SearchRange("PrefND=2:6").Points().size(), 5u);
    EXPECT_EQ(Search("PrefND=2:40", [](double n) { return n - 17.5; }).Value, 17);
    EXPECT_EQ(Search("PrefND=2:40", [](double n) { return 17.5 - n; }).Value, 18);
}

TEST_F(Brackets, ACrossingAtZeroComesToAnEnd) {
    const Found root = Search("x=-1:3", [](double x) { return x; });
    EXPECT_NEAR(root.Value, 0, 1e-8);
}

TEST_F(Brackets, WhatIsNoRangeIsRefused) {
    for (const char* text : {"z", "z=1", "z=1:2:3", "z=2:1", "z=1:1", "z=a:2", "Young=1:2", "z=0:1e60"}) {
        try {
            const SearchRange range(text);
            ADD_FAILURE() << text;
        } catch (const StudyFailure& failure) {
            EXPECT_EQ(failure.Why(), StudyFailure::Cause::Request) << text;
        }
    }
}

}  // namespace
}  // namespace lithmark::tests
