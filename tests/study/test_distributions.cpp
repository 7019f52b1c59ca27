// The distributions of random fields: their values by formula, mean and deviation of their samples, and where they are
// cut.
#include <gtest/gtest.h>

#include <boost/math/distributions/lognormal.hpp>
#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/triangular.hpp>
#include <cmath>

#include "services/texts/LanguageTexts.h"
#include "study/Distribution.h"
#include "study/StudyFailure.h"

namespace lithmark::tests {
namespace {

struct Moments {
    double Mean, Deviation;
};

// Of values at the middles of even shares.
Moments MomentsOf(const Distribution& distribution) {
    constexpr int kShares = 200000;
    double sum = 0, squares = 0;
    for (int i = 0; i < kShares; ++i) sum += distribution.Quantile((i + 0.5) / kShares);
    const double mean = sum / kShares;
    for (int i = 0; i < kShares; ++i) squares += std::pow(distribution.Quantile((i + 0.5) / kShares) - mean, 2);
    return {mean, std::sqrt(squares / kShares)};
}

TEST(Distributions, MeanAndDeviationAreThoseOfTheField) {
    for (const char* text : {"normal:50:10", "lognormal:50:10", "normal:50:20%", "lognormal:50:20%"}) {
        const Moments moments = MomentsOf(Distribution::Parse(text));
        EXPECT_NEAR(moments.Mean, 50, 0.001) << text;
        EXPECT_NEAR(moments.Deviation, 10, 0.005) << text;
    }
    const Moments uniform = MomentsOf(Distribution::Parse("uniform:2:8"));
    EXPECT_NEAR(uniform.Mean, 5, 1e-6);
    EXPECT_NEAR(uniform.Deviation, 6 / std::sqrt(12.0), 1e-5);
    // Mean (a + m + b)/3, variance (a^2 + m^2 + b^2 - am - ab - mb)/18.
    const Moments triangular = MomentsOf(Distribution::Parse("triangular:1:2:6"));
    EXPECT_NEAR(triangular.Mean, 3, 1e-5);
    EXPECT_NEAR(triangular.Deviation, std::sqrt((1 + 4 + 36 - 2 - 6 - 12) / 18.0), 1e-5);
    const Moments negative = MomentsOf(Distribution::Parse("normal:-50:20%"));
    EXPECT_NEAR(negative.Deviation, 10, 0.005);
}

TEST(Distributions, QuantilesAreThoseOfTheTextbooks) {
    const double variance = std::log(1 + 0.04), mean = std::log(50) - variance / 2;
    const boost::math::lognormal lognormal(mean, std::sqrt(variance));
    const boost::math::normal normal(50, 10);
    const boost::math::triangular triangular(1, 2, 6);
    for (const double p : {0.001, 0.05, 0.2, 0.5, 0.77, 0.95, 0.999}) {
        EXPECT_NEAR(Distribution::Parse("lognormal:50:10").Quantile(p) / quantile(lognormal, p), 1, 1e-13);
        EXPECT_NEAR(Distribution::Parse("normal:50:10").Quantile(p) / quantile(normal, p), 1, 1e-13);
        EXPECT_NEAR(Distribution::Parse("triangular:1:2:6").Quantile(p) / quantile(triangular, p), 1, 1e-13);
        EXPECT_NEAR(Distribution::Parse("uniform:2:8").Quantile(p), 2 + 6 * p, 1e-14);
    }
    // A triangle with an upright side.
    EXPECT_NEAR(Distribution::Parse("triangular:0:0:1").Quantile(0.75), 0.5, 1e-15);
    EXPECT_NEAR(Distribution::Parse("triangular:0:1:1").Quantile(0.25), 0.5, 1e-15);
}

// A cut distribution has the shares between its ends: F(x) = (F0(x) - F0(min))/(F0(max) - F0(min)).
TEST(Distributions, ACutKeepsTheSharesBetweenItsEnds) {
    const boost::math::normal normal(50, 10);
    const auto exact = [&](double p, double least, double greatest) {
        const double low = cdf(normal, least), high = cdf(normal, greatest);
        return quantile(normal, low + p * (high - low));
    };
    const Distribution cut = Distribution::Parse("normal:50:10:45:80");
    for (const double p : {1e-9, 0.01, 0.3, 0.5, 0.9, 0.9999}) EXPECT_NEAR(cut.Quantile(p), exact(p, 45, 80), 1e-10);
    EXPECT_GE(cut.Quantile(1e-15), 45);
    EXPECT_LE(cut.Quantile(1 - 1e-15), 80);
    EXPECT_EQ(cut.Least(), 45);
    EXPECT_EQ(cut.Greatest(), 80);
    // Far out in the upper tail, where shares below 1 have no digits left: by the complement.
    const Distribution far = Distribution::Parse("normal:0:1:10:11");
    const boost::math::normal standard;
    for (const double p : {0.001, 0.5, 0.999}) {
        const double above = cdf(complement(standard, 10.0)), end = cdf(complement(standard, 11.0));
        EXPECT_NEAR(far.Quantile(p), quantile(complement(standard, above - p * (above - end))), 1e-12);
    }
    EXPECT_NEAR(Distribution::Parse("uniform:0:10:2:4").Quantile(0.5), 3, 1e-15);
    EXPECT_NEAR(Distribution::Parse("uniform:0:10:-5:4").Quantile(0.5), 2, 1e-15);
    EXPECT_NEAR(Distribution::Parse("triangular:0:1:2:0:1").Quantile(0.25), 0.5, 1e-15);
    EXPECT_GT(Distribution::Parse("lognormal:50:10:-1e9:60").Quantile(1e-12), 0);
    // A cut that leaves everything changes nothing but the last digits.
    EXPECT_NEAR(Distribution::Parse("normal:50:10:-1e6:1e6").Quantile(0.3), quantile(normal, 0.3), 1e-12);
}

TEST(Distributions, WhatCannotBeIsRefused) {
    for (const char* text : {"",
                             "normal",
                             "normal:1",
                             "normal:1:0",
                             "normal:1:-1",
                             "normal:0:10%",
                             "normal:1:x",
                             "normal:1:2:3",
                             "normal:1:2:4:3",
                             "normal:1:1:1000:1001",
                             "lognormal:0:1",
                             "lognormal:-5:1",
                             "lognormal:5:1:-3:-1",
                             "uniform:2:1",
                             "uniform:1:1",
                             "uniform:1:2:3:4",
                             "triangular:1:2",
                             "triangular:1:0:2",
                             "triangular:1:3:2",
                             "gumbel:1:2",
                             "normal:1:2:3:4:5",
                             "normal:1e400:1"}) {
        try {
            Distribution::Parse(text);
            ADD_FAILURE() << text;
        } catch (const StudyFailure& failure) {
            EXPECT_EQ(failure.Why(), StudyFailure::Cause::Request) << text;
        }
    }
}

}  // namespace
}  // namespace lithmark::tests
