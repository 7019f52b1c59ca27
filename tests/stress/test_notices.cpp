// Notices of the stress runs: what raises each, what close by does not, and the measured values in them.
#include <gtest/gtest.h>

#include <cmath>

#include "kernels/elastic/CircleIntegral.h"
#include "report/Measured.h"
#include "stress/StressCase.h"
#include "support/Matchers.h"
#include "support/Pi.h"
#include "support/Raised.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

class StressNotices : public testing::Test {
  protected:
    StressNotices() { FreshSession(); }
    void Run(int problem, const SoilStressInput& in) {
        Session.ProblemType = problem;
        ComputeSoilStress(in.x, in.y, in.z, in.Q, in.P, in.A, in.B, in.Nue, in.Es, in.LoadType);
        ASSERT_FALSE(Session.CalcAborted);
    }
    ScriptedHost host_;
};

// The point integral over the disc in polar coordinates about its centre, by the midpoint rule.
double ByAreas(double a, double r, double z) {
    constexpr int steps = 800;
    double sum = 0;
    for (int i = 0; i < steps; ++i) {
        const double rho = a * (i + 0.5) / steps;
        for (int j = 0; j < steps; ++j) {
            const double d2 = rho * rho + r * r - 2 * rho * r * std::cos(kPi * (j + 0.5) / steps);
            sum += 3 * z * z * z / (2 * kPi * std::pow(d2 + z * z, 2.5)) * rho;
        }
    }
    return sum * (a / steps) * (kPi / steps) * 2;
}

TEST(CircleIntegralTest, GivesTheClosedFormsOfTheAxisAndTheEdge) {
    EXPECT_NEAR(CircleIntegral(5, 0, [](double rho) { return DiscStress(rho, 2); }), DiscStress(5, 2), 2e-6);
    // The surface of a half-space settles at the edge by 2/pi of the centre (Schleicher 1926).
    const auto surface = [](double rho) { return DiscSettlement(rho, 1e9, 0.3); };
    EXPECT_NEAR(CircleIntegral(5, 5, surface) / surface(5), 2 / kPi, 1e-5);
}

TEST(CircleIntegralTest, AgreesWithAnIntegrationOverAreasInsideAndOutside) {
    for (const double r : {1.0, 4.5, 5.5, 9.0})
        EXPECT_NEAR(CircleIntegral(5, r, [](double rho) { return DiscStress(rho, 1.5); }), ByAreas(5, r, 1.5), 2e-5)
            << r;
}

TEST(CircleIntegralTest, AMeanStressIsTheMeanOfTheStressOverDepth) {
    double sum = 0;
    for (int i = 0; i < 1000; ++i) sum += DiscStress(3, 1 + 2 * (i + 0.5) / 1000) / 1000;
    EXPECT_NEAR(DiscMeanStress(3, 1, 3), sum, 1e-6);
}

TEST_F(StressNotices, QIsToldWhereItIsBeyondTheDifferenceOfThePrincipalStresses) {
    Run(1, PointLoadAt(3, 0, 0.3, 0));
    EXPECT_TRUE(Raised(NoticeId::QImpossible));
    // Tau_xy and Tau_yz are 0 on the line y = 0, so the three stresses are principal ones and q is that of von Mises.
    const double mid = Session.Sigma_y, mean = (Session.Sigma_x + Session.Sigma_z) / 2;
    const double radius = std::hypot(Session.Tau_xz, (Session.Sigma_z - Session.Sigma_x) / 2);
    const double max = mean + radius, min = mean - radius;
    const double q = std::sqrt((std::pow(max - min, 2) + std::pow(mid - min, 2) + std::pow(max - mid, 2)) / 2);
    EXPECT_THAT(Told(NoticeId::QImpossible), HasSubstr("q = " + MeasuredPressure(q)));

    Run(1, PointLoadAt(3, 0, 1, 0));  // deeper: 6.3 under a difference of 7.1
    EXPECT_FALSE(Raised(NoticeId::QImpossible));
    Run(3, PointLoadAt(3, 0, 0.3, 0));  // prints no q
    EXPECT_FALSE(Raised(NoticeId::QImpossible));
}

// Beside the load along y the greatest stress is Sigma_y, which the x-z plane does not have: q may then be greater than
// the difference in that plane, and the notice must not say that it cannot.
TEST_F(StressNotices, QIsToldWithSigmaYWhereThatLiesOutsideThePlanesStresses) {
    Run(1, PointLoadAt(0, 2, 1));
    const double y = Session.Sigma_y, max = Session.Sigma_z, min = Session.Sigma_x;  // Tau_xz is 0 at x = 0
    ASSERT_EQ(static_cast<double>(Session.Tau_xz), 0);
    ASSERT_GT(y, max);
    ASSERT_GT(max, min);
    const double q = std::sqrt((std::pow(max - min, 2) + std::pow(y - min, 2) + std::pow(max - y, 2)) / 2);
    ASSERT_GT(q, max - min);
    EXPECT_THAT(Told(NoticeId::QImpossible), HasSubstr("x-z plane, " + MeasuredPressure(max - min)));
    EXPECT_THAT(Told(NoticeId::QImpossible), HasSubstr("Sigma_y = " + MeasuredPressure(y) + " lies outside"));
    EXPECT_THAT(Told(NoticeId::QImpossible), HasSubstr("third one q = " + MeasuredPressure(q)));
}

TEST_F(StressNotices, ShearsOfACircleAreToldInLineWithNodes) {
    // On the x axis the 13 nodes of the axis are left out of all shears. Theory: symmetry leaves Tau_xz alone.
    Run(1, CircleAt(4, 0, 1, 5));
    EXPECT_TRUE(Raised(NoticeId::ShearInLine));
    EXPECT_THAT(Told(NoticeId::ShearInLine), HasSubstr("Tau_xz"));
    EXPECT_THAT(Told(NoticeId::ShearInLine), testing::Not(HasSubstr("Tau_yz")));

    Run(1, CircleAt(4, 0.13, 1, 5));  // 13 cm beside the axis no node is in line
    EXPECT_FALSE(Raised(NoticeId::ShearInLine));
    Run(1, CircleAt(0, 0, 1, 5));  // on the axis of the load what is left out sums to nothing
    EXPECT_FALSE(Raised(NoticeId::ShearInLine));
    Run(3, CircleAt(4, 0, 1, 5));  // displacements have no shears
    EXPECT_FALSE(Raised(NoticeId::ShearInLine));
}

TEST_F(StressNotices, TheShearWithTheTermsLeftOutIsThatBesideTheLine) {
    Run(1, CircleAt(4, 0.005, 2, 5));
    const double beside = Session.Tau_xz;
    Run(1, CircleAt(4, 0, 2, 5));
    EXPECT_THAT(Told(NoticeId::ShearInLine), HasSubstr("Tau_xz"));
    // The last value of the sentence, read back.
    const std::string told = Told(NoticeId::ShearInLine);
    const double full = std::stod(told.substr(told.rfind("with them ") + 10));
    EXPECT_NEAR(full, beside, 0.01 * beside);
    EXPECT_GT(std::abs(Session.Tau_xz - beside), 0.05 * beside);
}

TEST_F(StressNotices, TauXyOfARectangleIsToldOnTheLineOfAnEdge) {
    Run(2, RectangleAt(2.5, 2, 2, 5, 4));  // below the corner
    EXPECT_THAT(Told(NoticeId::ShearInLine), HasSubstr("Tau_xy"));
    // 2 mm beside the line no corner is left out, and Tau_xy has the value that is told.
    const std::string told = Told(NoticeId::ShearInLine);
    const double full = std::stod(told.substr(told.rfind("with them ") + 10));
    Run(2, RectangleAt(2.502, 2.002, 2, 5, 4));
    EXPECT_FALSE(Raised(NoticeId::ShearInLine));
    EXPECT_NEAR(Session.Tau_xy, full, 0.02 * full);

    Run(2, RectangleAt(2.5, 0, 2, 5, 4));  // the middle of the edge: the terms left out cancel
    EXPECT_FALSE(Raised(NoticeId::ShearInLine));
}

TEST_F(StressNotices, TheSettlementBetweenNodesOfACircleIsTold) {
    // Twelve divisions of a diameter of 10 m: rings 0.833 m wide.
    Run(3, CircleAt(0.4, 0.1, 3, 5));
    EXPECT_THAT(Told(NoticeId::CircleNearNodes),
                HasSubstr("without the mesh " +
                          MeasuredSettlement(100 * kP / kEs * CircleIntegral(5, std::hypot(0.4, 0.1), [](double rho) {
                                                 return DiscSettlement(rho, 3, kNue);
                                             }))));
    Run(3, CircleAt(0, 0, 3, 5));  // on a node
    EXPECT_FALSE(Raised(NoticeId::CircleNearNodes));
    Run(3, CircleAt(5.8, 0.1, 3, 5));  // outside, within one spacing
    EXPECT_TRUE(Raised(NoticeId::CircleNearNodes));
    Run(3, CircleAt(5.9, 0.1, 3, 5));  // farther out
    EXPECT_FALSE(Raised(NoticeId::CircleNearNodes));
    Run(3, PointLoadAt(0.4, 0.1, 3));
    EXPECT_FALSE(Raised(NoticeId::CircleNearNodes));
}

TEST_F(StressNotices, StressesBetweenNodesAreToldAboveOneSpacingOnly) {
    Run(1, CircleAt(0.4, 0.1, 0.8, 5));
    EXPECT_TRUE(Raised(NoticeId::CircleNearNodes));
    Run(2, CircleAt(0.4, 0.1, 0.84, 5));  // the spacing is 0.833 m
    EXPECT_FALSE(Raised(NoticeId::CircleNearNodes));
}

TEST_F(StressNotices, ChangeNoResultAndNoReport) {
    Run(1, CircleAt(4, 0, 0.2, 5));
    EXPECT_EQ(Session.ResultText.find("Tau_xz is"), std::string::npos);
    const StressResults run = ResultsOfSession();
    EXPECT_EQ(run, Solve(CircleAt(4, 0, 0.2, 5)));
}

}  // namespace
}  // namespace lithmark::tests
