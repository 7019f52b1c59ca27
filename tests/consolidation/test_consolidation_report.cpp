// The report of the consolidation settlement: its rows, units and factors.
#include <gtest/gtest.h>

#include <algorithm>

#include "kernels/consolidation/BasConsolidation.h"
#include "report/ToolLib.h"
#include "support/Golden.h"
#include "support/Lines.h"
#include "support/Matchers.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

ConsolidationInput Example(int loadType, int soilPropertyType) {
    return {.x = 0,
            .y = 0,
            .z = 2,
            .Q = 500,
            .P = 120,
            .A = 4,
            .B = 3,
            .h = 3,
            .eo = 0.85,
            .Po = 32.5,
            .Gamma = 9.5,
            .Cc = 0.22,
            .Es = 6000,
            .LoadType = loadType,
            .SoilPropertyType = soilPropertyType};
}

void Compute(const ConsolidationInput& in) {
    ComputeConsolidation(in.x, in.y, in.z, in.Q, in.P, in.A, in.B, in.h, in.eo, in.Po, in.Gamma, in.Cc, in.Es,
                         in.LoadType, in.SoilPropertyType);
}

// What follows the heading block and its ruler, with text numbers for texts and single blanks between the columns.
std::vector<std::string> Rows(const ConsolidationInput& in) {
    Session.s = 1.25;
    LanguageTexts().SetCurrent(Language::Ids);
    WriteConsolidationReport(in);
    LanguageTexts().SetCurrent(Language::English);
    std::vector<std::string> lines = ReportLinesOf(Session.ResultText);
    const auto ruler = std::find(lines.begin(), lines.end(), Ruler());
    lines.erase(lines.begin(), ruler + 2);
    for (std::string& line : lines)
        while (line.find("  ") != std::string::npos) line = ReplaceAll(line, "  ", " ");
    return lines;
}

class ConsolidationReport : public ::testing::Test {
  protected:
    ConsolidationReport() { FreshSession(); }
    ScriptedHost host;
};

TEST_F(ConsolidationReport, OfAPointLoadByModulus) {
    EXPECT_THAT(Rows(Example(1, 1)),
                ElementsAre("T<400180>", Ruler(), "", "T<140095>", "T<400186> Q [kN] = 500.0", "", "T<140162>",
                            "T<90029> Es [kN/m²] = 6000.0", "", "T<400128>", "T<90001>(x) x [m] = 0.00",
                            "T<90001>(y) y [m] = 0.00", "T<90001>(z) z [m] = 2.00", "T<40052> h [m] = 3.00", "",
                            "T<140096>", "T<140186> s [cm] = 1.25"));
}

TEST_F(ConsolidationReport, OfARectangleByCompressionIndex) {
    EXPECT_THAT(Rows(Example(2, 2)),
                ElementsAre("T<400181>", Ruler(), "", "T<140095>", "T<300002> p [kN/m²] = 120.0",
                            "T<400001> a [m] = 4.00", "T<101> b [m] = 3.00", "", "T<140162>", "T<300004> Cc [-] = 0.22",
                            "T<10175> eo [-] = 0.85", "T<120001> po [kN/m²] = 32.5", "T<10244> Gamma_c [kN/m³] = 9.5",
                            // Deliberate: the overburden once more.
                            "T<120001> Gamma*z [kN/m²] = 32.5", "", "T<400128>", "T<90001>(x) x [m] = 0.00",
                            "T<90001>(y) y [m] = 0.00", "T<90001>(z) z [m] = 2.00", "T<40052> h [m] = 3.00", "",
                            "T<140096>", "T<140186> s [cm] = 1.25"));
}

TEST_F(ConsolidationReport, OfACircle) {
    const auto rows = Rows(Example(3, 1));
    EXPECT_EQ(rows[0], "T<400182>");
    EXPECT_EQ(rows[4], "T<400127> p [kN/m²] = 120.0");
    EXPECT_EQ(rows[5], "T<400120> a [m] = 4.00");
    EXPECT_EQ(rows[6], "");
}

TEST_F(ConsolidationReport, HasNoRowsForAnUnknownLoadOrSoil) {
    EXPECT_THAT(Rows(Example(4, 3)),
                ElementsAre(Ruler(), "", "T<140095>", "", "T<140162>", "", "T<400128>", "T<90001>(x) x [m] = 0.00",
                            "T<90001>(y) y [m] = 0.00", "T<90001>(z) z [m] = 2.00", "T<40052> h [m] = 3.00", "",
                            "T<140096>", "T<140186> s [cm] = 1.25"));
}

// Deliberate: the depth, the thickness and the point take the length factor twice, the load once.
TEST_F(ConsolidationReport, MultipliesThePointTwiceByTheLengthFactor) {
    Session.Len1Label = "[dm]", Session.Len1Factor = 10;
    Session.Len2Label = "[mm]", Session.Len2Factor = 10;
    ConsolidationInput in = Example(2, 1);
    in.x = 0.5;
    const auto rows = Rows(in);
    EXPECT_EQ(rows[5], "T<400001> a [dm] = 40.00");
    EXPECT_EQ(rows[6], "T<101> b [dm] = 30.00");
    EXPECT_EQ(rows[12], "T<90001>(x) x [dm] = 50.00");
    EXPECT_EQ(rows[14], "T<90001>(z) z [dm] = 200.00");
    EXPECT_EQ(rows[15], "T<40052> h [dm] = 300.00");
    EXPECT_EQ(rows[18], "T<140186> s [mm] = 12.50");
}

// Deliberate: the unit weight takes no factor; the stresses do.
TEST_F(ConsolidationReport, PrintsTheUnitWeightUnscaled) {
    Session.Force1Label = "[MN]", Session.Force1Factor = 0.001;
    const auto rows = Rows(Example(1, 2));
    EXPECT_EQ(rows[4], "T<400186> Q [MN] = 0.5");
    EXPECT_EQ(rows[9], "T<120001> po [MN/m²] = 0.0");
    EXPECT_EQ(rows[10], "T<10244> Gamma_c [MN/m³] = 9.5");
}

class ConsolidationReportGolden : public ::testing::TestWithParam<std::pair<Language, const char*>> {};

TEST_P(ConsolidationReportGolden, InEveryLanguage) {
    const auto [language, suffix] = GetParam();
    ScriptedHost host;
    // By hand: 500 (3/2 - 3/5)/(3 * 2 pi) * 3 * 100/6000 = 1.194 cm.
    FreshSession(language);
    Compute(Example(1, 1));
    EXPECT_TRUE(MatchesGolden(std::string("consolidation/point_es_") + suffix + ".txt", Session.ResultText));
    // From twelve sublayers with integrated corner stresses: 10.208 cm.
    FreshSession(language);
    Compute(Example(2, 2));
    EXPECT_TRUE(MatchesGolden(std::string("consolidation/rectangle_cc_") + suffix + ".txt", Session.ResultText));
    // By hand: 120 (3 - 57/sqrt(41) + 36/sqrt(20))/3 * 3 * 100/6000 = 4.296 cm.
    FreshSession(language);
    Compute(Example(3, 1));
    EXPECT_TRUE(MatchesGolden(std::string("consolidation/circle_es_") + suffix + ".txt", Session.ResultText));
    EXPECT_TRUE(host.Messages.empty());
}

INSTANTIATE_TEST_SUITE_P(Languages, ConsolidationReportGolden,
                         ::testing::Values(std::pair{Language::German, "de"}, std::pair{Language::English, "en"},
                                           std::pair{Language::Arabic, "ar"}));

}  // namespace
}  // namespace lithmark::tests
