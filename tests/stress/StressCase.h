// One stress run by its input, and what it leaves in Session, for tests.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/Session.h"
#include "kernels/stress/BasSoilStress.h"
#include "stress/Theory.h"

namespace lithmark::tests {

struct StressResults {
    double Sigma_x, Sigma_y, Sigma_z, Tau_xy, Tau_xz, Tau_yz;
    double Varepsilon_x, Varepsilon_y, Varepsilon_z, Gamma_xy, Gamma_xz, Gamma_yz;
    double u, v, w, s;  // cm

    bool operator==(const StressResults&) const = default;
};

inline StressResults ResultsOfSession() {
    return {Session.Sigma_x,
            Session.Sigma_y,
            Session.Sigma_z,
            Session.Tau_xy,
            Session.Tau_xz,
            Session.Tau_yz,
            Session.Varepsilon_x,
            Session.Varepsilon_y,
            Session.Varepsilon_z,
            Session.Gamma_xy,
            Session.Gamma_xz,
            Session.Gamma_yz,
            Session.u,
            Session.v,
            Session.w,
            Session.s};
}

inline StressResults Solve(const SoilStressInput& in) {
    Session.A0 = in.A;
    SolveSoilStress(in);
    return ResultsOfSession();
}

constexpr double kQ = 1000, kP = 100, kNue = 0.3, kEs = 8000;

inline SoilStressInput PointLoadAt(double x, double y, double z, double Nue = kNue, double Es = kEs) {
    return {x, y, z, kQ, 0, 0, 0, Nue, Es, 1};
}
inline SoilStressInput RectangleAt(double x, double y, double z, double A, double B, double Nue = kNue,
                                   double Es = kEs) {
    return {x, y, z, 0, kP, A, B, Nue, Es, 2};
}
inline SoilStressInput CircleAt(double x, double y, double z, double A, double Nue = kNue, double Es = kEs) {
    return {x, y, z, 0, kP, A, 0, Nue, Es, 3};
}

// Stresses against theory, each within `tolerance` times `scale`.
inline void ExpectStressesNear(const StressResults& actual, const Theory& expected, double scale, double tolerance) {
    EXPECT_NEAR(actual.Sigma_x, expected.Sigma_x, tolerance * scale);
    EXPECT_NEAR(actual.Sigma_y, expected.Sigma_y, tolerance * scale);
    EXPECT_NEAR(actual.Sigma_z, expected.Sigma_z, tolerance * scale);
    EXPECT_NEAR(actual.Tau_xy, expected.Tau_xy, tolerance * scale);
    EXPECT_NEAR(actual.Tau_xz, expected.Tau_xz, tolerance * scale);
    EXPECT_NEAR(actual.Tau_yz, expected.Tau_yz, tolerance * scale);
}

}  // namespace lithmark::tests
