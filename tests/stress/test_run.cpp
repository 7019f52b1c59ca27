// A whole run of the stress kernel: pointer, failure, flags, and the rows of its report.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/Units.h"
#include "kernels/stress/BasSoilStress.h"
#include "report/LoadRows.h"
#include "report/ToolLib.h"
#include "stress/StressCase.h"
#include "support/Lines.h"
#include "support/Matchers.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

class StressRun : public testing::Test {
  protected:
    void SetUp() override {
        FreshSession(Language::Ids);
        Session.ResultText = "earlier report";
    }
    static void Run(const SoilStressInput& in) {
        ComputeSoilStress(in.x, in.y, in.z, in.Q, in.P, in.A, in.B, in.Nue, in.Es, in.LoadType);
    }
    // The report behind its heading, each line without its unit and value.
    static std::vector<std::string> Rows() {
        std::vector<std::string> rows;
        const std::vector<std::string> lines = ReportLinesOf(Session.ResultText);
        for (std::size_t i = 11; i < lines.size(); ++i) {
            const std::size_t unit = lines[i].find(" [");
            std::string row = Trim(lines[i].substr(0, unit));
            while (row.find("  ") != std::string::npos) row = ReplaceAll(row, "  ", " ");
            rows.push_back(row);
        }
        return rows;
    }
    // The line of the report that holds a text.
    static std::string Line(const std::string& text) {
        for (const std::string& line : ReportLinesOf(Session.ResultText))
            if (line.find(text) != std::string::npos) return line;
        return "no line with " + text;
    }

    ScriptedHost host_;
};

TEST_F(StressRun, ShowsTheHourglassWhileItComputes) {
    Run(PointLoadAt(1, 1, 1));
    EXPECT_THAT(host_.Pointers, ElementsAre(PointerShape::Hourglass, PointerShape::Default));
    EXPECT_THAT(host_.Messages, IsEmpty());
    EXPECT_FALSE(Session.CalcAborted);
}

TEST_F(StressRun, CopiesAToTheRadius) {
    Run(CircleAt(1, 1, 1, 3));
    EXPECT_EQ(Session.A0, 3);
}

// Also for the stress problem, which does not show the modulus.
TEST_F(StressRun, OnAFailureTellsItOnceAndKeepsHourglassAndEarlierReport) {
    Session.ProblemType = Problem::SoilStress;
    Run(PointLoadAt(1, 1, 1, 0.3, 0));
    EXPECT_TRUE(Session.CalcAborted);
    EXPECT_EQ(host_.Messages.size(), 1u);
    EXPECT_THAT(host_.Pointers, ElementsAre(PointerShape::Hourglass));
    EXPECT_EQ(Session.ResultText, "earlier report");
}

TEST_F(StressRun, WithAMeshTooLargeFails) {
    Session.PrefND = 200;
    Run(CircleAt(1, 1, 1, 3));
    EXPECT_TRUE(Session.CalcAborted);
    Session.CalcAborted = false;
    Session.PrefND = 180;
    Run(CircleAt(1, 1, 1, 3));
    EXPECT_FALSE(Session.CalcAborted);
}

TEST_F(StressRun, OnTheSurfacePrintsTheDepthZero) {
    Run(RectangleAt(1, 1, 0, 4, 3));
    EXPECT_FALSE(Session.CalcAborted);
    EXPECT_THAT(Line("T<90001>(z)"), HasSubstr("[m]     = 0.00"));
}

TEST_F(StressRun, EndsEveryLineOfItsReportWithCrLf) {
    Run(PointLoadAt(1, 1, 1));
    EXPECT_EQ(ReplaceAll(Session.ResultText, "\r\n", "").find_first_of("\r\n"), std::string::npos);
    EXPECT_TRUE(Session.ResultText.ends_with("\r\n"));
}

TEST_F(StressRun, PrintsStressesWithoutTheModulusAndPBeforeQ) {
    Session.ProblemType = Problem::SoilStress;
    Run(RectangleAt(1, 1, 1, 4, 3));
    const std::vector<std::string> expected = {"",
                                               "T<400174>",
                                               Ruler(),
                                               "",  //
                                               "T<140095>",
                                               "T<300002> p",
                                               "T<400001> a",
                                               "T<101> b",
                                               "",  //
                                               "T<140162>",
                                               "T<90004> Nue_s",
                                               "",  //
                                               "T<400128>",
                                               "T<90001>(x) x",
                                               "T<90001>(y) y",
                                               "T<90001>(z) z",
                                               "",  //
                                               "T<140096>",
                                               "T<140179>(x) Sigma_x",
                                               "T<140179>(y) Sigma_y",
                                               "T<140179>(z) Sigma_z",  //
                                               "T<140180>(x,y) Tau_xy",
                                               "T<140180>(x,z) Tau_xz",
                                               "T<140180>(y,z) Tau_yz",  //
                                               "T<80008> max_Tau",
                                               "T<80009> max_Sigma",
                                               "T<80010> min_Sigma",
                                               "T<80012> p",
                                               "T<80011> q"};
    EXPECT_THAT(Rows(), ElementsAreArray(expected));
}

TEST_F(StressRun, PrintsStrainsWithTheModulusAheadOfPoissonsRatio) {
    Session.ProblemType = Problem::SoilStrain;
    Run(CircleAt(1, 1, 1, 3));
    const std::vector<std::string> expected = {"",
                                               "T<400179>",
                                               Ruler(),
                                               "",  //
                                               "T<140095>",
                                               "T<400127> p",
                                               "T<400120> a",
                                               "",  //
                                               "T<140162>",
                                               "T<90029> Es",
                                               "T<90004> Nue_s",
                                               "",  //
                                               "T<400128>",
                                               "T<90001>(x) x",
                                               "T<90001>(y) y",
                                               "T<90001>(z) z",
                                               "",  //
                                               "T<140096>",
                                               "T<140181>(x) Varepsilon_x",
                                               "T<140181>(y) Varepsilon_y",  //
                                               "T<140181>(z) Varepsilon_z",
                                               "T<140182>(x,y) Gamma_xy",  //
                                               "T<140182>(x,z) Gamma_xz",
                                               "T<140182>(y,z) Gamma_yz",  //
                                               "T<80013> max_Gamma",
                                               "T<80014> max_Epsilon",
                                               "T<80015> min_Epsilon",  //
                                               "T<80017> Epsilon_p",
                                               "T<80016> Epsilon_q"};
    EXPECT_THAT(Rows(), ElementsAreArray(expected));
}

TEST_F(StressRun, PrintsDisplacementsAndTheSettlement) {
    Session.ProblemType = Problem::SoilDisplacement;
    Run(PointLoadAt(1, 1, 1));
    const std::vector<std::string> expected = {"",          "T<400172>",      Ruler(),
                                               "",  //
                                               "T<140095>", "T<400186> Q",
                                               "",  //
                                               "T<140162>", "T<90029> Es",    "T<90004> Nue_s",
                                               "",  //
                                               "T<400128>", "T<90001>(x) x",  "T<90001>(y) y",  "T<90001>(z) z",
                                               "",  //
                                               "T<140096>", "T<140178>(x) u", "T<140178>(y) v", "T<140178>(z) w",
                                               "T<40081> s"};
    EXPECT_THAT(Rows(), ElementsAreArray(expected));
}

TEST_F(StressRun, HasATitleForEachProblemAndLoad) {
    const int titles[3][3] = {{400171, 400174, 400177}, {400173, 400176, 400179}, {400172, 400175, 400178}};
    for (int problem = 1; problem <= 3; ++problem)
        for (int load = 1; load <= 3; ++load) {
            Session.ProblemType = problem;
            SoilStressInput in = RectangleAt(1, 1, 1, 4, 3);
            in.LoadType = load;
            Run(in);
            EXPECT_EQ(Rows()[1], "T<" + std::to_string(titles[problem - 1][load - 1]) + ">");
        }
}

TEST_F(StressRun, WithAnUnknownLoadTypePrintsNeitherTitleNorLoad) {
    SoilStressInput in = RectangleAt(1, 1, 1, 4, 3);
    in.LoadType = 4;
    Run(in);
    EXPECT_FALSE(Session.CalcAborted);
    const std::vector<std::string> rows = Rows();
    EXPECT_EQ(rows[1], Ruler());
    EXPECT_EQ(rows[3], "T<140095>");
    EXPECT_EQ(rows[4], "");
    EXPECT_EQ(rows[5], "T<140162>");
}

TEST_F(StressRun, OfAnotherProblemPrintsNeitherTitleNorResults) {
    Session.ProblemType = Problem::Consolidation;
    Run(RectangleAt(1, 1, 1, 4, 3));
    const std::vector<std::string> rows = Rows();
    EXPECT_EQ(rows[1], Ruler());
    EXPECT_EQ(rows.back(), "T<140096>");
}

// By hand: 1 m = 3.28083989501312 ft, 1 kN = 0.224808923655339 kip, so 1 kN/m2 = 0.0208854... kip/ft2.
TEST_F(StressRun, ConvertsToTheUnitsInForce) {
    Session.Len1Label = Text(36_text);
    Session.Len1Factor = 3.28083989501312;
    Session.Force1Label = Text(51_text);
    Session.Force1Factor = 0.224808923655339;
    Session.FmtStress = "0.0000";
    Run(RectangleAt(1, 2, 3, 4, 3));
    EXPECT_THAT(Line("T<300002>"), HasSubstr("[kip/ft²] = 2.0885"));
    EXPECT_THAT(Line("T<400001>"), HasSubstr("[ft]      = 13.12"));
    EXPECT_THAT(Line("T<101>"), HasSubstr("[ft]      = 9.84"));
    EXPECT_THAT(Line("T<90001>(y)"), HasSubstr("[ft]      = 6.56"));
    EXPECT_THAT(Line("Sigma_z"), HasSubstr("= " + FormatValue(Session.Sigma_z * 0.020885434, "0.0000")));
    Run(PointLoadAt(1, 2, 3));
    EXPECT_THAT(Line("T<400186>"), HasSubstr("[kip]     = 224.8"));
}

// Deliberate: another small length unit changes the label of a displacement and not its number.
TEST_F(StressRun, PrintsDisplacementsInCentimetresWithAnyLabel) {
    Session.ProblemType = Problem::SoilDisplacement;
    Run(PointLoadAt(1, 2, 3));
    const std::string centimetres = Line("T<40081>");
    ASSERT_THAT(centimetres, HasSubstr("[cm]"));
    Session.Len2Label = Text(42_text);
    Session.Len2Factor = 10;
    Run(PointLoadAt(1, 2, 3));
    EXPECT_EQ(Line("T<40081>"), ReplaceAll(centimetres, "[cm]", "[mm]"));
}

TEST_F(StressRun, NamesTheAxesInTheLettersOfTheLanguage) {
    LanguageTexts().SetCurrent(Language::Arabic);
    Run(PointLoadAt(1, 2, 3));
    EXPECT_THAT(Session.ResultText, HasSubstr(Text(90001_text, {{"|1", "س"}})));
    EXPECT_THAT(Session.ResultText, HasSubstr(Text(140180_text, {{"|1", "ص"}, {"|2", "ع"}})));
}

class LoadRows : public StressRun {
  protected:
    void SetUp() override {
        StressRun::SetUp();
        Session.Len1Label = Text(40_text);
        Session.Len1Factor = 100;
    }
    static std::string Row(const std::string& symbol) {
        for (const std::string& line : ReportLinesOf(Session.ResultText))
            if (line.find(" " + symbol + " [") != std::string::npos) return line.substr(line.find('['));
        return "no row " + symbol;
    }
};

TEST_F(LoadRows, HaveTheUnitFactorTwiceInTheSideAOfARectangleAlone) {
    Session.ResultText.clear();
    AddLoadRows(2, 1, 1, 4, 3, LengthFactor::Twice);
    ReportParameters();
    EXPECT_THAT(Row("a"), HasSubstr("= 40000.00"));
    EXPECT_THAT(Row("b"), HasSubstr("= 300.00"));
    Session.ResultText.clear();
    AddLoadRows(3, 1, 1, 4, 3, LengthFactor::Twice);
    ReportParameters();
    EXPECT_THAT(Row("a"), HasSubstr("= 400.00"));
}

TEST_F(LoadRows, HaveTheUnitFactorTwiceInCoordinatesWhereAReportAsksForIt) {
    Session.ResultText.clear();
    AddCoordinateRows(1, 2, 3, LengthFactor::Twice);
    ReportParameters();
    EXPECT_THAT(Row("z"), HasSubstr("= 30000.00"));
    Session.ResultText.clear();
    AddCoordinateRows(1, 2, 3);
    ReportParameters();
    EXPECT_THAT(Row("z"), HasSubstr("= 300.00"));
}

}  // namespace
}  // namespace lithmark::tests
