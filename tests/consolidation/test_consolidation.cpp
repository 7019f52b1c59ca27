// Consolidation settlement: against hand calculations and fine numerical integration of the exact stresses; its
// failures.
#include <gtest/gtest.h>

#include <functional>

#include "kernels/consolidation/BasConsolidation.h"
#include "kernels/elastic/PolarMesh.h"
#include "support/Pi.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

// Simpson's rule over f on from..to.
double Integral(const std::function<double(double)>& f, double from, double to, int steps = 400) {
    const double width = (to - from) / steps;
    double sum = f(from) + f(to);
    for (int i = 1; i < steps; ++i) sum += f(from + i * width) * (i % 2 == 0 ? 2 : 4);
    return sum * width / 3;
}

double PointStress(double x, double y, double z) {
    return 3 * z * z * z / (2 * kPi * std::pow(x * x + y * y + z * z, 2.5));
}

// Under a uniform rectangle from (x1, y1) to (x2, y2), by integration of the point load's stress.
double RectangleStress(double x1, double x2, double y1, double y2, double z) {
    return Integral([&](double x) { return Integral([&](double y) { return PointStress(x, y, z); }, y1, y2, 60); }, x1,
                    x2, 60);
}

// Under a uniform circle of radius a at (x, 0), by the midpoint rule in polar coordinates.
double CircleStress(double a, double x, double z) {
    constexpr int steps = 160;
    double sum = 0;
    for (int i = 0; i < steps; ++i) {
        const double r = a * (i + 0.5) / steps;
        for (int j = 0; j < steps; ++j) {
            const double theta = 2 * kPi * (j + 0.5) / steps;
            sum += PointStress(x - r * std::cos(theta), r * std::sin(theta), z) * r;
        }
    }
    return sum * (a / steps) * (2 * kPi / steps);
}

// The same by a mesh of N divisions: K = N/2 + 1 rings of equal area, so with the outer radii a sqrt(i/K), all but the
// innermost one cut into 2 N sectors, and each piece a point load at its centroid.
double CircleMeshStress(double a, double x, double y, double z, int N) {
    const int K = N / 2 + 1;
    const double ring = kPi * a * a / K;
    double sum = ring * PointStress(x, y, z);
    for (int i = 2; i <= K; ++i) {
        const double r1 = a * std::sqrt((i - 1.0) / K), r2 = a * std::sqrt(1.0 * i / K);
        const double centroid = 2 * (std::pow(r2, 3) - std::pow(r1, 3)) / (3 * (r2 * r2 - r1 * r1));
        for (int j = 0; j < 2 * N; ++j) {
            const double theta = j * kPi / N;
            sum += ring / (2 * N) * PointStress(x - centroid * std::cos(theta), y - centroid * std::sin(theta), z);
        }
    }
    return sum;
}

class Consolidation : public ::testing::Test {
  protected:
    Consolidation() { FreshSession(); }

    // A clay by its modulus from 2 m to 5 m, 1 m beside a rectangle's centre.
    ConsolidationInput in{.x = 1,
                          .y = 0.5,
                          .z = 2,
                          .Q = 500,
                          .P = 100,
                          .A = 4,
                          .B = 3,
                          .h = 3,
                          .eo = 0.8,
                          .Po = 30,
                          .Gamma = 9,
                          .Cc = 0.2,
                          .Es = 5000,
                          .LoadType = 2,
                          .SoilPropertyType = 1};
    ScriptedHost host;

    void Run() {
        ComputeConsolidation(in.x, in.y, in.z, in.Q, in.P, in.A, in.B, in.h, in.eo, in.Po, in.Gamma, in.Cc, in.Es,
                             in.LoadType, in.SoilPropertyType);
    }
    void ExpectRuns() {
        Run();
        EXPECT_FALSE(Session.CalcAborted);
        EXPECT_TRUE(host.Messages.empty());
    }
    // The run fails: one message, the flag, no report, and the hourglass stays.
    void ExpectFails(FailureKind kind) {
        Session.A0 = in.A;
        try {
            SolveConsolidation(in);
            ADD_FAILURE() << "no failure";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Kind(), kind);
        }
        Session.CalcAborted = false;
        Session.ResultText = "before";
        host.Messages.clear();
        Run();
        EXPECT_TRUE(Session.CalcAborted);
        EXPECT_EQ(host.Messages.size(), 1u);
        EXPECT_EQ(Session.ResultText, "before");
        EXPECT_EQ(host.Pointer(), PointerShape::Hourglass);
    }
};

// --- the modulus ---

TEST_F(Consolidation, OfAPointLoadOnItsAxis) {
    // By hand: r = 0, z from 2 m to 3 m: mean (3/2 - 3/3)/(2 pi) = 0.0795775 per kN/m2 and kN; 100 kN: 7.95775 kN/m2.
    // s = 7.95775 * 1 * 100/5000 = 0.159155 cm.
    in.x = in.y = 0, in.h = 1, in.Q = 100, in.LoadType = 1;
    ExpectRuns();
    EXPECT_NEAR(Session.Sigma_z, 7.95775, 1e-5);
    EXPECT_NEAR(Session.s, 0.159155, 1e-6);
}

TEST_F(Consolidation, OfAPointLoadBesideIt) {
    in.LoadType = 1;
    for (const double x : {-3.0, 0.0, 0.7, 6.0}) {
        in.x = x;
        ExpectRuns();
        const double mean = 500 * Integral([&](double z) { return PointStress(x, 0.5, z); }, 2, 5) / 3;
        EXPECT_NEAR(Session.Sigma_z, mean, 1e-4);
        EXPECT_NEAR(Session.s, mean * 3 * 100 / 5000, 1e-5);
    }
}

TEST_F(Consolidation, OfARectangleInsideOnItsEdgesAndOutside) {
    // Centre, inside, edge, corner, outside; a is 4 m along x, b 3 m along y.
    for (const auto& [x, y] : {std::pair{0.0, 0.0}, {1.0, 0.5}, {2.0, 0.5}, {2.0, 1.5}, {-5.0, 2.5}}) {
        in.x = x, in.y = y;
        ExpectRuns();
        const double mean =
            100 *
            Integral([x = x, y = y](double z) { return RectangleStress(-2 - x, 2 - x, -1.5 - y, 1.5 - y, z); }, 2, 5,
                     20) /
            3;
        EXPECT_NEAR(Session.Sigma_z, mean, 2e-4) << x << ' ' << y;
        EXPECT_NEAR(Session.s, mean * 3 * 100 / 5000, 2e-5);
    }
}

TEST_F(Consolidation, OfARectangleMirrorsInBothAxes) {
    ExpectRuns();
    const Single s = Session.s;
    in.x = -in.x, in.y = -in.y;
    ExpectRuns();
    EXPECT_EQ(Session.s, s);
}

TEST_F(Consolidation, OnARectanglesCornerCountsOneRectangleAlone) {
    // The three others have a side of 0 and add nothing: one rectangle of 4 by 3.
    in.x = 2, in.y = -1.5;
    ExpectRuns();
    const double mean = 100 * Integral([](double z) { return RectangleStress(0, 4, 0, 3, z); }, 2, 5, 20) / 3;
    EXPECT_NEAR(Session.Sigma_z, mean, 2e-4);
}

TEST_F(Consolidation, OfACircleOnItsAxis) {
    in.LoadType = 3, in.x = in.y = 0, in.A = 2;
    for (const double z : {0.0, 2.0}) {
        in.z = z;
        ExpectRuns();
        const double mean =
            100 * Integral([](double d) { return 1 - d * d * d / std::pow(4 + d * d, 1.5); }, z, z + 3) / 3;
        EXPECT_NEAR(Session.Sigma_z, mean, 1e-4);
        EXPECT_NEAR(Session.s, mean * 3 * 100 / 5000, 1e-5);
    }
}

TEST_F(Consolidation, OfACircleOffItsAxisIsTheSumOverItsMesh) {
    in.LoadType = 3, in.A = 2;
    for (const int N : {2, 6, 12, 30}) {
        Session.PrefND = N;
        for (const auto& [x, y] : {std::pair{0.01, 0.0}, {0.9, -0.4}, {0.0, 1.6}, {-2.0, 0.1}, {3.0, 4.0}}) {
            in.x = x, in.y = y;
            ExpectRuns();
            const double mean =
                100 * Integral([&, x = x, y = y](double z) { return CircleMeshStress(2, x, y, z, N); }, 2, 5, 60) / 3;
            EXPECT_NEAR(Session.Sigma_z, mean, 1e-5 * mean) << N << ": " << x << ' ' << y;
        }
    }
}

TEST_F(Consolidation, OfACircleComesCloserToTheoryWithAFinerMesh) {
    in.LoadType = 3, in.y = 0, in.A = 2;
    for (const double x : {0.01, 0.9, 2.0, 5.0}) {
        in.x = x;
        const double mean = 100 * Integral([&](double z) { return CircleStress(2, x, z); }, 2, 5, 20) / 3;
        Session.PrefND = 12;
        ExpectRuns();
        EXPECT_NEAR(Session.Sigma_z, mean, 0.02 * mean) << x;
        Session.PrefND = 120;
        ExpectRuns();
        EXPECT_NEAR(Session.Sigma_z, mean, 0.0005 * mean) << x;
    }
}

TEST_F(Consolidation, OfACircleFarAwayIsThatOfAPointLoad) {
    in.LoadType = 3, in.A = 0.5, in.x = 40, in.y = -30, in.z = 50;
    ExpectRuns();
    const double circle = Session.Sigma_z;
    in.LoadType = 1, in.Q = 100 * kPi * 0.25;
    ExpectRuns();
    EXPECT_NEAR(circle, Session.Sigma_z, 2e-4 * circle);
}

// --- the compression index ---

TEST_F(Consolidation, ByCompressionIndexInTwoSublayers) {
    // By hand: h = 0.5 m in two sublayers of 0.25 m below 1 m, 100 kN on the axis.
    //   mean stresses 100 (3/1 - 3/1.25)/(0.25 * 2 pi) = 38.1972, 100 (3/1.25 - 3/1.5)/(0.25 * 2 pi) = 25.4648 kN/m2
    //   initial stresses 0.25 * 20/2 + 10 = 12.5, 12.5 + 0.25 * 20 = 17.5 kN/m2
    //   c = 0.25 * 0.5/(1 + 1)/ln 10 * 100 = 2.714341 cm
    //   s = 2.714341 (ln(50.6972/12.5) + ln(42.9648/17.5)) = 2.714341 (1.400159 + 0.898173) = 6.238456 cm
    in.x = in.y = 0, in.z = 1, in.h = 0.5, in.Q = 100, in.LoadType = 1, in.SoilPropertyType = 2;
    in.Gamma = 20, in.Po = 10, in.Cc = 0.5, in.eo = 1;
    ExpectRuns();
    EXPECT_NEAR(Session.s, 6.23846, 1e-4);
    EXPECT_NEAR(Session.Sigma_z, 25.4648, 1e-4);  // of the last sublayer
}

TEST_F(Consolidation, ByCompressionIndexForEveryLoad) {
    in.SoilPropertyType = 2, in.h = 1, in.A = 4;
    const auto settlement = [&](const std::function<double(double)>& stress) {
        // Four sublayers of 0.25 m.
        double s = 0;
        for (int i = 0; i < 4; ++i) {
            const double mean = Integral(stress, 2 + 0.25 * i, 2.25 + 0.25 * i, 10) / 0.25;
            const double p = 30 + 9 * (0.125 + 0.25 * i);
            s += 0.25 * 0.2 / 1.8 * std::log10((mean + p) / p) * 100;
        }
        return s;
    };
    in.LoadType = 1;
    ExpectRuns();
    EXPECT_NEAR(Session.s, settlement([](double z) { return 500 * PointStress(1, 0.5, z); }), 1e-5);
    in.LoadType = 2;
    ExpectRuns();
    EXPECT_NEAR(Session.s, settlement([](double z) { return 100 * RectangleStress(-3, 1, -2, 1, z); }), 1e-5);
    in.LoadType = 3;
    ExpectRuns();
    EXPECT_NEAR(Session.s, settlement([](double z) { return 100 * CircleMeshStress(4, 1, 0.5, z, 12); }), 2e-5);
    in.x = in.y = 0;
    ExpectRuns();
    EXPECT_NEAR(Session.s, settlement([](double z) { return 100 * (1 - z * z * z / std::pow(16 + z * z, 1.5)); }),
                1e-5);
}

TEST_F(Consolidation, RoundsTheNumberOfSublayersHalvesToEven) {
    // The mean of the last sublayer tells its depths: r = 0, so it is Q (3/z1 - 3/z2)/((z2 - z1) 2 pi) = 3 Q/(2 pi z1
    // z2).
    in.x = in.y = 0, in.LoadType = 1, in.SoilPropertyType = 2;
    const auto lastMean = [&](double thickness, int n) {
        const double z2 = 2 + thickness, z1 = z2 - thickness / n;
        return 3 * 500 / (2 * kPi * z1 * z2);
    };
    for (const auto& [thickness, n] : {std::pair{0.625, 2}, {0.875, 4}, {1.0, 4}, {0.375, 2}, {0.13, 1}, {3.0, 12}}) {
        in.h = thickness;
        ExpectRuns();
        EXPECT_NEAR(Session.Sigma_z, lastMean(thickness, n), 2e-3) << thickness;
    }
}

// --- what is deliberate ---

TEST_F(Consolidation, BuildsTheCirclesMeshOnTheAxisToo) {
    in.LoadType = 3, in.x = in.y = 0;
    Session.PrefND = 0;
    ExpectFails(FailureKind::DivisionByZero);
}

TEST_F(Consolidation, FailsOnANodeOfTheCirclesMesh) {
    in.LoadType = 3, in.A = 2;
    const PolarMesh mesh = BuildPolarMesh(12, 2);
    for (const int node : {2, 6, 60, 145}) {
        in.x = mesh.NodeX(node), in.y = mesh.NodeY(node);
        ExpectFails(FailureKind::SubscriptRange);
        in.x = mesh.NodeX(node) + 0.0009, in.y = mesh.NodeY(node) - 0.0009;
        ExpectFails(FailureKind::SubscriptRange);
        in.SoilPropertyType = 2;
        ExpectFails(FailureKind::SubscriptRange);
        in.SoilPropertyType = 1;
    }
    Session.CalcAborted = false;
    host.Messages.clear();
    in.x = mesh.NodeX(2) + 0.0011, in.y = 0;
    ExpectRuns();
    // Beside the centre, but not on it, the centre is a close node.
    in.x = 0.0005, in.y = 0;
    ExpectFails(FailureKind::SubscriptRange);
}

TEST_F(Consolidation, ComputesNothingForAnotherSoil) {
    Session.s = 1.5;
    Session.Sigma_z = 7;
    in.SoilPropertyType = 3;
    ExpectRuns();
    EXPECT_EQ(Session.s, 1.5);
    EXPECT_EQ(Session.Sigma_z, 7.0);
    EXPECT_NE(Session.ResultText.find("= 1.50"), std::string::npos);
}

TEST_F(Consolidation, KeepsTheStressOfBeforeForAnotherLoad) {
    Session.Sigma_z = 10;
    in.LoadType = 0;
    ExpectRuns();
    EXPECT_EQ(Session.Sigma_z, 10.0);
    EXPECT_NEAR(Session.s, 10 * 3 * 100 / 5000.0, 1e-6);
}

TEST_F(Consolidation, CopiesTheRadius) {
    in.LoadType = 3;
    ExpectRuns();
    EXPECT_EQ(Session.A0, 4.0);
    EXPECT_EQ(host.Pointers, (std::vector{PointerShape::Hourglass, PointerShape::Default}));
}

// --- failures ---

TEST_F(Consolidation, FailsWithoutAModulus) {
    in.Es = 0;
    ExpectFails(FailureKind::DivisionByZero);
}

TEST_F(Consolidation, FailsOnALayerOfLessThanHalfASublayer) {
    in.SoilPropertyType = 2;
    for (const double h : {0.12, 0.125, 0.0}) {  // 0.125/0.25 is a half and goes to 0
        in.h = h;
        ExpectFails(FailureKind::DivisionByZero);
    }
}

TEST_F(Consolidation, FailsOnTooManySublayers) {
    in.SoilPropertyType = 2;
    in.h = 0.25 * 32768;
    ExpectFails(FailureKind::Overflow);
}

TEST_F(Consolidation, FailsRightUnderAPointLoadAtTheSurface) {
    in.x = in.y = in.z = 0;
    in.LoadType = 1;
    ExpectFails(FailureKind::DivisionByZero);
    in.SoilPropertyType = 2;
    ExpectFails(FailureKind::DivisionByZero);
}

TEST_F(Consolidation, FailsWithoutInitialStress) {
    in.SoilPropertyType = 2;
    in.Po = in.Gamma = 0;
    ExpectFails(FailureKind::DivisionByZero);
}

TEST_F(Consolidation, FailsWhenUpliftExceedsTheInitialStress) {
    in.SoilPropertyType = 2;
    in.P = -1000;
    ExpectFails(FailureKind::InvalidArgument);
}

TEST_F(Consolidation, FailsOnAVoidRatioOfMinusOne) {
    in.SoilPropertyType = 2;
    in.eo = -1;
    ExpectFails(FailureKind::DivisionByZero);
}

TEST_F(Consolidation, FailsOnALayerWithoutThickness) {
    for (const int load : {1, 2, 3}) {
        in.LoadType = load, in.h = 0;
        ExpectFails(FailureKind::DivisionByZero);
    }
}

TEST_F(Consolidation, FailsOnACircleWithoutRadiusOrWithTooManyNodes) {
    in.LoadType = 3, in.A = 0;
    ExpectFails(FailureKind::DivisionByZero);
    in.A = 2;
    Session.PrefND = 182;
    ExpectFails(FailureKind::Overflow);
}

TEST_F(Consolidation, EndsWhenTheUserEndsIt) {
    in.SoilPropertyType = 2, in.LoadType = 3;
    host.CancelAtProgress(1);
    Run();
    EXPECT_TRUE(Session.CalcAborted);
}

}  // namespace
}  // namespace lithmark::tests
