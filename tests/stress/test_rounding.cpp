// The stored digits of the results.
#include <gtest/gtest.h>

#include "core/Session.h"
#include "stress/StressCase.h"

namespace lithmark::tests {
namespace {

struct RoundedRow {
    SoilStressInput In;
    int Divisions;
    double Results[10];
};

const RoundedRow kRows[] = {
#include "stress/rounded_results.inc"
};

// Derived apart: rounded_results.py evaluates the formulas with the same rounding of each named quantity to 32 bits.
// Equal to the last digit: no quantity is rounded that should not be, none is left unrounded.
TEST(StressRounding, HappensWhereAQuantityIsNamed) {
    ResetSession();
    for (const RoundedRow& row : kRows) {
        SCOPED_TRACE(testing::Message() << "load type " << row.In.LoadType << " at " << row.In.x << ", " << row.In.y
                                        << ", " << row.In.z);
        Session.PrefND = row.Divisions;
        const StressResults r = Solve(row.In);
        const double actual[] = {r.Sigma_x, r.Sigma_y, r.Sigma_z, r.Tau_xy, r.Tau_xz, r.Tau_yz, r.u, r.v, r.w, r.s};
        for (std::size_t i = 0; i < 10; ++i) EXPECT_EQ(actual[i], Single(row.Results[i])) << "result " << i;
    }
}

}  // namespace
}  // namespace lithmark::tests
