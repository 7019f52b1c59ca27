// Whole reports of the problems 1 to 3 as goldens, and their printed numbers against theory.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "kernels/stress/BasSoilStress.h"
#include "stress/StressCase.h"
#include "support/Golden.h"
#include "support/Lines.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

constexpr const char* kProblems[] = {"", "stress", "strain", "displacement"};
constexpr const char* kLoads[] = {"", "point", "rectangle", "circle"};

// One soil and one point for all of them.
void RunCase(int problem, int load) {
    Session.ProblemType = problem;
    ComputeSoilStress(1, 0.5, 2, 7854, 100, load == 3 ? 3 : 5, 4, 0.25, 5000, load);
}

class GoldenStressReports : public testing::TestWithParam<std::tuple<int, int>> {};

TEST_P(GoldenStressReports, StayAsTheyAre) {
    const auto [problem, load] = GetParam();
    const std::pair<Language, const char*> languages[] = {
        {Language::German, "de"}, {Language::English, "en"}, {Language::Arabic, "ar"}, {Language::Ids, "ids"}};
    for (const auto& [language, code] : languages) {
        FreshSession(language);
        RunCase(problem, load);
        ASSERT_FALSE(Session.CalcAborted);
        EXPECT_TRUE(
            MatchesGolden(std::string("stress/") + kLoads[load] + "_" + kProblems[problem] + "_" + code + ".txt",
                          Session.ResultText));
    }
}

INSTANTIATE_TEST_SUITE_P(AllProblemsAndLoads, GoldenStressReports,
                         testing::Combine(testing::Range(1, 4), testing::Range(1, 4)), [](const auto& instance) {
                             return std::string(kProblems[std::get<0>(instance.param)]) + "_" +
                                    kLoads[std::get<1>(instance.param)];
                         });

// The values printed by symbol.
std::map<std::string, double> PrintedValues() {
    std::map<std::string, double> values;
    for (const std::string& line : ReportLinesOf(Session.ResultText)) {
        const std::size_t unit = line.find(" ["), equals = line.find(" = ");
        if (unit == std::string::npos || equals == std::string::npos) continue;
        const std::string front = Trim(line.substr(0, unit));
        values[front.substr(front.rfind(' ') + 1)] = std::stod(line.substr(equals + 3));
    }
    return values;
}

// The goldens' numbers against theory: the integrated point load, Hooke's law and the circle of stresses in 64 bits.
// Half a unit of the last printed digit, and for the circle the error of its mesh.
void ExpectPrintedStresses(int load, const Theory& t, double meshError) {
    FreshSession();
    RunCase(1, load);
    std::map<std::string, double> printed = PrintedValues();
    const double radius = std::hypot(t.Tau_xz, (t.Sigma_z - t.Sigma_x) / 2), middle = (t.Sigma_x + t.Sigma_z) / 2;
    const double p = (t.Sigma_x + t.Sigma_y + t.Sigma_z) / 3, mid = p - 2 * middle;
    const double q =
        std::sqrt((4 * radius * radius + std::pow(mid - middle + radius, 2) + std::pow(middle + radius - mid, 2)) / 2);
    const std::map<std::string, double> expected = {{"Sigma_x", t.Sigma_x},
                                                    {"Sigma_y", t.Sigma_y},
                                                    {"Sigma_z", t.Sigma_z},
                                                    {"Tau_xy", t.Tau_xy},
                                                    {"Tau_xz", t.Tau_xz},
                                                    {"Tau_yz", t.Tau_yz},
                                                    {"max_Tau", radius},
                                                    {"max_Sigma", middle + radius},
                                                    {"min_Sigma", middle - radius},
                                                    {"q", q}};
    for (const auto& [symbol, value] : expected) {
        ASSERT_TRUE(printed.contains(symbol)) << symbol;
        EXPECT_NEAR(printed[symbol], value, 0.0501 + meshError) << symbol;
    }
    // The pressure of a uniform load has the symbol of the mean stress; the mean stress stands behind it.
    EXPECT_NEAR(printed["p"], p, 0.0501 + meshError);

    RunCase(2, load);
    printed = PrintedValues();
    EXPECT_NEAR(printed["Varepsilon_z"], (t.Sigma_z - 0.25 * (t.Sigma_x + t.Sigma_y)) / 5000,
                0.0000501 + meshError / 5000);
    EXPECT_NEAR(printed["Gamma_xz"], t.Tau_xz * 2.5 / 5000, 0.0000501 + meshError / 2000);
    EXPECT_NEAR(printed["Epsilon_p"], 3 * p * 0.5 / 5000, 0.0000501 + meshError / 5000);

    RunCase(3, load);
    printed = PrintedValues();
    EXPECT_NEAR(printed["w"], 100 * t.w, 0.00501 + meshError / 50);
}

TEST(GoldenNumbers, OfThePointLoadAreBoussinesqs) {
    ExpectPrintedStresses(1, PointTheory(1, 0.5, 2, 7854, 0.25, 5000), 0);
}

TEST(GoldenNumbers, OfTheRectangleAreThoseOfTheIntegratedPointLoad) {
    ExpectPrintedStresses(2, RectangleTheory(1, 0.5, 2, 100, 5, 4, 0.25, 5000), 0);
}

TEST(GoldenNumbers, OfTheCircleAreThoseOfTheIntegratedPointLoadWithinItsMesh) {
    ExpectPrintedStresses(3, CircleTheory(1, 0.5, 2, 100, 3, 0.25, 5000), 1);
}

}  // namespace
}  // namespace lithmark::tests
