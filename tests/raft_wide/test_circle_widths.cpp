// How far the circular raft with stored quantities of 32 bits is from itself with 64 bits. Rounding alone separates the
// two, so the bounds tell noise from mistakes: a quantity rounded in the wrong place, or a formula that loses digits.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "raft_wide/CircleValues.h"

namespace lithmark::tests {
namespace {

using namespace raftwide;

// Greatest differences, relative to the greatest value of the run.
struct Deviation {
    double Force = 0, Settlement = 0, Flexible = 0;
};

double Relative(const std::vector<double>& a, const std::vector<double>& b) {
    EXPECT_EQ(a.size(), b.size());
    double difference = 0, greatest = 0;
    for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
        difference = std::max(difference, std::abs(a[i] - b[i]));
        greatest = std::max(greatest, std::abs(b[i]));
    }
    return difference / greatest;
}

// All runs of an analysis: both eccentricities, layers thinner and thicker than the radius.
Deviation CompareAll(int problemType, int soil, bool analysisType, double z) {
    Deviation worst;
    for (const bool centre : {true, false})
        for (const double e : {0.0, 0.5})
            for (const double h : {3.0, 5.0, 12.0})
                for (const int divisions : {4, 12}) {
                    const Case c{problemType, soil, analysisType, centre, z, h, e, divisions};
                    const Values single = SingleValues(c), wide = WideValues(c);
                    EXPECT_EQ(single.LimitingDepth, wide.LimitingDepth);
                    worst.Force = std::max(worst.Force, Relative(single.Force, wide.Force));
                    worst.Settlement = std::max(worst.Settlement, Relative(single.Settlement, wide.Settlement));
                    worst.Flexible = std::max(worst.Flexible, Relative(single.Flexible, wide.Flexible));
                }
    std::printf("greatest deviation, problem %d, soil %d, %s, z %g: forces %.1e, settlements %.1e, flexible %.1e\n",
                problemType, soil, analysisType ? "analytical" : "numerical", z, worst.Force, worst.Settlement,
                worst.Flexible);
    return worst;
}

constexpr double kRounding = 6e-8;  // half a unit in the last place of a 32-bit number, relative

// Sums over 145 nodes, each addition rounded once; the limiting depth adds up to some forty sublayers.
TEST(StoredWidthOfTheCircle, AnalyticalAnalysisMattersByTheRoundingsOfItsSums) {
    for (const int soil : {1, 2})
        for (const int problem : {9, 10}) {
            const Deviation worst = CompareAll(problem, soil, true, 0);
            EXPECT_LT(worst.Force, 20 * kRounding);
            EXPECT_LT(worst.Settlement, 40 * kRounding);
            EXPECT_LT(worst.Flexible, 60 * kRounding);
            EXPECT_GT(worst.Force, 0) << "the two widths are one";
        }
}

// The folded flexibility of a layer from the surface on is well conditioned.
TEST(StoredWidthOfTheCircle, NumericalAnalysisMattersLittleForALayerFromTheSurfaceOn) {
    for (const int soil : {1, 2})
        for (const int problem : {9, 10}) {
            const Deviation worst = CompareAll(problem, soil, false, 0);
            EXPECT_LT(worst.Force, 100 * kRounding);
            EXPECT_LT(worst.Settlement, 40 * kRounding);
            EXPECT_LT(worst.Flexible, 60 * kRounding);
        }
}

// Below the surface the nodes' influences differ less from each other, and the inverse loses digits: a layer at a fifth
// of the radius has lost one or two. Settlements keep theirs.
TEST(StoredWidthOfTheCircle, NumericalAnalysisMattersMoreForALayerFurtherDown) {
    for (const int soil : {1, 2}) {
        const Deviation worst = CompareAll(10, soil, false, 1);
        EXPECT_LT(worst.Force, 5e-4);
        EXPECT_LT(worst.Settlement, 2e-4);
    }
}

}  // namespace
}  // namespace lithmark::tests
