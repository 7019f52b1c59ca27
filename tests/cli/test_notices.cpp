// Notices on the command line: in JSON, as lines on standard error, in the language in force.
#include <set>

#include "cli/CliCase.h"
#include "support/Matchers.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

class CliNotices : public CliTest {};

TEST_F(CliNotices, StandInTheJsonOfAReport) {
    const CliResult result = Run({"report", Example("OfficeBuilding"), "--format", "json", "--lang", "en"});
    ASSERT_EQ(result.Status, 0) << result.Err;
    const Json json = Json::parse(result.Out);
    EXPECT_THAT(Keys(json), ElementsAre("project", "problem", "aborted", "messages", "notices", "results", "report"));
    ASSERT_EQ(json["notices"].size(), 1u);
    EXPECT_THAT(Keys(json["notices"][0]), ElementsAre("id", "text"));
    EXPECT_EQ(json["notices"][0]["id"], "history-shift");
    EXPECT_EQ(result.Err, "notice: " + json["notices"][0]["text"].get<std::string>() + "\n");
    EXPECT_EQ(json["report"].get<std::string>().find("own times"), std::string::npos);
}

TEST_F(CliNotices, AreAnEmptyListWhereNothingIsToldAndNoLine) {
    const CliResult result = Run({"report", Example("SquareRaft"), "--format", "json"});
    EXPECT_THAT(Json::parse(result.Out)["notices"], IsEmpty());
    EXPECT_EQ(result.Err, "");
}

TEST_F(CliNotices, AreLinesInTheLanguageInForceAndLeaveTheReportAlone) {
    const std::string project = Example("RectangularFooting");
    const CliResult german = Run({"report", project, "--lang", "de"});
    EXPECT_THAT(LinesOf(german.Err), ElementsAre(StartsWith("notice: q = ")));
    EXPECT_THAT(german.Err, HasSubstr("Differenz der Hauptspannungen"));
    EXPECT_EQ(german.Out.find("notice"), std::string::npos);
    EXPECT_THAT(Run({"report", project, "--lang", "ids"}).Err, StartsWith("notice: T<907033>("));
}

TEST_F(CliNotices, AreLinesOfChartAndContourToo) {
    EXPECT_THAT(Run({"chart", Example("WaterTower"), "--lang", "en"}).Err, HasSubstr("notice: A load entered"));
    const CliResult contour = Run({"contour", Example("RaftOnClayEs"), "--set", "z=2", "--lang", "en"});
    EXPECT_EQ(contour.Status, 0);
    EXPECT_THAT(contour.Err, HasSubstr("notice: The equations of the raft are badly conditioned"));
}

// An aborted run keeps what it raised before, in its JSON and in its one line on standard error.
TEST_F(CliNotices, OfAnAbortedRunStandInItsJsonAndItsMessage) {
    const CliResult result =
        Run({"report", Example("OneClayLayer"), "--format", "json", "--set", "NumLayers=2", "--set", "hLayer(1)=8",
             "--set", "hLayer(2)=1", "--set", "CvLayer(2)=1.5e-6", "--set", "T=2"});
    EXPECT_EQ(result.Status, 3);
    EXPECT_EQ(Json::parse(result.Out)["notices"][0]["id"], "march-unstable");
    EXPECT_EQ(LinesOf(result.Err).size(), 1u);
    EXPECT_THAT(result.Err, StartsWith("lithmark-cli: "));
    EXPECT_THAT(result.Err, HasSubstr(Json::parse(result.Out)["notices"][0]["text"].get<std::string>()));
}

// What the examples tell, each of them right: the shift of loads against a measurement, q, an unused layer, a tank's
// point between nodes, and readings that reach far beyond the curves.
TEST_F(CliNotices, OfTheExamples) {
    const std::vector<std::pair<std::string, std::vector<std::string>>> examples = {
        {"BridgePier", {}},
        {"CircularTank", {"circle-near-nodes"}},
        {"ClayUnderFooting", {}},
        {"ClayUnderTank", {}},
        {"EccentricRaft", {}},
        {"GrainStore", {"history-curve", "history-end"}},
        {"OfficeBuilding", {"history-shift"}},
        {"OneClayLayer", {}},
        {"PointLoad", {"q-impossible"}},
        {"RaftOnClayEs", {}},
        {"RaftOnPunch", {"raft-layer-unused"}},
        {"RaftOnThickClay", {}},
        {"RaftOnThinClay", {}},
        {"RectangularFooting", {"q-impossible"}},
        {"SiloRaft", {}},
        {"SquareRaft", {}},
        {"TwoClayLayers", {}},
        {"WaterTower", {"history-shift"}},
    };
    for (const auto& [name, expected] : examples) {
        const std::filesystem::path folder = work / name;
        std::filesystem::copy(SourceDir() / "examples" / name, folder, std::filesystem::copy_options::recursive);
        const std::string own = (folder / "settings").string();
        const Json json =
            Json::parse(RunPlain({"report", (folder / (name + ".PO3")).string(), "--format", "json", "--lang", "en",
                                  "--settings", std::filesystem::exists(own) ? own : folder.string()})
                            .Out);
        std::vector<std::string> ids;
        for (const Json& notice : json["notices"]) ids.push_back(notice["id"]);
        EXPECT_EQ(ids, expected) << name;
    }
}

}  // namespace
}  // namespace lithmark::tests
