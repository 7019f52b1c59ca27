// Samples: what they depend on, that they are the same everywhere, and how evenly they lie.
#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "study/PlainMath.h"
#include "study/Sampler.h"
#include "study/StudyFailure.h"
#include "study/StudyPlan.h"
#include "study/StudyProblem.h"

namespace lithmark::tests {
namespace {

StudyRequest Request(const std::vector<std::string>& random, std::uint64_t samples = 1000) {
    StudyRequest request;
    request.Random = random;
    request.Samples = samples;
    return request;
}

class Samples : public testing::Test {
  protected:
    void SetUp() override { StartProblem(1); }
};

TEST_F(Samples, AValueDependsOnSeedSampleAndFieldAlone) {
    const Sampler alone(Request({"Es=normal:0:1"}, 10));
    const Sampler among(Request({"Q=uniform:0:1", "z=lognormal:1:1", "Es=normal:0:1"}, 1000000));
    for (const std::uint64_t sample : {0, 1, 9}) EXPECT_EQ(alone.Values(sample)[0], among.Values(sample)[2]);
    StudyRequest other = Request({"Es=normal:0:1"});
    other.Seed = 2;
    EXPECT_NE(Sampler(other).Values(0)[0], alone.Values(0)[0]);
    EXPECT_NE(alone.Values(1)[0], alone.Values(0)[0]);
    // Two fields of one distribution are two series.
    const Sampler two(Request({"x=normal:0:1", "y=normal:0:1"}));
    EXPECT_NE(two.Values(0)[0], two.Values(0)[1]);
}

TEST_F(Samples, TheMomentsOfManySamplesAreThoseOfTheDistribution) {
    constexpr int kSamples = 200000;
    const Sampler sampler(Request({"x=normal:0:1", "y=normal:0:1"}, kSamples));
    double sum = 0, squares = 0, products = 0, fourth = 0;
    for (int i = 0; i < kSamples; ++i) {
        const auto values = sampler.Values(static_cast<std::uint64_t>(i));
        sum += values[0];
        squares += values[0] * values[0];
        fourth += std::pow(values[0], 4);
        products += values[0] * values[1];
    }
    // Five standard errors.
    const double error = 5 / std::sqrt(static_cast<double>(kSamples));
    EXPECT_NEAR(sum / kSamples, 0, error);
    EXPECT_NEAR(squares / kSamples, 1, error * std::sqrt(2.0));
    EXPECT_NEAR(fourth / kSamples, 3, error * std::sqrt(96.0));
    EXPECT_NEAR(products / kSamples, 0, error);
}

TEST_F(Samples, CorrelatedFieldsHaveTheirCorrelation) {
    constexpr int kSamples = 100000;
    StudyRequest request = Request({"y=normal:0:1", "x=normal:0:1", "z=uniform:0:1"}, kSamples);
    request.Correlate = {"x,y=0.6", "z,y=-0.3"};
    const Sampler sampler(request);
    double xy = 0, zy = 0, xx = 0, zz = 0;
    for (int i = 0; i < kSamples; ++i) {
        const auto values = sampler.Values(static_cast<std::uint64_t>(i));
        const double x = values[1], y = values[0], z = NormalQuantile(values[2]);
        xy += x * y;
        zy += z * y;
        xx += x * x;
        zz += z * z;
    }
    const double error = 5 / std::sqrt(static_cast<double>(kSamples));
    EXPECT_NEAR(xy / kSamples, 0.6, error * std::sqrt(1.36));
    EXPECT_NEAR(zy / kSamples, -0.3, error * std::sqrt(1.09));
    EXPECT_NEAR(xx / kSamples, 1, error * std::sqrt(2.0));
    EXPECT_NEAR(zz / kSamples, 1, error * std::sqrt(2.0));
    // The first of the sorted names keeps its own values, and so does a field without correlation.
    EXPECT_EQ(sampler.Values(3)[1], Sampler(Request({"x=normal:0:1"})).Values(3)[0]);
    // The order in which fields and pairs are named changes nothing.
    StudyRequest turned = Request({"z=uniform:0:1", "x=normal:0:1", "y=normal:0:1"}, kSamples);
    turned.Correlate = {"y,z=-0.3", "y,x=0.6"};
    const auto one = sampler.Values(7), other = Sampler(turned).Values(7);
    EXPECT_EQ(one[0], other[2]);
    EXPECT_EQ(one[2], other[0]);
}

TEST_F(Samples, WhatCannotBeIsRefused) {
    const auto refused = [](const std::vector<std::string>& random, const std::vector<std::string>& correlate) {
        StudyRequest request = Request(random);
        request.Correlate = correlate;
        try {
            const Sampler sampler(request);
            return false;
        } catch (const StudyFailure& failure) {
            return failure.Why() == StudyFailure::Cause::Request;
        }
    };
    const std::vector<std::string> three = {"x=normal:0:1", "y=normal:0:1", "z=normal:0:1"};
    EXPECT_FALSE(refused(three, {"x,y=0.9", "y,z=0.9", "x,z=0.7"}));
    EXPECT_TRUE(refused(three, {"x,y=0.9", "y,z=0.9", "x,z=-0.9"})) << "no three values correlate like this";
    for (const char* wrong : {"x,y=1", "x,y=-1.5", "x,x=0.5", "x,Q=0.5", "x=0.5", "x,y", "x,y=high"})
        EXPECT_TRUE(refused(three, {wrong})) << wrong;
    EXPECT_TRUE(refused({"LoadType=uniform:1:3"}, {})) << "a choice";
    EXPECT_TRUE(refused({"Es"}, {}));
    EXPECT_TRUE(refused({"Young=normal:1:1"}, {}));
    StudyRequest none = Request({"x=normal:0:1"}, 0);
    EXPECT_THROW(Sampler{none}, StudyFailure);
}

TEST_F(Samples, SobolsSamplesAreSixteenCopiesOfAPowerOfTwo) {
    for (const auto& [asked, raised] : {std::pair{1, 16}, std::pair{16, 16}, std::pair{17, 32}, std::pair{1000, 1024},
                                        std::pair{1024, 1024}, std::pair{1025, 2048}}) {
        StudyRequest request = Request({"x=normal:0:1"}, static_cast<std::uint64_t>(asked));
        request.Sobol = true;
        EXPECT_EQ(Sampler(request).Count(), static_cast<std::uint64_t>(raised)) << asked;
    }
}

// Each copy of 2^k points of two dimensions has one point in each box of 2^i by 2^(k-i) boxes of the unit square, the
// property that makes Sobol's first two dimensions what they are, and keeps it under the digital shift.
TEST_F(Samples, EachSobolCopyFillsEveryBoxOnce) {
    constexpr std::uint64_t kCopy = 64;
    StudyRequest request = Request({"x=uniform:0:1", "y=uniform:0:1"}, Sampler::kCopies * kCopy);
    request.Sobol = true;
    const Sampler sampler(request);
    std::set<double> firsts;
    for (std::uint64_t copy = 0; copy < Sampler::kCopies; ++copy) {
        firsts.insert(sampler.Values(copy * kCopy)[0]);
        for (const int wide : {1, 2, 4, 8, 16, 32, 64}) {
            const int high = static_cast<int>(kCopy) / wide;
            std::set<std::pair<int, int>> boxes;
            for (std::uint64_t i = 0; i < kCopy; ++i) {
                const auto values = sampler.Values(copy * kCopy + i);
                boxes.emplace(static_cast<int>(values[0] * wide), static_cast<int>(values[1] * high));
            }
            EXPECT_EQ(boxes.size(), kCopy) << copy << " " << wide;
        }
    }
    EXPECT_EQ(firsts.size(), Sampler::kCopies) << "every copy has a shift of its own";
}

TEST_F(Samples, SobolsCopiesAreRightInTheMean) {
    StudyRequest request = Request({"x=uniform:0:1", "y=uniform:0:1", "z=uniform:0:1"}, 16 * 256);
    request.Sobol = true;
    double worst = 0, random = 0;
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        request.Seed = seed;
        StudyRequest plain = request;
        plain.Sobol = false;
        const Sampler even(request), uneven(plain);
        double sum = 0, plainSum = 0;
        for (std::uint64_t i = 0; i < even.Count(); ++i) {
            const auto product = [](const std::vector<double>& v) { return v[0] * v[1] * v[2]; };
            sum += product(even.Values(i));
            plainSum += product(uneven.Values(i));
        }
        worst = std::max(worst, std::abs(sum / static_cast<double>(even.Count()) - 0.125));
        random = std::max(random, std::abs(plainSum / static_cast<double>(even.Count()) - 0.125));
    }
    EXPECT_LT(worst, 0.0003);
    EXPECT_LT(worst, random / 5) << "that is what even points are for";
}

}  // namespace
}  // namespace lithmark::tests
