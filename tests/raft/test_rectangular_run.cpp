// Whole runs of the rectangular raft: what they leave in the record, the flexible comparison, failures, the way out.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

#include "raft/RaftProblem.h"
#include "raft/RaftRunCase.h"
#include "support/Pi.h"

namespace lithmark::tests {
namespace {

class RectangularRun : public tests::RaftRunCase {
  protected:
    // The run aborts with one message that holds a word, and no exception leaves.
    void ExpectAbort(const std::string& word) {
        host_.Messages.clear();
        Session.CalcAborted = false;
        EXPECT_NO_THROW(RunRectangle());
        EXPECT_TRUE(Session.CalcAborted);
        ASSERT_EQ(host_.Messages.size(), 1u);
        EXPECT_THAT(host_.LastMessage().Text, testing::HasSubstr(word));
    }
};

TEST_F(RectangularRun, LeavesTheMiddleRow) {
    Session.A = 6;
    Session.B = 4;
    Session.PrefDx = 1;
    Session.PrefDy = 1;
    Session.Exz_x = 0.5;
    Session.Exz_y = 0.3;
    Run();
    ASSERT_EQ(Session.RaftMidCount, 7);
    EXPECT_EQ(Session.RaftMeanPressure, Single(7854.0 / 24));
    for (int i = 1; i <= 7; ++i) {
        const int node = 14 + i;  // third of five rows
        EXPECT_EQ(Session.RaftMidX(i), i - 1);
        EXPECT_EQ(Session.NodeY(node), 2);
        EXPECT_EQ(Session.RaftMidSettlement(i), Session.NodeSettlement(node));
        EXPECT_EQ(Session.RaftMidPressure(i), Session.NodePressure(node));
        EXPECT_EQ(Session.NodePressure(node), Single(Session.NodeForce(node) / Session.NodeArea(node)));
    }
    EXPECT_LT(Session.RaftMidSettlement(1), Session.RaftMidSettlement(7));
}

// The element sizes become the real ones and stay so until the program ends.
TEST_F(RectangularRun, WritesTheElementSizesBack) {
    Session.A = 3.1;
    Session.PrefDx = 0.5;
    Session.PrefDy = 0.7;
    Run();
    EXPECT_EQ(Session.PrefDx, Single(Single(3.1) / 6));
    EXPECT_EQ(Session.PrefDy, Single(5.0 / 8));  // 7.14 to 7, odd
}

TEST_F(RectangularRun, AnalyticalRunStartsAtTheSurface) {
    Session.ProblemType = Problem::RaftConsolidation;
    Session.z = 3;
    Session.AnalysisType = true;
    Run();
    EXPECT_EQ(Session.z, 0);
    EXPECT_EQ(Session.h, 5);
    Session.z = 3;
    Session.SoilPropertyType = 2;
    Run();
    EXPECT_EQ(Session.z, 0);
    EXPECT_GT(Session.h, 100);  // the limiting depth
    Fresh();
    Session.ProblemType = Problem::RaftConsolidation;
    Session.z = 0.5;
    Run();
    EXPECT_EQ(Session.z, 0.5);
    EXPECT_EQ(Session.h, 5);
}

TEST_F(RectangularRun, AnalyticalRunKnowsNoEccentricity) {
    Session.AnalysisType = true;
    Run();
    const Array<Single> settlement = Session.NodeSettlement, pressure = Session.NodePressure;
    Session.Exz_x = 0.8;
    Session.Exz_y = 0.4;
    Run();
    for (int i = 1; i <= settlement.Upper(); ++i) {
        EXPECT_EQ(Session.NodeSettlement(i), settlement(i));
        EXPECT_EQ(Session.NodePressure(i), pressure(i));
    }
    EXPECT_THAT(Session.ResultText, testing::HasSubstr("= 0.80"));  // printed all the same
}

TEST_F(RectangularRun, PointerShowsTheWork) {
    Run();
    ASSERT_GE(host_.Pointers.size(), 2u);
    EXPECT_EQ(host_.Pointers.front(), PointerShape::Hourglass);
    EXPECT_EQ(host_.Pointer(), PointerShape::Default);
}

// A problem number or soil type that nothing is worked for leaves zeros, not what an earlier run had.
TEST_F(RectangularRun, UnknownSoilTypeGivesZeros) {
    Run();
    Session.ProblemType = Problem::RaftConsolidation;
    Session.SoilPropertyType = 3;
    Run();
    for (const Single s : Session.NodeSettlement) EXPECT_EQ(s, 0);
    for (const Single s : Session.RaftMidFlexible) EXPECT_EQ(s, 0);
}

// --- the flexible comparison, in 64 bits ---

// The sum of the influences of the mean pressure at a node of the middle row: own quarter areas by `corner`, others by
// `point`.
class FlexibleComparison : public RectangularRun {
  protected:
    using Influence = std::function<double(double)>;
    double At(int i, double corner, const Influence& point) const {
        const int target = 10 + i;  // third of five rows of five
        double sum = 0;
        for (int k = 1; k <= 25; ++k) {
            const double r =
                std::hypot(Session.NodeX(k) - Session.NodeX(target), Session.NodeY(k) - Session.NodeY(target));
            const bool edge = i == 1 || i == 5;
            sum += k == target ? (edge ? 2 : 4) * corner : Session.NodeArea(k) * point(r);
        }
        return sum * 7854 / 25;
    }
    void Expect(const std::function<double(int)>& settlement) {
        for (int i = 1; i <= 5; ++i) {
            const double expected = settlement(i);
            EXPECT_NEAR(Session.RaftMidFlexible(i), expected, expected * 1e-5) << i;
        }
    }
    // Integral over a square of side 0.625 m of an influence, at its corner.
    static double Corner(const Influence& point) {
        double sum = 0;
        for (int a = 0; a < 200; ++a) {
            const double end = 0.625 / std::cos((a + 0.5) / 200 * kPi / 4);
            for (int k = 0; k < 800; ++k) sum += point((k + 0.5) / 800 * end) * (k + 0.5) / 800 * end * end / 800;
        }
        return sum * 2 * kPi / 4 / 200;
    }
    static double StressMean(double r, double z1, double z2) {
        const auto g = [r](double z) { return 3 / std::hypot(r, z) - r * r / std::pow(std::hypot(r, z), 3); };
        return (g(z1) - g(z2)) / (2 * kPi * (z2 - z1));
    }
    double MeanStress(int i, double z1, double z2) const {
        const auto point = [z1, z2](double r) { return StressMean(r, z1, z2); };
        return At(i, Corner(point), point);
    }
};

TEST_F(FlexibleComparison, HalfSpace) {
    for (const int problem : {9, 10}) {
        Session.ProblemType = problem;
        Session.AnalysisType = true;
        Run();
        const double nu = problem == 9 ? 0.25 : 0;
        const auto point = [nu](double r) { return (1 - nu * nu) / (kPi * r * 5000); };
        Expect([&](int i) { return 100 * At(i, Corner(point), point); });
    }
}

TEST_F(FlexibleComparison, ElasticLayer) {
    Run();
    const auto point = [](double r) {
        const double R = std::hypot(r, 5);
        return 1.25 / (2 * kPi * 5000) * (1.5 / r - 1.5 / R - 25 / (R * R * R));
    };
    Expect([&](int i) { return 100 * At(i, Corner(point), point); });
}

TEST_F(FlexibleComparison, UniformClay) {
    Session.ProblemType = Problem::RaftConsolidation;
    Session.z = 0.5;
    Run();
    Expect([&](int i) { return MeanStress(i, 0.5, 5.5) * 5 / 5000 * 100; });
}

TEST_F(FlexibleComparison, ThinClay) {
    Session.ProblemType = Problem::RaftConsolidation;
    Session.SoilPropertyType = 2;
    Session.h = 2;
    Run();
    const double s0 = 8.69 * 2 / 2 + 51.82;
    Expect([&](int i) { return 0.16 / 1.85 * std::log10((s0 + MeanStress(i, 0, 2)) / s0) * 2 * 100; });
}

TEST_F(FlexibleComparison, ThickClay) {
    Session.ProblemType = Problem::RaftConsolidation;
    Session.SoilPropertyType = 2;
    Session.h = 7;  // two sublayers
    Run();
    Expect([&](int i) {
        double s = 0;
        for (int k = 0; k < 2; ++k) {
            const double s0 = 51.82 + (k + 0.5) * 3.5 * 8.69;
            s += 3.5 * 0.16 / 1.85 * std::log10((s0 + MeanStress(i, k * 3.5, (k + 1) * 3.5)) / s0) * 100;
        }
        return s;
    });
}

TEST_F(FlexibleComparison, AnalyticalClay) {
    Session.ProblemType = Problem::RaftConsolidation;
    Session.SoilPropertyType = 2;
    Session.AnalysisType = true;
    Session.PrefTol = 1;
    Run();
    const double step = std::sqrt(50.0) / 2;
    const int m = static_cast<int>(std::lround(Session.h / step));
    Expect([&](int i) {
        double s = 0;
        for (int k = 0; k < m; ++k) {
            const double s0 = (k + 0.5) * step * 8.69;
            s += step * 0.16 / 1.85 * std::log10((s0 + MeanStress(i, k * step, (k + 1) * step)) / s0) * 100;
        }
        return s;
    });
}

// --- failures and the way out ---

TEST_F(RectangularRun, FailuresAreToldOnceAndFlagged) {
    const std::string before = Session.ResultText = "the old report";
    Session.A = 0.2;  // shorter than half an element
    ExpectAbort("");
    EXPECT_EQ(Session.ResultText, before);
    EXPECT_TRUE(folder_.Names().empty());

    Fresh();
    Session.Es = 0;
    ExpectAbort("");
    Fresh();
    Session.Q = 1e38;
    Session.AnalysisType = true;
    Session.A = Session.B = 1e-3;
    ExpectAbort("");
    Fresh();
    Session.AnalysisType = true;
    Session.A = 1.8288;  // 6 ft
    ExpectAbort("");
    Fresh();
    Session.PrefDx = 0;
    ExpectAbort("");
}

// Too many nodes fail before any memory is taken: 10 km in elements of 0.25 m would need matrices of exabytes.
TEST_F(RectangularRun, TooManyNodesFailAtOnce) {
    Session.A = Session.B = 8000;
    Session.PrefDx = Session.PrefDy = 0.25;
    ExpectAbort("");
    Session.A = Session.B = 100;
    Session.PrefDx = Session.PrefDy = 0.25;
    ExpectAbort("");
    EXPECT_TRUE(folder_.Names().empty());
}

// --- laws of whole runs ---

// The same raft turned by a quarter gives the same settlements with its axes exchanged.
TEST_F(RectangularRun, TurnedRaftGivesTheTurnedResult) {
    Session.A = 6;
    Session.B = 4;
    Session.PrefDx = Session.PrefDy = 1;
    Session.Exz_x = 0.5;
    Session.Exz_y = 0.2;
    Run();
    const Array<Single> settlement = Session.NodeSettlement;
    Fresh();
    Session.A = 4;
    Session.B = 6;
    Session.PrefDx = Session.PrefDy = 1;
    Session.Exz_x = 0.2;
    Session.Exz_y = 0.5;
    Run();
    for (int j = 0; j < 5; ++j)
        for (int i = 0; i < 7; ++i) EXPECT_NEAR(Session.NodeSettlement(i * 5 + j + 1), settlement(j * 7 + i + 1), 1e-4);
}

// The rigid raft sinks by about the mean of the flexible one, between its centre and its edge.
TEST_F(RectangularRun, RigidSettlementLiesBetweenFlexibleOnes) {
    Session.PrefDx = Session.PrefDy = 0.5;
    Run();
    EXPECT_LT(Session.NodeSettlement(1), Session.RaftMidFlexible(6));
    EXPECT_GT(Session.NodeSettlement(1), Session.RaftMidFlexible(1));
}

// Finer elements settle towards a limit.
TEST_F(RectangularRun, RefinementConverges) {
    std::vector<double> settlement;
    for (const double size : {1.25, 0.625, 0.3125, 0.15625}) {
        Fresh();
        Session.PrefDx = Session.PrefDy = size;
        Run();
        settlement.push_back(Session.NodeSettlement(1));
    }
    const double d1 = settlement[1] - settlement[0], d2 = settlement[2] - settlement[1],
                 d3 = settlement[3] - settlement[2];
    EXPECT_LT(std::abs(d2), 0.7 * std::abs(d1));
    EXPECT_LT(std::abs(d3), 0.7 * std::abs(d2));
}

}  // namespace
}  // namespace lithmark::tests
