// Tables for a check by hand of a rectangle: the columns of corner terms sum to the results.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "stress/StressCase.h"
#include "support/Pi.h"
#include "support/ScriptedHost.h"
#include "support/StepsOn.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

class CornerTables : public testing::Test {
  protected:
    CornerTables() { FreshSession(); }
    static void Run(int problem, const SoilStressInput& in) {
        Session.ProblemType = problem;
        ComputeSoilStress(in.x, in.y, in.z, in.Q, in.P, in.A, in.B, in.Nue, in.Es, in.LoadType);
        ASSERT_FALSE(Session.CalcAborted);
    }
    ScriptedHost host_;
    StepsOn on_;
};

TEST_F(CornerTables, TheCornersAreThoseOfTheRectangleAroundThePoint) {
    Run(1, RectangleAt(0.5, 0.25, 2, 3, 4));
    const StepTable& table = TableTitled(907203_text);
    // Distances from the point to the farther edges, and those less the sides.
    const double expected[4][2] = {{2, 2.25}, {2, -1.75}, {-1, -1.75}, {-1, 2.25}};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(table.Rows[i][2].Number, expected[i][0]);
        EXPECT_EQ(table.Rows[i][3].Number, expected[i][1]);
        EXPECT_NEAR(*table.Rows[i][6].Number, std::hypot(expected[i][0], expected[i][1], 2.0), 1e-6);
        EXPECT_EQ(table.Rows[i][1].Word, i % 2 == 0 ? "+" : "-");
    }
}

// Newmark's corner value for m = n = 1, by hand: (1/sqrt(3) + arcsin(1/2))/(2 pi) = 0.1752; four of them at the centre.
TEST_F(CornerTables, ATermIsTheCornerValueOfTheStress) {
    Run(1, RectangleAt(0, 0, 2, 4, 4));
    const StepTable& table = TableTitled(907211_text);
    const double corner = (std::sqrt(3.0) / 3 + std::asin(0.5)) / (2 * kPi);
    EXPECT_NEAR(corner, 0.1752, 5e-5);
    for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(*table.Rows[i][2].Number / (2 * kPi), corner, 1e-6);
    EXPECT_NEAR(InSum(table, 0, 2) / (2 * kPi), 4 * corner, 4e-6);
}

TEST_F(CornerTables, SumsTimesFactorsAreTheStresses) {
    for (const auto& at : {RectangleAt(0.5, 0.25, 2, 3, 4), RectangleAt(4, -3, 1, 3, 4)}) {
        Run(2, at);
        const StepTable& table = TableTitled(907211_text);
        const double results[] = {Session.Sigma_z, Session.Sigma_x, Session.Sigma_y,
                                  Session.Tau_xy,  Session.Tau_xz,  Session.Tau_yz};
        for (std::size_t c = 2; c < 8; ++c) {
            double sum = 0;
            for (const auto& row : table.Rows) sum += *row[c].Number;
            EXPECT_NEAR(sum, InSum(table, 0, c), 1e-12);
            EXPECT_NEAR(sum * InSum(table, 1, c), results[c - 2], 2e-5 * kP) << c;
            EXPECT_EQ(InSum(table, 2, c), results[c - 2]);
        }
    }
}

TEST_F(CornerTables, SumsTimesFactorsAreTheDisplacements) {
    Run(3, RectangleAt(0.5, 0.25, 2, 3, 4));
    const StepTable& table = TableTitled(907214_text);
    for (std::size_t c = 2; c < 7; ++c)
        EXPECT_NEAR(InSum(table, 0, c) * InSum(table, 1, c), InSum(table, 2, c), 1e-9) << c;
    EXPECT_NEAR(InSum(table, 2, 2), Session.u, 1e-5);
    EXPECT_NEAR(InSum(table, 2, 3), Session.v, 1e-5);
    EXPECT_NEAR(InSum(table, 2, 4) - InSum(table, 2, 6), Session.w, 1e-5);
    EXPECT_NEAR(InSum(table, 2, 5) + InSum(table, 2, 6), Session.s, 1e-5);
}

TEST_F(CornerTables, ACornerThatIsLeftOutHasNoNumberAndANoteSaysWhy) {
    Run(1, RectangleAt(1.5, 0, 2, 3, 4));  // on the line of an edge
    const StepTable& table = TableTitled(907211_text);
    EXPECT_TRUE(table.Rows[2][2].Number);   // Sigma_z leaves out none
    EXPECT_FALSE(table.Rows[2][3].Number);  // Sigma_x does
    EXPECT_THAT(table.Notes, testing::ElementsAre(Text(907271_text), Text(907209_text)));
}

TEST_F(CornerTables, AnotherLoadHasNone) {
    Run(1, PointLoadAt(1, 0, 2));
    EXPECT_TRUE(Steps().Tables().empty());
}

TEST_F(CornerTables, RecordingChangesNoDigit) {
    Run(3, RectangleAt(0.5, 0.25, 2, 3, 4));
    const StressResults with = ResultsOfSession();
    const std::string report = Session.ResultText;
    Steps().SwitchOn(false);
    Run(3, RectangleAt(0.5, 0.25, 2, 3, 4));
    EXPECT_EQ(ResultsOfSession(), with);
    EXPECT_EQ(Session.ResultText, report);
    EXPECT_TRUE(Steps().Tables().empty());
}

}  // namespace
}  // namespace lithmark::tests
