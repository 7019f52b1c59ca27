// How far the stress kernels with stored quantities of 32 bits are from themselves with 64 bits. Rounding alone
// separates the two, so a bound of a few roundings tells noise from mistakes: a quantity rounded in the wrong place, or
// a formula that loses digits.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <span>
#include <string>

#include "stress_wide/StressValues.h"

namespace lithmark::tests {
namespace {

using namespace stresswide;

// The greatest deviations of a series of runs: stresses and strains relative to the greatest component of the run or,
// for pressures, to what a full load gives; displacements relative to w of the surface.
struct Deviation {
    double Stress = 0, Strain = 0, Displacement = 0;
};

double Greatest(std::span<const double> values) {
    double greatest = 0;
    for (const double value : values) greatest = std::max(greatest, std::abs(value));
    return greatest;
}

double GreatestDifference(std::span<const double> a, std::span<const double> b) {
    double greatest = 0;
    for (std::size_t i = 0; i < a.size(); ++i) greatest = std::max(greatest, std::abs(a[i] - b[i]));
    return greatest;
}

void Compare(const Case& c, double least, Deviation& worst) {
    const Values single = SingleValues(c), wide = WideValues(c);
    Case surface = c;
    surface.z = 0;
    const auto part = [](const Values& values, std::size_t from, std::size_t count) {
        return std::span<const double>(values).subspan(from, count);
    };
    const auto relative = [&](std::size_t from, std::size_t count, double scale) {
        return GreatestDifference(part(single, from, count), part(wide, from, count)) / scale;
    };
    const double stress = std::max(Greatest(part(wide, 0, kStresses)), least);
    const double strain = std::max(Greatest(part(wide, kStresses, kStrains)), least / c.Es);
    const double displacement = WideValues(surface)[kStresses + kStrains + 2];
    worst.Stress = std::max(worst.Stress, relative(0, kStresses, stress));
    worst.Strain = std::max(worst.Strain, relative(kStresses, kStrains, strain));
    worst.Displacement = std::max(worst.Displacement, relative(kStresses + kStrains, kDisplacements, displacement));
}

// All runs of a load at points inside, beside and far from it, at the given depths.
Deviation CompareAll(int loadType, int divisions, std::initializer_list<double> depths) {
    Deviation worst;
    for (const double x : {0.13, 0.9, 1.9, 3.7, 11.0})
        for (const double y : {0.21, 1.2, 4.1})
            for (const double z : depths)
                for (const double nu : {0.0, 0.3, 0.5})
                    Compare({x, y, z, 1000, 100, 4, 3, nu, 8000, loadType, divisions}, loadType == 1 ? 0 : 100, worst);
    std::printf("greatest deviation, load type %d, %d divisions: stresses %.1e, strains %.1e, displacements %.1e\n",
                loadType, divisions, worst.Stress, worst.Strain, worst.Displacement);
    return worst;
}

constexpr double kRounding = 6e-8;  // half a unit in the last place of a 32-bit number, relative

TEST(StoredWidth, OfThePointLoadMattersByAFewRoundings) {
    const Deviation worst = CompareAll(1, 12, {0.04, 0.3, 1, 2.5, 7, 30});
    EXPECT_LT(worst.Stress, 10 * kRounding);
    EXPECT_LT(worst.Strain, 10 * kRounding);
    EXPECT_LT(worst.Displacement, 10 * kRounding);
    EXPECT_GT(worst.Stress, 0) << "the two widths are one";
}

// Horizontal displacements are differences of four corner terms of tens of metres, w is about one metre's worth 11 m
// away: some three hundred roundings.
TEST(StoredWidth, OfTheRectangleMattersByTheRoundingsOfItsCorners) {
    const Deviation worst = CompareAll(2, 12, {0.04, 0.3, 1, 2.5, 7, 30});
    EXPECT_LT(worst.Stress, 10 * kRounding);
    EXPECT_LT(worst.Strain, 10 * kRounding);
    EXPECT_LT(worst.Displacement, 400 * kRounding);
}

// Each of the N^2 + 1 additions rounds the sum once; the angle of the spokes is summed up too.
TEST(StoredWidth, OfTheCircleMattersByTheRoundingsOfItsSum) {
    for (const int divisions : {12, 60}) {
        const Deviation worst = CompareAll(3, divisions, {0.3, 1, 2.5, 7, 30});
        const double bound = (divisions * divisions + 1) * kRounding;
        EXPECT_LT(worst.Stress, bound);
        EXPECT_LT(worst.Strain, bound);
        EXPECT_LT(worst.Displacement, bound);
    }
}

// Within a few centimetres of a node its stress goes with the fifth power of the distance, and the node's own
// coordinates are rounded to 2e-7 m: 5 * 2e-7 / 0.04 of a stress of some p.
TEST(StoredWidth, OfTheCircleMattersMoreRightUnderItsSurface) {
    const Deviation worst = CompareAll(3, 60, {0.04});
    EXPECT_LT(worst.Stress, 2e-4);
    EXPECT_LT(worst.Displacement, 2e-5);
}

}  // namespace
}  // namespace lithmark::tests
