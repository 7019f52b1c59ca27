// Tables for a check by hand of the problems 4 and 5: the columns sum to the results.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "consolidation/RateCase.h"
#include "kernels/consolidation/BasConsolidation.h"
#include "support/StepsOn.h"

namespace lithmark::tests {
namespace {

class ConsolidationTables : public testing::Test {
  protected:
    ConsolidationTables() { FreshSession(); }
    static void Settle(int soil, int loadType) {
        Session.ProblemType = Problem::Consolidation;
        ComputeConsolidation(0, 0, 1, 1000, 150, 3, 4, 4, 0.9, 50, 9, 0.2, 7000, loadType, soil);
        ASSERT_FALSE(Session.CalcAborted);
    }
    ScriptedHost host_;
    StepsOn on_;
};

TEST_F(ConsolidationTables, TheSublayersSumToTheSettlement) {
    for (const int load : {1, 2, 3}) {
        Settle(2, load);
        const StepTable& table = TableTitled(907217_text);
        ASSERT_EQ(table.Rows.size(), 16u);  // 4 m in steps of 0.25 m
        double s = 0, h = 0;
        for (std::size_t i = 0; i < 16; ++i) {
            const auto& row = table.Rows[i];
            const double z = *row[1].Number, dz = *row[2].Number, p = *row[3].Number, increase = *row[4].Number;
            EXPECT_NEAR(z, 1 + 0.25 * (static_cast<double>(i) + 0.5), 1e-6);
            // The middle of the sublayer carries Po and the soil above it within the layer.
            EXPECT_NEAR(p, 50 + 9 * 0.25 * (static_cast<double>(i) + 0.5), 1e-4);
            const double ds = dz * 0.2 / 1.9 * std::log10((p + increase) / p) * 100;
            EXPECT_NEAR(*row[6].Number, ds, 1e-6);
            EXPECT_NEAR(*row[5].Number, ds / dz, 1e-4);
            h += dz;
            s += *row[6].Number;
        }
        EXPECT_NEAR(h, 4, 1e-6);
        EXPECT_NEAR(s, Session.s, 2e-6 * s) << load;
        EXPECT_EQ(InSum(table, 0, 6), s);
        EXPECT_EQ(InSum(table, 1, 6), static_cast<double>(Session.s));
    }
}

TEST_F(ConsolidationTables, ByItsModulusTheLayerIsOneInterval) {
    Settle(1, 2);
    const StepTable& table = TableTitled(907217_text);
    ASSERT_EQ(table.Rows.size(), 1u);
    const auto& row = table.Rows[0];
    EXPECT_EQ(row[2].Number, 4.0);
    EXPECT_NEAR(*row[3].Number * 4 * 100 / 7000, Session.s, 1e-6);
    EXPECT_EQ(row[5].Number, static_cast<double>(Session.s));
}

// A layer of 3 m and one of 2 m: 4 intervals of 0.75 m and of 0.5 m.
TEST_F(ConsolidationTables, TheNodesShareTheSoilAndGiveTheDegreeOfConsolidation) {
    RateCase c;
    c.NumLayers = 2;
    c.h = Array<Single>::Of({3, 2});
    c.K = Array<Single>::Of({1, 2});
    c.T = 0.5;
    c.Run();
    ASSERT_FALSE(Session.CalcAborted);
    const StepTable& nodes = TableTitled(907231_text);
    const double share[] = {0.375, 0.75, 0.75, 0.75, 0.625, 0.5, 0.5, 0.5, 0.25};
    ASSERT_EQ(nodes.Rows.size(), 9u);
    double S0 = 0, Sf = 0;
    for (std::size_t m = 0; m < 9; ++m) {
        const auto& row = nodes.Rows[m];
        EXPECT_EQ(row[2].Number, share[m]);
        EXPECT_EQ(row[1].Number, m <= 4 ? 1 + 0.75 * static_cast<double>(m) : 4 + 0.5 * (static_cast<double>(m) - 4));
        EXPECT_NEAR(*row[5].Number, *row[3].Number * share[m], 1e-9);
        S0 += *row[5].Number;
        Sf += *row[6].Number;
    }
    EXPECT_EQ(InSum(nodes, 0, 2), 5.0);
    EXPECT_NEAR((1 - Sf / S0) * 100, Session.Uc, 1e-4);
    EXPECT_EQ(InSum(nodes, 0, 5), S0);
}

// One step by hand: the weights on the initial pressures, half of them at the drained ends, give the pressures after
// it.
TEST_F(ConsolidationTables, TheWeightsGiveTheNextStep) {
    RateCase c = StepCase(4);
    c.T = TimeOfSteps(c, 2);
    c.Run();
    const StepTable& weights = TableTitled(907235_text);
    std::vector<double> u = {50, 100, 100, 100, 50};
    for (int step = 0; step < 2; ++step) {
        std::vector<double> next(5);
        for (std::size_t m = 0; m < 5; ++m)
            for (std::size_t k = 0; k < 5; ++k)
                if (m + k >= 2 && m + k - 2 < 5) next[m] += *weights.Rows[m][k + 1].Number * u[m + k - 2];
        u = next;
    }
    for (std::size_t m = 0; m < 5; ++m) EXPECT_NEAR(Session.IsoUf(static_cast<int>(m)), u[m], 1e-4) << m;
    const StepTable& layers = TableTitled(907224_text);
    EXPECT_NEAR(*layers.Rows[0][6].Number, 1.0 / 6, 1e-6);
    EXPECT_EQ(layers.Rows[0][2].Number, 4.0);
}

}  // namespace
}  // namespace lithmark::tests
