// Intervals, errors and quantiles against published values and by formula.
#include <gtest/gtest.h>

#include <cmath>

#include "study/Statistics.h"

namespace lithmark::tests {
namespace {

// Newcombe (1998), Statistics in Medicine 17, table I: the score interval without continuity correction.
TEST(Statistics, WilsonsIntervalIsTheOneOfTheTables) {
    struct Published {
        std::uint64_t Beyond, Count;
        double Low, High;
    };
    for (const Published& row : {Published{81, 263, 0.2553, 0.3662},
                                 {15, 148, 0.0624, 0.1605},
                                 {0, 20, 0.0000, 0.1611},
                                 {1, 29, 0.0061, 0.1718}}) {
        const Interval interval = WilsonInterval(row.Beyond, row.Count);
        EXPECT_NEAR(interval.Low, row.Low, 5e-5) << row.Beyond;
        EXPECT_NEAR(interval.High, row.High, 5e-5) << row.Beyond;
        const Interval other = WilsonInterval(row.Count - row.Beyond, row.Count);
        EXPECT_NEAR(other.Low, 1 - interval.High, 1e-15);
        EXPECT_NEAR(other.High, 1 - interval.Low, 1e-15);
    }
}

// None of 1000: z^2/(n + z^2) with z = 1.96.
TEST(Statistics, NoneBeyondHasAnUpperBoundAllTheSame) {
    const Interval interval = WilsonInterval(0, 1000);
    EXPECT_EQ(interval.Low, 0);
    EXPECT_NEAR(interval.High, 3.841458820694124 / 1003.841458820694124, 1e-15);
    EXPECT_EQ(WilsonInterval(1000, 1000).High, 1);
    EXPECT_EQ(WilsonInterval(0, 0).Low, 0);
    EXPECT_EQ(WilsonInterval(0, 0).High, 1);
}

// The two-sided 95 % points of Student's t as every table has them.
TEST(Statistics, CopiesAreHeldAgainstStudentsT) {
    EXPECT_NEAR(CopiesFactor(2), 12.7062, 5e-5);
    EXPECT_NEAR(CopiesFactor(11), 2.2281, 5e-5);
    EXPECT_NEAR(CopiesFactor(16), 2.1314, 5e-5);
    // Deviation of 1, 2, 3: 1; of their mean: 1/sqrt(3).
    EXPECT_NEAR(CopiesError({1, 2, 3}), 1 / std::sqrt(3.0), 1e-15);
    EXPECT_TRUE(std::isnan(CopiesError({1})));
}

TEST(Statistics, TheShareOfCopiesHasTheirSpread) {
    // Shares 0.1, 0.2, 0.3: mean 0.2, error 0.1/sqrt(3), t(2) = 4.3027: wider than from 0 on.
    const ShareBeyond share = ShareOfCopies({{1, 10}, {2, 10}, {3, 10}});
    EXPECT_NEAR(share.Share, 0.2, 1e-15);
    EXPECT_NEAR(share.Error, 0.1 / std::sqrt(3.0), 1e-15);
    EXPECT_EQ(share.Low, 0);
    EXPECT_NEAR(share.High, 0.2 + 4.30265 * 0.1 / std::sqrt(3.0), 1e-5);
    // None beyond in any copy tells of no spread: Wilson's.
    const ShareBeyond none = ShareOfCopies({{0, 500}, {0, 500}});
    EXPECT_EQ(none.Error, 0);
    EXPECT_NEAR(none.High, 0.0038268, 1e-7);
    // One copy: independent samples.
    const ShareBeyond one = ShareOfCopies({{20, 100}}), samples = ShareOfSamples(20, 100);
    EXPECT_EQ(one.Error, samples.Error);
    EXPECT_NEAR(one.Error, 0.04, 1e-15);
    EXPECT_EQ(one.High, samples.High);
}

TEST(Statistics, MomentsAndQuantiles) {
    const MeanAndDeviation moments = MeanAndDeviationOf({2, 4, 4, 4, 5, 5, 7, 9});
    EXPECT_EQ(moments.Mean, 5);
    EXPECT_NEAR(moments.Deviation, std::sqrt(32.0 / 7), 1e-15);
    EXPECT_TRUE(std::isnan(MeanAndDeviationOf({}).Mean));
    EXPECT_TRUE(std::isnan(MeanAndDeviationOf({1}).Deviation));
    EXPECT_EQ(SortedQuantile({1, 2, 3, 4, 5}, 0.5), 3);
    EXPECT_NEAR(SortedQuantile({1, 2, 3, 4, 5}, 0.05), 1.2, 1e-15);
    EXPECT_EQ(SortedQuantile({1, 2, 3, 4, 5}, 1), 5);
    EXPECT_TRUE(std::isnan(SortedQuantile({}, 0.5)));
}

}  // namespace
}  // namespace lithmark::tests
