// The command study: one calculation for each combination of the varied fields.
#include <cmath>

#include "cli/CliCase.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> With(std::vector<std::string> words, const std::vector<std::string>& more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

class CliStudy : public CliTest {
  protected:
    Json Study(const std::string& project, const std::vector<std::string>& more) const {
        const CliResult result = Run(With({"study", project, "--format", "json"}, more));
        EXPECT_EQ(result.Status, 0) << result.Err;
        return Json::parse(result.Out);
    }
};

TEST_F(CliStudy, EachRowIsTheReportOfItsValues) {
    const std::string project = Example("RectangularFooting");
    const Json study = Study(project, {"--vary", "z=1:3:0.5", "--take", "Sigma_z", "--take", "w"});
    EXPECT_EQ(study["vary"], Json({"z"}));
    EXPECT_EQ(study["take"], Json({"Sigma_z", "w"}));
    ASSERT_EQ(study["rows"].size(), 5u);
    for (int i = 0; i < 5; ++i) {
        const Json& row = study["rows"][static_cast<std::size_t>(i)];
        const double z = 1 + 0.5 * i;
        EXPECT_EQ(row["values"][0].get<double>(), z);
        EXPECT_EQ(row["aborted"], false);
        const CliResult one = Run({"report", project, "--format", "json", "--set", "z=" + std::to_string(z)});
        const Json results = Json::parse(one.Out)["results"];
        EXPECT_EQ(row["results"][0], results["Sigma_z"]);
        EXPECT_EQ(row["results"][1], results["w"]);
    }
}

TEST_F(CliStudy, TheLastFieldVariesFastest) {
    const Json study =
        Study(Example("PointLoad"), {"--vary", "Q=1000:3000:1000", "--vary", "z=1:2:1", "--take", "Sigma_z"});
    std::vector<std::pair<double, double>> values;
    for (const auto& row : study["rows"]) values.emplace_back(row["values"][0], row["values"][1]);
    EXPECT_THAT(values, ElementsAre(std::pair(1000, 1), std::pair(1000, 2), std::pair(2000, 1), std::pair(2000, 2),
                                    std::pair(3000, 1), std::pair(3000, 2)));
    // Boussinesq: proportional to the load, row by row.
    for (std::size_t i = 2; i < 6; ++i) {
        const double factor = values[i].first / 1000;
        const double first = study["rows"][i % 2]["results"][0];
        EXPECT_NEAR(study["rows"][i]["results"][0], factor * first, 1e-6 * factor * std::abs(first));
    }
}

TEST_F(CliStudy, StepsOfATenthMeetTheirEnd) {
    const std::string project = Example("PointLoad");
    const auto count = [&](const std::string& vary) {
        return Study(project, {"--vary", vary, "--take", "s"})["rows"].size();
    };
    EXPECT_EQ(count("z=0.1:0.7:0.1"), 7u);
    EXPECT_EQ(count("z=2:1:-0.25"), 5u);
    EXPECT_EQ(count("z=1:2:0.3"), 4u);
    EXPECT_EQ(count("z=1:1:0"), 1u);
    const CliResult csv = Run({"study", project, "--vary", "z=0.1:0.4:0.1", "--take", "s"});
    const auto lines = LinesOf(csv.Out);
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_TRUE(lines[3].starts_with("0.3,")) << lines[3];
}

TEST_F(CliStudy, AnAbortedRowIsMarkedAndTheOthersStand) {
    const std::string project = Example("RectangularFooting");
    const Json study = Study(project, {"--vary", "Es=0:2000:1000", "--take", "Sigma_z"});
    ASSERT_EQ(study["rows"].size(), 3u);
    EXPECT_EQ(study["rows"][0]["aborted"], true);
    EXPECT_TRUE(study["rows"][0]["results"][0].is_null());
    EXPECT_NE(study["rows"][0]["message"], "");
    EXPECT_EQ(study["rows"][1]["aborted"], false);
    const auto lines = LinesOf(Run({"study", project, "--vary", "Es=0:2000:1000", "--take", "Sigma_z"}).Out);
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_TRUE(lines[1].starts_with("0,,")) << lines[1];
    EXPECT_THAT(lines[2], HasSubstr(",ok\r"));
}

TEST_F(CliStudy, ResultsOfListsAreTakenByIndexAndByExtremes) {
    const std::string project = Example("SquareRaft");
    const Json study = Study(project, {"--vary", "Q=1000:1000:1", "--take", "NodePressure(1)", "--take",
                                       "max(NodePressure)", "--take", "min(NodePressure)"});
    const Json results = Json::parse(Run({"report", project, "--format", "json", "--set", "Q=1000"}).Out)["results"];
    const auto pressures = results["NodePressure"].get<std::vector<double>>();
    const Json& row = study["rows"][0]["results"];
    EXPECT_EQ(row[0].get<double>(), pressures.front());
    EXPECT_EQ(row[1].get<double>(), *std::max_element(pressures.begin(), pressures.end()));
    EXPECT_EQ(row[2].get<double>(), *std::min_element(pressures.begin(), pressures.end()));
    ExpectFailure(Run({"study", project, "--vary", "Q=1000:1000:1", "--take", "NodePressure(0)"}), 2,
                  {"NodePressure(0)"});
    ExpectFailure(Run({"study", project, "--vary", "Q=1000:1000:1", "--take", "NodePressure"}), 2, {"NodePressure"});
    ExpectFailure(Run({"study", project, "--vary", "Q=1000:1000:1", "--take", "Moment"}), 2, {"Moment"});
}

TEST_F(CliStudy, ListsFromZeroBeginAtZero) {
    const std::string project = Example("OfficeBuilding");
    const Json study =
        Study(project, {"--vary", "Pt=100:100:1", "--take", "SuddenPercent(0)", "--take", "SuddenPercent(70)"});
    EXPECT_EQ(study["rows"][0]["results"][0], 0.0);
    EXPECT_EQ(study["rows"][0]["results"][1], 100.0);
}

TEST_F(CliStudy, WithoutATakeEverySingleNumberIsShown) {
    const Json study = Study(Example("ClayUnderFooting"), {"--vary", "z=2:3:1"});
    EXPECT_EQ(study["take"], Json({"Sigma_z", "s"}));
}

TEST_F(CliStudy, ARaftStudyLeavesNothingBesideTheProject) {
    const std::string project = Example("SquareRaft");
    const auto before = work.Names();
    EXPECT_EQ(Run({"study", project, "--vary", "Q=1000:4000:1000", "--take", "RaftMeanPressure"}).Status, 0);
    EXPECT_EQ(work.Names(), before);
}

TEST_F(CliStudy, AWrongVariationIsToldBeforeAnythingRuns) {
    const std::string project = Example("PointLoad");
    const std::vector<std::string> wrong[] = {{"z"},       {"z=1"},       {"z=1:2"},       {"z=1:2:x"},
                                              {"z=1:2:0"}, {"z=2:1:0.5"}, {"Young=1:2:1"}, {"z=0:10000000:1"}};
    for (const auto& vary : wrong) ExpectFailure(Run({"study", project, "--vary", vary[0]}), 2, {});
    ExpectFailure(Run({"study", project}), 2, {"--vary"});
    ExpectFailure(Run({"study", project, "--vary", "z=0:2000:1", "--vary", "x=0:2000:1"}), 2, {});
}

TEST_F(CliStudy, SetsAndLanguageReachEveryRow) {
    const std::string project = Example("PointLoad");
    const Json plain = Study(project, {"--vary", "z=1:2:1", "--take", "Sigma_z", "--set", "Q=500"});
    const Json twice = Study(project, {"--vary", "z=1:2:1", "--take", "Sigma_z", "--set", "Q=1000"});
    for (std::size_t i = 0; i < 2; ++i)
        EXPECT_NEAR(twice["rows"][i]["results"][0], 2 * plain["rows"][i]["results"][0].get<double>(), 1e-3);
    const auto message = [&](const std::string& lang) {
        return Study(project, {"--vary", "Es=0:0:1", "--take", "s", "--lang", lang})["rows"][0]["message"]
            .get<std::string>();
    };
    EXPECT_NE(message("de"), message("en"));
}

// Two calculations that begin at the same moment once copied each other's files, in one study of some dozens.
TEST_F(CliStudy, CalculationsSideBySideDoNotMixUpTheirFiles) {
    const std::string project = Example("PointLoad");
    for (int i = 0; i < 60; ++i) {
        const Json study = Study(project, {"--vary", "z=1:2:1", "--take", "Sigma_z"});
        ASSERT_EQ(study["rows"].size(), 2u);
        for (const Json& row : study["rows"]) ASSERT_FALSE(row["aborted"].get<bool>()) << row["message"];
    }
}

// Ctrl+C and the signal of schedulers and shutdowns alike: the rows so far, and nothing in the folder for temporary
// files.
TEST_F(CliStudy, AnEndedStudyLeavesTheRowsSoFar) {
    const std::string project = Example("SquareRaft");
    for (const std::string signal : {"INT", "TERM"}) {
        const TestFolder temporary;
        runner = "TMPDIR=" + temporary.Dir() + " timeout --foreground --preserve-status -s " + signal + " 2 env ";
        const CliResult result = Run(
            {"study", project, "--vary", "Q=1:100000:1", "--take", "RaftMeanPressure", "--output", work / "study.csv"});
        ExpectFailure(result, 130, {"SquareRaft"});
        const auto lines = LinesOf(ReadBytes(work / "study.csv"));
        ASSERT_GT(lines.size(), 2u);
        EXPECT_LT(lines.size(), 100001u);
        EXPECT_TRUE(lines.back().starts_with(std::to_string(lines.size() - 1) + ",")) << lines.back();
        EXPECT_TRUE(lines.back().ends_with(",ok\r")) << lines.back();
        EXPECT_THAT(temporary.Names(), testing::ElementsAre());
    }
}

TEST_F(CliStudy, ATerminalShowsTheProgress) {
    const std::string project = Example("PointLoad");
    const std::string line = CommandLineTool().string() + " study " + project +
                             " --vary z=1:20000:1 --take s --output " + (work / "s.csv") + " --settings " + work.Dir();
    const std::string shown = work / "shown";
    ASSERT_EQ(std::system(("script -qec '" + line + "' /dev/null >" + shown + " </dev/null").c_str()), 0);
    EXPECT_THAT(ReadBytes(shown), HasSubstr("##"));
    EXPECT_THAT(ReadBytes(shown), HasSubstr(" %"));
    EXPECT_THAT(ReadBytes(shown), testing::EndsWith("\r\x1B[K")) << "the bar is gone at the end";
    EXPECT_EQ(LinesOf(ReadBytes(work / "s.csv")).size(), 20001u);
}

TEST_F(CliStudy, AVaryThatIsNoWholeNumberFailsRowByRow) {
    const Json study = Study(Example("PointLoad"), {"--vary", "LoadType=1:2:0.5", "--take", "s"});
    ASSERT_EQ(study["rows"].size(), 3u);
    EXPECT_EQ(study["rows"][0]["aborted"], false);
    EXPECT_EQ(study["rows"][1]["aborted"], true);
    EXPECT_THAT(study["rows"][1]["message"].get<std::string>(), HasSubstr("LoadType=1.5"));
    EXPECT_EQ(study["rows"][2]["aborted"], false);
}

// Clay that is nearly impermeable does not reach 97 per cent in time: a warning, and results all the same.
TEST_F(CliStudy, AWarningStandsBesideItsResults) {
    const std::string project = Example("WaterTower");
    const std::vector<std::string> words = {"--vary", "kf=1e-14:1e-8:9.99999e-9", "--take", "ConsolidationEnd"};
    const Json study = Study(project, words);
    ASSERT_EQ(study["rows"].size(), 2u);
    EXPECT_EQ(study["rows"][0]["aborted"], false);
    EXPECT_NE(study["rows"][0]["message"], "");
    EXPECT_EQ(study["rows"][1]["message"], "");
    const auto lines = LinesOf(Run(With({"study", project}, words)).Out);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_THAT(lines[1], HasSubstr(",ok: "));
    EXPECT_TRUE(lines[2].ends_with(",ok\r")) << lines[2];
}

TEST_F(CliStudy, NoProgressIsShownWhereNoTerminalIs) {
    const CliResult result = Run({"study", Example("PointLoad"), "--vary", "z=1:5:1", "--take", "s"});
    EXPECT_EQ(result.Err, "");
}

}  // namespace
}  // namespace lithmark::tests
