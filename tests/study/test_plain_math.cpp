// Logarithm, exponential function and normal distribution against independent ones: the C library's in 80 bits, and
// Boost's distributions.
#include <gtest/gtest.h>

#include <algorithm>
#include <boost/math/distributions/normal.hpp>
#include <cmath>
#include <limits>
#include <random>

#include "study/PlainMath.h"

namespace lithmark::tests {
namespace {

double UnitsOfTheLastPlace(double value, long double exact) {
    const double nearest = static_cast<double>(exact);
    const double unit = std::nextafter(std::abs(nearest), std::numeric_limits<double>::infinity()) - std::abs(nearest);
    return static_cast<double>(std::abs(static_cast<long double>(value) - exact) / unit);
}

TEST(PlainMath, TheLogarithmIsTheLibrarys) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> exponent(-1000, 1000), near(0.5, 2);
    double worst = 0;
    for (int i = 0; i < 200000; ++i) {
        const double x = i % 2 ? near(random) : std::exp2(exponent(random));
        worst = std::max(worst, UnitsOfTheLastPlace(PlainLog(x), std::log(static_cast<long double>(x))));
    }
    EXPECT_LT(worst, 1.5);
    EXPECT_EQ(PlainLog(1), 0);
    EXPECT_LT(UnitsOfTheLastPlace(PlainLog(5e-324), std::log(static_cast<long double>(5e-324))), 1.5);
}

TEST(PlainMath, TheExponentialFunctionIsTheLibrarys) {
    std::mt19937_64 random(2);
    std::uniform_real_distribution<double> wide(-700, 700), near(-1, 1);
    double worst = 0;
    for (int i = 0; i < 200000; ++i) {
        const double x = i % 2 ? near(random) : wide(random);
        worst = std::max(worst, UnitsOfTheLastPlace(PlainExp(x), std::exp(static_cast<long double>(x))));
    }
    EXPECT_LT(worst, 1.5);
    EXPECT_EQ(PlainExp(0), 1);
    EXPECT_EQ(PlainExp(-800), 0);
    EXPECT_TRUE(std::isinf(PlainExp(710)));
    EXPECT_GT(PlainExp(-744), 0);
}

TEST(PlainMath, TheNormalQuantileIsAccurateToTheFifteenthDigit) {
    const boost::math::normal normal;
    double worst = 0;
    for (int i = -300; i <= -1; ++i)
        for (const double first : {1.0, 2.5, 4.7, 7.1, 9.9}) {
            const double p = first * std::pow(10.0, i);
            if (p >= 0.5) continue;
            const double exact = boost::math::quantile(normal, p);
            worst = std::max(worst, std::abs(NormalQuantile(p) / exact - 1));
            EXPECT_EQ(UpperNormalQuantile(p), -NormalQuantile(p));
        }
    for (double p = 0.01; p < 1; p += 0.0137) {
        const double exact = boost::math::quantile(normal, p);
        worst = std::max(worst, std::abs(NormalQuantile(p) - exact) / std::max(0.1, std::abs(exact)));
    }
    EXPECT_LT(worst, 2e-15);
    EXPECT_EQ(NormalQuantile(0.5), 0);
}

TEST(PlainMath, TheNormalProbabilityIsAccurateInItsTail) {
    double worst = 0;
    for (double z = -37; z <= 37; z += 0.0173) {
        const double exact = static_cast<double>(std::erfc(-static_cast<long double>(z) / std::sqrt(2.0L)) / 2);
        worst = std::max(worst, std::abs(NormalBelow(z) / exact - 1));
        EXPECT_EQ(NormalAbove(z), NormalBelow(-z));
    }
    EXPECT_LT(worst, 3e-15 * 37);  // an error of z in the last place counts z^2 times
    for (double p : {1e-300, 1e-17, 0.001, 0.3, 0.5, 0.9}) EXPECT_NEAR(NormalBelow(NormalQuantile(p)) / p, 1, 1e-12);
}

}  // namespace
}  // namespace lithmark::tests
