// report --format json: the results by name, digit for digit what the kernel left, and the messages of the run.
#include <functional>

#include "cli/CliCase.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "files/ProblemData.h"
#include "files/ProjectFiles.h"
#include "kernels/RunKernel.h"
#include "services/SharedServices.h"
#include "support/Matchers.h"
#include "support/RunProject.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

const std::vector<std::string> kStress = {"Sigma_x",
                                          "Sigma_y",
                                          "Sigma_z",
                                          "Tau_xy",
                                          "Tau_xz",
                                          "Tau_yz",
                                          "Varepsilon_x",
                                          "Varepsilon_y",
                                          "Varepsilon_z",
                                          "Gamma_xy",
                                          "Gamma_xz",
                                          "Gamma_yz",
                                          "u",
                                          "v",
                                          "w",
                                          "s"};
const std::vector<std::string> kTime = {"LoadCurve",     "SuddenPercent", "SuddenSettlement", "SettlementSum",
                                        "LoadChartTime", "LoadChartNew",  "LoadChartPrev",    "ConsolidationEnd"};
const std::vector<std::string> kRaft = {"NodeX",
                                        "NodeY",
                                        "NodeArea",
                                        "NodeForce",
                                        "NodePressure",
                                        "NodeSettlement",
                                        "RaftMidX",
                                        "RaftMidSettlement",
                                        "RaftMidPressure",
                                        "RaftMidFlexible",
                                        "RaftMeanPressure",
                                        "z",
                                        "h"};

class CliResults : public CliTest {
  protected:
    Json Report(const std::string& project, const std::vector<std::string>& more = {}) const {
        const CliResult result = Run(With({"report", project, "--format", "json"}, more));
        EXPECT_EQ(result.Status, 0) << result.Err;
        return Json::parse(result.Out);
    }
    // The same run in this process.
    void RunHere(const std::string& name) const { ASSERT_NO_FATAL_FAILURE(ReadAndRunProject(work.Dir(), name)); }
};

void ExpectSame(const Json& json, Single value) {
    EXPECT_EQ(json.get<float>(), value.Stored());
}

void ExpectSame(const Json& json, const Array<Single>& values) {
    ASSERT_EQ(json.size(), static_cast<std::size_t>(values.Upper() - values.Lower() + 1));
    std::size_t at = 0;
    for (int i = values.Lower(); i <= values.Upper(); ++i) EXPECT_EQ(json[at++].get<float>(), values(i).Stored()) << i;
}

#define EXPECT_FIELD(name)                        \
    {                                             \
        SCOPED_TRACE(#name);                      \
        ExpectSame(results[#name], Session.name); \
    }

TEST_F(CliResults, StressesHaveTheirSixteenFieldsAndTheValuesOfTheKernel) {
    const std::vector<std::string> more[] = {{"max_Tau", "max_Sigma", "min_Sigma", "p", "q"},
                                             {"max_Gamma", "max_Epsilon", "min_Epsilon", "Epsilon_p", "Epsilon_q"},
                                             {}};
    const char* const examples[] = {"PointLoad", "BridgePier", "CircularTank"};
    for (int i = 0; i < 3; ++i) {
        const Json json = Report(Example(examples[i]));
        EXPECT_EQ(Keys(json), (std::vector<std::string>{"project", "problem", "aborted", "messages", "notices",
                                                        "results", "report"}));
        EXPECT_EQ(json["project"], examples[i]);
        EXPECT_EQ(json["problem"], i + 1);
        EXPECT_EQ(json["aborted"], false);
        EXPECT_TRUE(json["messages"].empty());
        EXPECT_EQ(Keys(json["results"]), With(kStress, more[i]));
        RunHere(examples[i]);
        const Json& results = json["results"];
        EXPECT_FIELD(Sigma_x);
        EXPECT_FIELD(Sigma_y);
        EXPECT_FIELD(Sigma_z);
        EXPECT_FIELD(Tau_xz);
        EXPECT_FIELD(Varepsilon_z);
        EXPECT_FIELD(Gamma_yz);
        EXPECT_FIELD(u);
        EXPECT_FIELD(w);
        EXPECT_FIELD(s);
    }
}

TEST_F(CliResults, ThePrincipalStressesAreThoseOfMohrsCircle) {
    const Json results = Report(Example("PointLoad"))["results"];
    const double x = results["Sigma_x"], z = results["Sigma_z"], tau = results["Tau_xz"];
    const double radius = std::hypot((x - z) / 2, tau);
    EXPECT_NEAR(results["max_Tau"], radius, 1e-5 * radius);
    EXPECT_NEAR(results["max_Sigma"], (x + z) / 2 + radius, 1e-5 * radius);
    EXPECT_NEAR(results["min_Sigma"], (x + z) / 2 - radius, 1e-4 * radius);
}

TEST_F(CliResults, ConsolidationHasItsTwoResults) {
    const Json json = Report(Example("ClayUnderFooting"));
    EXPECT_EQ(Keys(json["results"]), (std::vector<std::string>{"Sigma_z", "s"}));
    RunHere("ClayUnderFooting");
    const Json& results = json["results"];
    EXPECT_FIELD(Sigma_z);
    EXPECT_FIELD(s);
}

TEST_F(CliResults, TheDegreeOfConsolidationHasIsochronesFromNodeZeroOn) {
    const Json json = Report(Example("OneClayLayer"));
    const Json& results = json["results"];
    EXPECT_EQ(Keys(results), (std::vector<std::string>{"Uc", "IsoLast", "IsoZ", "IsoU0", "IsoUf", "PrefDz"}));
    RunHere("OneClayLayer");
    EXPECT_FIELD(Uc);
    EXPECT_FIELD(IsoU0);
    EXPECT_FIELD(IsoUf);
    const std::size_t last = results["IsoLast"];
    for (const char* name : {"IsoZ", "IsoU0", "IsoUf"}) {
        ASSERT_EQ(results[name].size(), last + 1) << name;
    }
    for (int i = 0; i <= static_cast<int>(last); ++i)
        EXPECT_EQ(results["IsoZ"][i].get<float>(), Session.IsoZ(i).Stored());
}

TEST_F(CliResults, TheTimeSettlementCurvesHaveSeventyOneValues) {
    const std::vector<std::string> more[] = {{"MeasureFactor"}, {}, {"MeasureFactor", "CvTS"}};
    const char* const examples[] = {"OfficeBuilding", "GrainStore", "WaterTower"};
    for (int i = 0; i < 3; ++i) {
        SCOPED_TRACE(examples[i]);
        const Json json = Report(Example(examples[i]));
        const Json& results = json["results"];
        EXPECT_EQ(Keys(results), With(kTime, more[i]));
        for (int k = 0; k < 7; ++k)
            EXPECT_EQ(results[kTime[static_cast<std::size_t>(k)]].size(), 71u) << kTime[static_cast<std::size_t>(k)];
        RunHere(examples[i]);
        EXPECT_FIELD(LoadCurve);
        EXPECT_FIELD(SuddenPercent);
        EXPECT_FIELD(SuddenSettlement);
        EXPECT_FIELD(SettlementSum);
        EXPECT_FIELD(LoadChartTime);
        EXPECT_FIELD(LoadChartNew);
        EXPECT_FIELD(LoadChartPrev);
    }
}

TEST_F(CliResults, ARaftHasItsNodesAndItsMiddleRow) {
    for (const char* example : {"SquareRaft", "SiloRaft", "RaftOnClayEs"}) {
        SCOPED_TRACE(example);
        const Json json = Report(Example(example));
        const Json& results = json["results"];
        EXPECT_EQ(Keys(results), kRaft);
        // In equilibrium the node forces bear the load.
        double sum = 0, area = 0;
        for (std::size_t i = 0; i < results["NodeForce"].size(); ++i) {
            sum += results["NodeForce"][i].get<double>();
            area += results["NodeArea"][i].get<double>();
        }
        RunHere(example);
        EXPECT_NEAR(sum, Session.Q, 1e-3 * Session.Q);
        EXPECT_NEAR(sum / area, results["RaftMeanPressure"], 1e-3 * sum / area);
        EXPECT_FIELD(NodeX);
        EXPECT_FIELD(NodeY);
        EXPECT_FIELD(NodeArea);
        EXPECT_FIELD(NodeForce);
        EXPECT_FIELD(NodePressure);
        EXPECT_FIELD(NodeSettlement);
        EXPECT_FIELD(RaftMidX);
        EXPECT_FIELD(RaftMidSettlement);
        EXPECT_FIELD(RaftMidPressure);
        EXPECT_FIELD(RaftMidFlexible);
        EXPECT_FIELD(z);
        EXPECT_FIELD(h);
    }
}

TEST_F(CliResults, ARaftRunWritesItsExportFilesBesideTheProject) {
    const std::string project = Example("SquareRaft");
    EXPECT_EQ(Run({"report", project}).Status, 0);
    for (const char* extension : {"TO1", "PO1", "PL4", "PL6", "PL8", "PC1", "P21", "BAU", "PH1", "PH2", "PW1"}) {
        const auto names = work.Names();
        EXPECT_TRUE(std::any_of(names.begin(), names.end(), [&](const std::string& name) {
            std::string upper = name;
            for (char& c : upper) c = static_cast<char>(std::toupper(c));
            return upper == std::string("SQUARERAFT.") + extension;
        })) << extension;
    }
}

TEST_F(CliResults, ARaftWhoseExportCannotBeWrittenIsAborted) {
    const std::string project = Example("SquareRaft");
    std::filesystem::create_directory(work / "SquareRaft.TO1");
    WriteBytes(work / "SquareRaft.TO1/kept", "");
    ExpectFailure(Run({"report", project}), 3, {"SquareRaft"});
}

TEST_F(CliResults, TheReportIsTheOneOfTheText) {
    const std::string project = Example("PointLoad");
    const Json json = Report(project);
    EXPECT_EQ(json["report"], Run({"report", project}).Out);
    EXPECT_THAT(json["report"].get<std::string>(), HasSubstr("\r\n"));
}

TEST_F(CliResults, ASetHoldsForTheRunAlone) {
    const std::string project = Example("PointLoad");
    const std::string data = ReadBytes(work / "PointLoad.SSD");
    const double once = Report(project)["results"]["Sigma_z"];
    // Boussinesq: proportional to the load.
    const double load = 2 * 1234.0;
    const double one = Report(project, {"--set", "Q=1234"})["results"]["Sigma_z"];
    const double two = Report(project, {"--set", "Q=" + std::to_string(load)})["results"]["Sigma_z"];
    EXPECT_NEAR(two, 2 * one, 1e-6 * two);
    EXPECT_EQ(ReadBytes(work / "PointLoad.SSD"), data);
    EXPECT_EQ(Report(project)["results"]["Sigma_z"].get<double>(), once);
}

TEST_F(CliResults, AnAbortedRunStillPrintsItsJson) {
    const CliResult result = Run({"report", Example("RectangularFooting"), "--set", "Es=0", "--format", "json"});
    EXPECT_EQ(result.Status, 3);
    EXPECT_EQ(LinesOf(result.Err).size(), 1u) << result.Err;
    EXPECT_THAT(result.Err, HasSubstr("RectangularFooting.PO3"));
    const Json json = Json::parse(result.Out);
    EXPECT_EQ(json["aborted"], true);
    EXPECT_EQ(json["report"], "");
    ASSERT_EQ(json["messages"].size(), 1u);
    EXPECT_EQ(Keys(json["messages"][0]), (std::vector<std::string>{"title", "text"}));
    EXPECT_THAT(result.Err, HasSubstr(json["messages"][0]["text"].get<std::string>().substr(0, 20)));
}

// 97 per cent are never reached within 70 time units when the clay is nearly impermeable: a warning, and a report.
TEST_F(CliResults, TheMessagesOfARunThatSucceedsAreToldToo) {
    const std::string project = Example("WaterTower");
    const std::vector<std::string> slow = {"--set", "CvTS=1e-9", "--set", "kf=1e-14"};
    const CliResult json = Run(With({"report", project, "--format", "json"}, slow));
    ASSERT_EQ(json.Status, 0) << json.Err;
    const Json parsed = Json::parse(json.Out);
    ASSERT_EQ(parsed["messages"].size(), 1u);
    const std::string text = parsed["messages"][0]["text"];
    // Behind the messages come the notices.
    EXPECT_EQ(LinesOf(json.Err).size(), 1 + parsed["notices"].size()) << json.Err;
    EXPECT_THAT(LinesOf(json.Err).front(), HasSubstr(text.substr(0, 20)));
    const CliResult plain = Run(With({"report", project}, slow));
    EXPECT_EQ(plain.Status, 0);
    EXPECT_EQ(plain.Err, json.Err);
    EXPECT_EQ(plain.Out, parsed["report"]);
}

TEST_F(CliResults, ANumberHasTheDigitsThatGiveItBack) {
    const CliResult result = Run({"report", Example("PointLoad"), "--format", "json"});
    // Shortest digits: no number of a 32-bit value takes more than nine.
    for (const std::string& line : LinesOf(result.Out)) {
        const auto colon = line.find("\": ");
        if (!line.starts_with("    \"") || colon == std::string::npos) continue;
        std::string number = line.substr(colon + 3);
        if (number.ends_with(',')) number.pop_back();
        number = number.substr(0, number.find('e'));
        const auto digits =
            std::count_if(number.begin(), number.end(), [](unsigned char c) { return std::isdigit(c); });
        EXPECT_LE(digits, 13) << line;  // up to four zeros behind the point
        EXPECT_GT(digits, 0) << line;
    }
}

}  // namespace
}  // namespace lithmark::tests
