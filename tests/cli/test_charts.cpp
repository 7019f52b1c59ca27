// The commands chart and contour.
#include "cli/CliCase.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class CliCharts : public CliTest {
  protected:
    Json Chart(const std::string& project, const std::vector<std::string>& more = {}) const {
        const CliResult result = Run(With({"chart", project}, more));
        EXPECT_EQ(result.Status, 0) << result.Err;
        return Json::parse(result.Out);
    }
    Json Contour(const std::string& project, const std::vector<std::string>& more = {}) const {
        const CliResult result = Run(With({"contour", project}, more));
        EXPECT_EQ(result.Status, 0) << result.Err;
        return Json::parse(result.Out);
    }
};

TEST_F(CliCharts, AChartHasTheArgumentsOfTheChartWindow) {
    const Json chart = Chart(Example("OfficeBuilding"), {"--curve", "Tab2"});
    EXPECT_EQ(Keys(chart), (std::vector<std::string>{"curves", "lastColumn", "headerRows", "lastRow", "xTitle",
                                                     "yTitle", "legends", "tableTitle", "cells", "header", "flag",
                                                     "lineStyles", "xStart", "xEnd", "projectText", "chartTitle"}));
    EXPECT_EQ(chart["curves"], 1);
    EXPECT_EQ(chart["lastColumn"], 2);
    EXPECT_EQ(chart["legends"].size(), 1u);
    EXPECT_EQ(chart["lineStyles"], Json({"Solid line"}));
    ASSERT_EQ(chart["cells"].size(), chart["lastRow"].get<std::size_t>());
    EXPECT_EQ(chart["cells"][0].size(), 2u);
    EXPECT_EQ(chart["cells"][0][0], "0") << "the curve begins at time 0";
    EXPECT_EQ(chart["header"].size(), chart["headerRows"].get<std::size_t>() + 1);
    EXPECT_EQ(chart["header"][0].size(), 2u);
    EXPECT_EQ(chart["flag"], true);
    EXPECT_EQ(chart["xStart"], 0.0);
    EXPECT_EQ(chart["xEnd"], chart["lastRow"].get<double>() - 1);
}

TEST_F(CliCharts, UnitsAreThoseOfTheDialogUnlessAskedFor) {
    const std::string project = Example("OfficeBuilding");
    const auto title = [&](const std::vector<std::string>& more) {
        return Chart(project, more)["yTitle"].get<std::string>();
    };
    EXPECT_THAT(title({"--curve", "Tab1"}), HasSubstr("Ex [kN]"));
    EXPECT_THAT(title({"--curve", "Tab1", "--load-unit", "force"}), HasSubstr("Ex [kN]"));
    EXPECT_THAT(title({"--curve", "Tab1", "--load-unit", "%"}), HasSubstr("EL [%]"));
    EXPECT_THAT(title({"--curve", "Tab2"}), HasSubstr("Setn [cm]"));
    EXPECT_THAT(title({"--curve", "Tab2", "--settlement-unit", "%"}), HasSubstr("Sts [%]"));
    EXPECT_EQ(Chart(project), Chart(project, {"--curve", "Tab1"}));
}

TEST_F(CliCharts, EachProblemHasItsOwnCurves) {
    const std::string time = Example("OfficeBuilding"), raft = Example("SquareRaft"), plain = Example("PointLoad"),
                      store = Example("GrainStore");
    EXPECT_EQ(Chart(raft), Chart(raft, {"--curve", "Tab5"}));
    EXPECT_EQ(Chart(raft, {"--curve", "Tab6"})["curves"], 3);
    EXPECT_EQ(Chart(time, {"--curve", "Tab4"})["curves"], 2);
    ExpectFailure(Run({"chart", time, "--curve", "Tab5"}), 2, {"Tab5"});
    ExpectFailure(Run({"chart", raft, "--curve", "Tab1"}), 2, {"Tab1"});
    ExpectFailure(Run({"chart", store, "--curve", "Tab4"}), 2, {"Tab4"});  // nothing was measured
    ExpectFailure(Run({"chart", plain}), 2, {"1"});
    ExpectFailure(Run({"chart", time, "--curve", "Tab7"}), 2, {"Tab7"});
}

TEST_F(CliCharts, PerCentOfNoSettlementIsAborted) {
    const std::string project = Example("OfficeBuilding");
    ExpectFailure(
        Run({"chart", project, "--curve", "Tab3", "--settlement-unit", "%", "--set", "Sc=0", "--set", "Ms=0"}), 3,
        {"OfficeBuilding"});
    EXPECT_EQ(Run({"chart", project, "--curve", "Tab3", "--set", "Sc=0", "--set", "Ms=0"}).Status, 0);
}

TEST_F(CliCharts, TheTableAsCommaSeparatedValues) {
    const std::string project = Example("OneClayLayer");
    const Json chart = Chart(project);
    const std::vector<std::string> lines = LinesOf(Run({"chart", project, "--format", "csv"}).Out);
    ASSERT_EQ(lines.size(), chart["cells"].size() + 1);
    for (const std::string& line : lines) EXPECT_TRUE(line.ends_with('\r'));
    for (std::size_t i = 0; i < chart["cells"].size(); ++i) {
        std::string row;
        for (const auto& cell : chart["cells"][i]) row += (row.empty() ? "" : ",") + cell.get<std::string>();
        EXPECT_EQ(lines[i + 1], row + "\r");
    }
    EXPECT_EQ(chart["flag"], false);
    EXPECT_EQ(chart["curves"], 2);
}

TEST_F(CliCharts, TheEndingOfTheOutputTellsTheFormat) {
    const std::string project = Example("OneClayLayer");
    EXPECT_EQ(Run({"chart", project, "--output", work / "curve.CSV"}).Status, 0);
    EXPECT_EQ(ReadBytes(work / "curve.CSV"), Run({"chart", project, "--format", "csv"}).Out);
    EXPECT_EQ(Run({"chart", project, "--output", work / "curve"}).Status, 0);
    EXPECT_EQ(Json::parse(ReadBytes(work / "curve")), Chart(project));
    ExpectFailure(Run({"chart", project, "--output", work / "curve.bmp"}), 2, {"bmp"});
}

TEST_F(CliCharts, AContourHasItsWindowLinesAndLabels) {
    const Json plot = Contour(Example("SquareRaft"), {"--size", "60"});
    EXPECT_EQ(Keys(plot), (std::vector<std::string>{"ZMin", "ZMax", "ZStep", "window", "labels", "boundary", "isolines",
                                                    "values", "mesh", "pixels"}));
    const double zMin = plot["ZMin"], zMax = plot["ZMax"];
    EXPECT_LE(zMin, zMax);
    EXPECT_NEAR(plot["ZStep"], (zMax - zMin) / 10, 1e-6 * (1 + zMax));
    EXPECT_EQ(plot["labels"].size(), 10u);
    EXPECT_EQ(plot["pixels"].size(), 60u);
    EXPECT_EQ(plot["pixels"][0].size(), 60u);
    EXPECT_FALSE(plot["mesh"].empty());
    EXPECT_EQ(plot["mesh"][0].size(), 4u);
}

// The rigid raft under a central load settles evenly, but its pressures do not.
TEST_F(CliCharts, PressuresAreDrawnInTheirClasses) {
    const Json plot = Contour(Example("SquareRaft"), {"--result", "pressure", "--size", "110"});
    EXPECT_GT(plot["ZStep"].get<double>(), 0);
    EXPECT_FALSE(plot["isolines"].empty());
    const auto window = plot["window"].get<std::vector<double>>();
    const double side = window[1] - window[0];
    for (const auto& line : plot["isolines"]) {
        ASSERT_EQ(line.size(), 5u);
        EXPECT_GE(line[0].get<int>(), 1);
        EXPECT_LE(line[0].get<int>(), 10);
    }
    double length = 0;
    for (const auto& line : plot["boundary"])
        length +=
            std::hypot(line[2].get<double>() - line[0].get<double>(), line[3].get<double>() - line[1].get<double>());
    EXPECT_NEAR(length, 4 * side / 1.1, 1e-3 * length) << "the outline of a square";
    // A margin of a twenty-second of the picture is empty, all else has a class.
    for (int row = 0; row < 110; ++row)
        for (int column = 0; column < 110; ++column) {
            const int pixel = plot["pixels"][static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            const int edge = std::min({row, column, 110 - row, 110 - column});
            if (edge < 5) {
                EXPECT_EQ(pixel, 0) << row << "," << column;
            }
            if (edge > 5) {
                EXPECT_TRUE(pixel >= 1 && pixel <= 10) << row << "," << column;
            }
        }
}

// The field stands in the unit of the caption, centimetres, at round limits; the plot of ten classes in metres.
TEST_F(CliCharts, AFieldHasRoundLimitsInTheUnitOfItsTitle) {
    const std::string project = Example("EccentricRaft");
    const Json plot = Contour(project), field = Contour(project, {"--style", "field"});
    EXPECT_EQ(Keys(field),
              (std::vector<std::string>{"title", "unit", "limits", "colours", "least", "greatest", "lines"}));
    EXPECT_EQ(field["unit"], "[cm]");
    const double least = field["least"]["value"], greatest = field["greatest"]["value"];
    EXPECT_NEAR(least, 100 * plot["ZMin"].get<double>(), 1e-5);
    EXPECT_NEAR(greatest, 100 * plot["ZMax"].get<double>(), 1e-5);
    const auto limits = field["limits"].get<std::vector<double>>();
    EXPECT_EQ(field["colours"].size() + 1, limits.size());
    const double step = limits[1] - limits[0];
    EXPECT_LE(limits.front(), least + 1e-6);
    EXPECT_GT(limits.front(), least - step);
    EXPECT_GE(limits.back(), greatest - 1e-6);
    EXPECT_LT(limits.back(), greatest + step);
    for (const auto& line : field["lines"]) {
        ASSERT_EQ(line.size(), 5u);
        EXPECT_GT(line[0].get<double>(), least);
        EXPECT_LT(line[0].get<double>(), greatest);
    }
    EXPECT_EQ(Contour(project, {"--style", "classes"}), plot);
}

TEST_F(CliCharts, ASectionRunsThroughTheField) {
    const std::string project = Example("EccentricRaft");
    const Json field = Contour(project, {"--style", "field", "--section", "middle", "--size", "22"});
    const Json& section = field["section"];
    ASSERT_GE(section.size(), 2u);
    EXPECT_EQ(section[0][0], 0.0);
    // A rigid raft settles as a plane: along a line the values lie on a straight one.
    const double length = section.back()[0], first = section[0][3], last = section.back()[3];
    for (const auto& point : section)
        EXPECT_NEAR(point[3].get<double>(), first + point[0].get<double>() / length * (last - first), 1e-3 * last);
    ASSERT_EQ(field["pixels"].size(), 22u);
    EXPECT_EQ(field["pixels"][0][0], 0) << "the margin";
    EXPECT_GE(field["pixels"][11][11].get<int>(), 1);
    ExpectFailure(Run({"contour", project, "--style", "field", "--section", "1,2,3"}), 2, {"1,2,3"});
    ExpectFailure(Run({"contour", project, "--section", "middle"}), 2, {"--style field"});
    ExpectFailure(Run({"contour", project, "--style", "field", "--section", "900,0,900,1"}), 2, {"900,0,900,1"});
    ExpectFailure(Run({"contour", project, "--style", "bands"}), 2, {"bands"});
}

#ifdef LITHMARK_RENDER
TEST_F(CliCharts, AFieldAsAPicture) {
    const std::string project = Example("SquareRaft");
    const auto bytes = [&](const std::string& ending) {
        const std::string file = work / ("field." + ending);
        EXPECT_EQ(Run({"contour", project, "--result", "pressure", "--style", "field", "--output", file}).Status, 0);
        return ReadBytes(file);
    };
    EXPECT_TRUE(bytes("pdf").starts_with("%PDF-"));
    EXPECT_TRUE(bytes("png").starts_with("\x89PNG"));
    EXPECT_THAT(bytes("svg"), HasSubstr("Contact pressure q"));
    EXPECT_NE(bytes("svg"), Run({"contour", project, "--result", "pressure", "--format", "svg"}).Out);
}

TEST_F(CliCharts, SettlementsCanBeDrawnDownward) {
    const std::string project = Example("OfficeBuilding");
    const auto svg = [&](const std::vector<std::string>& more) {
        return Run(With({"chart", project, "--format", "svg", "--curve"}, more)).Out;
    };
    EXPECT_NE(svg({"Tab3"}), svg({"Tab3", "--downward"}));
    EXPECT_EQ(svg({"Tab1"}), svg({"Tab1", "--downward"})) << "loads have no other way";
    EXPECT_EQ(Chart(project, {"--curve", "Tab3"}), Chart(project, {"--curve", "Tab3", "--downward"}));
}
#endif

TEST_F(CliCharts, OnlyRaftsHaveContours) {
    ExpectFailure(Run({"contour", Example("PointLoad")}), 2, {"1"});
    ExpectFailure(Run({"contour", Example("SquareRaft"), "--result", "moment"}), 2, {"moment"});
    ExpectFailure(Run({"contour", work / "SquareRaft.PO3", "--size", "0"}), 2, {"0"});
    ExpectFailure(Run({"contour", work / "SquareRaft.PO3", "--set", "Es=0"}), 3, {"SquareRaft"});
}

}  // namespace
}  // namespace lithmark::tests
