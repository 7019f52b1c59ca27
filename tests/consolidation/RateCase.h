// A run of the degree of consolidation: the defaults of the problem, changed field by field.
#pragma once

#include <cmath>
#include <string>

#include "core/Session.h"
#include "kernels/consolidation/BasConsolidationRate.h"
#include "services/texts/LanguageTexts.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {

constexpr double kDay = 86400;
constexpr double kYear = 31540000;

struct RateCase {
    Single x = 0, y = 0, z = 1, Q = 7854, P = 150, A = 2, B = 2;
    Integer LoadType = 2;
    Single U = 100, T = 5;
    Integer NumLayers = 1;
    Array<Single> h = Array<Single>::Of({4, 5});
    Array<Single> Cv = Array<Single>::Of({0.0000015, 0.0000015});
    Array<Single> K = Array<Single>::Of({1, 1});
    Integer Drainage = 1;
    bool Pressure = true;
    std::string TimeUnit = Text(10004_text);

    void Run() const {
        Session.CalcAborted = false;
        ComputeConsolidationRate(x, y, z, Q, P, A, B, LoadType, U, T, NumLayers, h, Cv, K, Drainage, Pressure,
                                 TimeUnit);
    }
};

// One layer of whole metres with dz = 1 m, whose T counts steps: Cv is such that a step takes 2^-3 days or as near to
// it as 32 bits come. TimeOfSteps gives the T of a number of steps.
inline RateCase StepCase(double thickness, Integer drainage = 1) {
    RateCase c;
    c.h = Array<Single>::Of({thickness, thickness});
    c.Cv = Array<Single>::Of({8 / (6 * kDay), 8 / (6 * kDay)});
    c.Drainage = drainage;
    c.TimeUnit = Text(10001_text);
    return c;
}

// The time step as stored, dz = 1 m.
inline Single StepOf(const RateCase& c) {
    return 0.16666666666666666 / (c.Cv(1) * kDay);
}

// A time of exactly this many steps (a small number, or one with a few binary digits).
inline Single TimeOfSteps(const RateCase& c, double steps) {
    const Single T = StepOf(c) * steps;
    EXPECT_EQ(static_cast<double>(Single(T / StepOf(c))), steps) << "not representable: " << steps;
    return T;
}

// The isochrone as numbers.
inline std::vector<double> NumbersOf(const Array<Single>& values) {
    std::vector<double> numbers;
    for (const Single& value : values) numbers.push_back(value);
    return numbers;
}

}  // namespace lithmark::tests
