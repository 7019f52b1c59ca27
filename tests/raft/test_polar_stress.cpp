// Mean stresses below many nodes of a circular raft at once, against the sums one term after the other: every digit.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <stdexcept>

#include "kernels/raft/PolarInfluence.h"
#include "kernels/raft/PolarStressSums.h"
#include "support/Files.h"

namespace lithmark::tests {
namespace {

Array<Single> Forces(const PolarMesh& mesh) {
    std::mt19937 random(3);
    Array<Single> force(1, mesh.NTotal);
    for (Single& f : force) f = random() / 4294967296.0 * 100 - 20;
    return force;
}

// The sums and what they are made of.
struct SumsCase {
    PolarMesh Mesh;
    std::vector<StressInterval> Layers;
    Array<Single> Force = Forces(Mesh);
    std::vector<MeanStressInfluence> Influence = {};

    SumsCase(int divisions, double radius, std::vector<StressInterval> layers)
        : Mesh(BuildPolarMesh(divisions, radius)), Layers(std::move(layers)) {
        for (const StressInterval& layer : Layers) Influence.emplace_back(Mesh, layer.Top, layer.Bottom);
    }
    const MeanStressInfluence& At(int layer) const { return Influence[static_cast<std::size_t>(layer)]; }
    // By the stored influences of unit forces.
    PolarStressSums::Terms ByUnitForces() const {
        return {[this](int k, int t) { return At(k).UnitForce(t, t) * Force(t); },
                [this](int k, int t) { return SumOfUnitForces(At(k), t, Force); }};
    }
    // By the pressure on the node's own sector.
    PolarStressSums::Terms ByPressure() const {
        return {[this](int k, int t) { return At(k).Own(RingOf(Mesh, t), Force(t) / Mesh.NodeArea(t)); },
                [this](int k, int t) { return SumOfForces(At(k), t, Force); }};
    }
};

void ExpectTheDigits(const SumsCase& c, int targets, const PolarStressSums::Terms& terms, int threads) {
    PolarStressSums sums(c.Mesh, c.Layers, targets);
    sums.Sum(c.Force, terms, threads, [](double) {});
    for (int k = 0; k < static_cast<int>(c.Layers.size()); ++k)
        for (int t = 1; t <= targets; ++t)
            ASSERT_EQ(sums.At(k, t).Stored(), terms.Plain(k, t).Stored())
                << c.Mesh.ND << " divisions, layer " << k << ", node " << t << ", " << threads << " threads";
}

// Layers on end whose boundaries are the same number, others apart, from the surface on and below, thin and thick.
const std::vector<StressInterval> kLayers = {{0, 2.5},     {2.5, 5},  {5, 7.6}, {8, 8.001},
                                             {8.001, 900}, {0, 0.01}, {0.01, 1}};

TEST(PolarStressSums, HaveTheDigitsOfOneTermAfterTheOther) {
    for (const int divisions : {2, 4, 12, 20}) {
        const SumsCase c(divisions, 5.3, kLayers);
        for (const int targets : {int(c.Mesh.NQuarter), int(c.Mesh.NHalf), int(c.Mesh.NTotal)}) {
            ExpectTheDigits(c, targets, c.ByUnitForces(), 1);
            ExpectTheDigits(c, targets, c.ByPressure(), 1);
        }
    }
}

TEST(PolarStressSums, HaveTheSameDigitsWithAnyNumberOfThreads) {
    const SumsCase c(20, 12, kLayers);
    for (const int threads : {2, 3, 8}) ExpectTheDigits(c, c.Mesh.NHalf, c.ByUnitForces(), threads);
}

// Other sizes of raft and depth: factors near the ends of what a Single holds.
TEST(PolarStressSums, HaveTheDigitsForRaftsOfAnySize) {
    for (const double size : {1e-15, 1e-6, 1.0, 1e6, 1e11}) {
        const SumsCase c(8, 5 * size, {{0, 2 * size}, {2 * size, 7 * size}});
        ExpectTheDigits(c, c.Mesh.NTotal, c.ByUnitForces(), 1);
    }
}

// A second sum forgets the first one.
TEST(PolarStressSums, AreTakenAnew) {
    const SumsCase c(6, 5, kLayers);
    PolarStressSums sums(c.Mesh, c.Layers, c.Mesh.NTotal);
    for (int run = 0; run < 2; ++run) {
        sums.Sum(c.Force, c.ByUnitForces(), 1, [](double) {});
        EXPECT_EQ(sums.At(1, 3).Stored(), SumOfUnitForces(c.At(1), 3, c.Force).Stored());
    }
}

// What one term after the other fails with.
TEST(PolarStressSums, FailAsOneTermAfterTheOther) {
    const auto kind = [](double radius, StressInterval layer) {
        const SumsCase c(4, radius, {layer});
        // A node's own term would fail first.
        PolarStressSums::Terms terms = c.ByUnitForces();
        terms.Own = [](int, int) { return 0.0; };
        PolarStressSums sums(c.Mesh, c.Layers, c.Mesh.NTotal);
        const auto plain = tests::KindOf([&] { terms.Plain(0, 2); });
        EXPECT_EQ(tests::KindOf([&] { sums.Sum(c.Force, terms, 1, [](double) {}); }), plain);
        return plain;
    };
    EXPECT_EQ(kind(5, {3, 3}), FailureKind::DivisionByZero);
    EXPECT_EQ(kind(5, {1e19, 1e20}), FailureKind::Overflow);
    EXPECT_EQ(kind(5e-21, {0, 1e-21}), FailureKind::Overflow);
}

// The progress of a block that this thread worked ends the sum when it throws. Alone it works all blocks; of several
// threads it may come too late for any.
TEST(PolarStressSums, CanBeEnded) {
    const SumsCase c(20, 5, kLayers);
    PolarStressSums sums(c.Mesh, c.Layers, c.Mesh.NHalf);
    int told = 0;
    double last = -1;
    sums.Sum(c.Force, c.ByUnitForces(), 1, [&](double part) {
        EXPECT_GT(part, last);
        EXPECT_LT(part, 1);
        last = part;
        ++told;
    });
    EXPECT_EQ(told, (c.Mesh.NHalf + 31) / 32);
    EXPECT_THROW(sums.Sum(c.Force, c.ByUnitForces(), 1, [](double) { throw std::runtime_error("ended"); }),
                 std::runtime_error);
}

}  // namespace
}  // namespace lithmark::tests
