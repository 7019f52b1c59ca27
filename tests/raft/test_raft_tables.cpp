// The table for a check by hand of a raft: node values and the sums that balance the load.
#include "kernels/raft/BasCircularRigidRaft.h"
#include "raft/RaftRunCase.h"
#include "support/StepsOn.h"

namespace lithmark::tests {
namespace {

class RaftTables : public RaftRunCase {
  protected:
    // Forces, moments and areas against the load, relative to it.
    static void ExpectBalance(double area, double mX, double mY) {
        const StepTable& table = TableTitled(907250_text);
        double A = 0, F = 0, MX = 0, MY = 0;
        for (const auto& row : table.Rows) {
            const double u = *row[1].Number, v = *row[2].Number, f = *row[5].Number;
            EXPECT_NEAR(*row[3].Number * *row[4].Number, f, 2e-6 * std::abs(f) + 1e-6);
            A += *row[3].Number;
            F += f;
            MX += f * u;
            MY += f * v;
        }
        EXPECT_NEAR(A, area, 1e-5 * area);
        EXPECT_NEAR(F, 7854, 1e-5 * 7854);
        EXPECT_NEAR(MX, mX, 1e-5 * 7854 * 5);
        EXPECT_NEAR(MY, mY, 1e-5 * 7854 * 5);
        const std::size_t columns[] = {3, 5, 6, 7};
        const double sums[] = {A, F, MX, MY}, loads[] = {area, 7854, mX, mY};
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_NEAR(InSum(table, 0, columns[i]), sums[i], 1e-8);
            EXPECT_NEAR(InSum(table, 1, columns[i]), loads[i], 1e-3);
            EXPECT_NEAR(InSum(table, 2, columns[i]), sums[i] - loads[i], 1e-3);
        }
    }
    StepsOn on_;
};

TEST_F(RaftTables, TheSumsOfARectangleBalanceItsLoad) {
    Session.Exz_x = 0.5;
    Session.Exz_y = 0.25;
    Run();
    EXPECT_EQ(TableTitled(907250_text).Rows.size(), 25u);
    ExpectBalance(25, 3927, 1963.5);
}

TEST_F(RaftTables, TheSumsOfACircleBalanceItsLoad) {
    Session.LoadType = 3;
    Session.Exz_x = 0.5;
    Session.Exz_y = 7;  // plays no part
    SessionRecord& s = Session;
    ComputeCircularRaft(s.z, s.Q, s.A, s.h, s.eo, s.Po, s.Cc, s.Es, s.SoilPropertyType, s.Exz_x, s.Gamma,
                        s.AnalysisType, s.SettlementAt);
    ASSERT_FALSE(Session.CalcAborted);
    ExpectBalance(25 * 3.14159265358979, 3927, 0);
}

TEST_F(RaftTables, StandInTheUnitsInForce) {
    Session.Len1Factor = 1 / 0.3048;
    Session.Len1Label = Text(36_text);
    Session.Force1Factor = 1000;
    Session.Force1Label = Text(47_text);
    Run();
    const StepTable& table = TableTitled(907250_text);
    EXPECT_NEAR(InSum(table, 1, 3), 25 / (0.3048 * 0.3048), 1e-3);
    EXPECT_NEAR(InSum(table, 1, 5), 7854000, 1);
    EXPECT_EQ(table.Columns[6].Unit, "[N.ft]");
}

}  // namespace
}  // namespace lithmark::tests
