// The command study: rows of varied fields, of files and of cases, what they show, and how a study ends.
#include <cmath>

#include "cli/StudyCliCase.h"
#include "support/Matchers.h"
#include "support/Pattern.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

TEST_F(CliStudy, EachRowIsTheReportOfItsValues) {
    const std::string project = Example("RectangularFooting");
    const Json rows = Study(project, {"--vary", "z=1:3:0.5", "--take", "Sigma_z", "--take", "w"});
    ASSERT_EQ(rows.size(), 5u);
    for (int i = 0; i < 5; ++i) {
        const Json& row = rows[static_cast<std::size_t>(i)];
        EXPECT_THAT(Keys(row), ElementsAre("Row", "z", "Sigma_z", "w", "Status", "Notices", "Study"));
        const double z = 1 + 0.5 * i;
        EXPECT_EQ(row["Row"], i + 1);
        EXPECT_EQ(row["z"].get<double>(), z);
        EXPECT_EQ(row["Status"], "ok");
        const CliResult one = Run({"report", project, "--format", "json", "--set", "z=" + std::to_string(z)});
        const Json results = Json::parse(one.Out)["results"];
        EXPECT_EQ(row["Sigma_z"], results["Sigma_z"]);
        EXPECT_EQ(row["w"], results["w"]);
    }
}

TEST_F(CliStudy, TheLastFieldVariesFastest) {
    const Json rows =
        Study(Example("PointLoad"), {"--vary", "Q=1000:3000:1000", "--vary", "z=1:2:1", "--take", "Sigma_z"});
    std::vector<std::pair<double, double>> values;
    for (const auto& row : rows) values.emplace_back(row["Q"], row["z"]);
    EXPECT_THAT(values, ElementsAre(std::pair(1000, 1), std::pair(1000, 2), std::pair(2000, 1), std::pair(2000, 2),
                                    std::pair(3000, 1), std::pair(3000, 2)));
    // Boussinesq: proportional to the load, row by row.
    for (std::size_t i = 2; i < 6; ++i) {
        const double factor = values[i].first / 1000;
        const double first = rows[i % 2]["Sigma_z"];
        EXPECT_NEAR(rows[i]["Sigma_z"], factor * first, 1e-6 * factor * std::abs(first));
    }
}

TEST_F(CliStudy, TheTableHasAFixedHead) {
    const std::string project = Example("OfficeBuilding");
    const auto lines = Table(project, {"--vary", "Pt=100,200", "--vary", "Ms=#FALSE#,#TRUE#"});
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines[0], "Row,Pt,Ms,ConsolidationEnd,MeasureFactor,Status,Notices,Study\r");
    // Without a measurement a row has no factor: its cell is empty.
    EXPECT_THAT(lines[1], HasPattern("^1,100,#FALSE#,[0-9.]+,,ok,[a-z -]*,[0-9a-f]{8}\r$"));
    EXPECT_THAT(lines[2], HasPattern("^2,100,#TRUE#,[0-9.]+,[0-9.]+,ok,[a-z -]*,[0-9a-f]{8}\r$"));
}

TEST_F(CliStudy, AResultThatIsCalledAsAVariedFieldHasAColumnOfItsOwn) {
    const auto lines = Table(Example("SquareRaft"), {"--vary", "h=3,4"});
    EXPECT_EQ(lines[0], "Row,h,RaftMeanPressure,z,result(h),Status,Notices,Study\r");
}

TEST_F(CliStudy, SymbolsOfTheReportNameFieldsAndResultsToo) {
    const auto lines = Table(Example("OneClayLayer"), {"--vary", "Tc=1,2", "--vary", "h1=3", "--take", "Uc"});
    EXPECT_EQ(lines[0], "Row,T,hLayer(1),Uc,Status,Notices,Study\r");
    const std::string tower = New("Tower", 8);
    const auto time = Table(tower, {"--vary", "Hb=3,4", "--take", "Tb"});
    EXPECT_EQ(time[0], "Row,h,ConsolidationEnd,Status,Notices,Study\r");
    // The field's name goes first: Es is a field of its own, which this problem does not use and which is told.
    const CliResult es = Run({"study", tower, "--vary", "Es=1,2", "--take", "Tb"});
    EXPECT_THAT(es.Out, StartsWith("Row,Es,"));
    EXPECT_THAT(es.Err, HasSubstr("Es"));
}

TEST_F(CliStudy, UnknownNamesAreToldWithTheNearestKnownOne) {
    const std::string project = Example("RectangularFooting");
    ExpectFailure(Run({"study", project, "--vary", "Nu=1,2"}), 2, {"\"Nu\"", "the nearest is Nue"});
    ExpectFailure(Run({"study", project, "--vary", "z=1", "--take", "Sigmaz"}), 2, {"Sigmaz", "Sigma_z"});
    ExpectFailure(Run({"study", Example("SquareRaft"), "--vary", "Q=1000", "--take", "max(NodePresure)"}), 2,
                  {"max(NodePresure)", "NodePressure"});
}

TEST_F(CliStudy, StepsOfATenthMeetTheirEnd) {
    const std::string project = Example("PointLoad");
    const auto values = [&](const std::string& vary) {
        std::vector<std::string> cells;
        for (const Json& row : Study(project, {"--vary", vary, "--take", "s"})) cells.push_back(row["z"].dump());
        return cells;
    };
    EXPECT_EQ(values("z=0.1:0.7:0.1").size(), 7u);
    EXPECT_EQ(values("z=2:1:-0.25").size(), 5u);
    EXPECT_EQ(values("z=1:2:0.3").size(), 4u);
    EXPECT_EQ(values("z=1:1:0").size(), 1u);
    const auto lines = Table(project, {"--vary", "z=0.1:0.4:0.1", "--take", "s"});
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_THAT(lines[3], StartsWith("3,0.3,"));
}

TEST_F(CliStudy, ValuesAreEvenlyOrByEvenFactorsBetweenBothEnds) {
    const std::string project = Example("PointLoad");
    const auto values = [&](const std::string& vary) {
        std::vector<double> numbers;
        for (const Json& row : Study(project, {"--vary", vary, "--take", "s"})) numbers.push_back(row["x"]);
        return numbers;
    };
    EXPECT_THAT(values("x=1:3:*5"), ElementsAre(1, 1.5, 2, 2.5, 3));
    EXPECT_THAT(values("x=3:-1:*3"), ElementsAre(3, 1, -1));
    EXPECT_THAT(values("x=2:2:*1"), ElementsAre(2));
    EXPECT_THAT(values("x=1:1000:^4"), ElementsAre(1, 10, 100, 1000));
    EXPECT_THAT(values("x=-8:-1:^4"), ElementsAre(-8, -4, -2, -1));
    // A thousandth of a way that no binary number meets: both ends as they were given all the same.
    const auto many = values("x=0.1:0.7:*1001");
    ASSERT_EQ(many.size(), 1001u);
    EXPECT_FLOAT_EQ(static_cast<float>(many.front()), 0.1F);
    EXPECT_FLOAT_EQ(static_cast<float>(many.back()), 0.7F);
}

TEST_F(CliStudy, SobolsNumberOfSamplesIsRaisedAndTold) {
    const std::string project = Example("PointLoad");
    const std::vector<std::string> words = {"study", project, "--random", "z=uniform:1:2", "--take", "s", "--samples"};
    const CliResult raised = Run(With(words, {"100", "--design", "sobol"}));
    EXPECT_EQ(LinesOf(raised.Out).size(), 129u);
    EXPECT_THAT(raised.Err, HasSubstr("128"));
    EXPECT_EQ(Run(With(words, {"128", "--design", "sobol"})).Err, "");
    EXPECT_EQ(LinesOf(Run(With(words, {"100"})).Out).size(), 101u);
}

TEST_F(CliStudy, AnAbortedRowIsMarkedAndTheOthersStand) {
    const std::string project = Example("RectangularFooting");
    const std::vector<std::string> words = {"--vary", "Es=0:2000:1000", "--take", "Sigma_z"};
    const CliResult csv = Run(With({"study", project}, words));
    EXPECT_EQ(csv.Status, 4);
    EXPECT_THAT(csv.Err, HasSubstr("1 of 3"));
    const auto lines = LinesOf(csv.Out);
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_THAT(lines[1], StartsWith("1,0,,"));
    EXPECT_THAT(lines[2], HasSubstr(",ok,"));
    const Json rows = Study(project, words);
    EXPECT_TRUE(rows[0]["Sigma_z"].is_null());
    EXPECT_NE(rows[0]["Status"], "ok");
    EXPECT_EQ(rows[1]["Status"], "ok");
    EXPECT_EQ(Run({"study", project, "--vary", "Es=0,0", "--take", "s"}).Status, 3) << "every row aborted";
    EXPECT_EQ(Run({"study", project, "--vary", "Es=1,2", "--take", "s"}).Status, 0);
}

TEST_F(CliStudy, ResultsOfListsAreTakenByIndexAndByExtremes) {
    const std::string project = Example("SquareRaft");
    const Json row = Study(project, {"--vary", "Q=1000", "--take", "NodePressure(1)", "--take", "max(NodePressure)",
                                     "--take", "min(NodePressure)", "--take", "NodePressure(30000)"})[0];
    const Json results = Json::parse(Run({"report", project, "--format", "json", "--set", "Q=1000"}).Out)["results"];
    const auto pressures = results["NodePressure"].get<std::vector<double>>();
    EXPECT_EQ(row["NodePressure(1)"].get<double>(), pressures.front());
    EXPECT_EQ(row["max(NodePressure)"].get<double>(), *std::max_element(pressures.begin(), pressures.end()));
    EXPECT_EQ(row["min(NodePressure)"].get<double>(), *std::min_element(pressures.begin(), pressures.end()));
    EXPECT_TRUE(row["NodePressure(30000)"].is_null()) << "a mesh may have so many nodes, this one has not";
    ExpectFailure(Run({"study", project, "--vary", "Q=1000", "--take", "NodePressure(0)"}), 2, {"NodePressure(0)"});
    ExpectFailure(Run({"study", project, "--vary", "Q=1000", "--take", "NodePressure"}), 2, {"max(NodePressure)"});
    ExpectFailure(Run({"study", project, "--vary", "Q=1000", "--take", "Moment"}), 2, {"Moment"});
}

TEST_F(CliStudy, ListsFromZeroBeginAtZero) {
    const std::string project = Example("OfficeBuilding");
    const Json row =
        Study(project, {"--vary", "Pt=100", "--take", "SuddenPercent(0)", "--take", "SuddenPercent(70)"})[0];
    EXPECT_EQ(row["SuddenPercent(0)"], 0.0);
    EXPECT_EQ(row["SuddenPercent(70)"], 100.0);
    ExpectFailure(Run({"study", project, "--vary", "Pt=100", "--take", "SuddenPercent(71)"}), 2, {"SuddenPercent(71)"});
}

TEST_F(CliStudy, ARaftStudyLeavesNothingBesideTheProject) {
    LITHMARK_NEEDS(PosixShell);
    const std::string project = Example("SquareRaft");
    const auto before = work.Names();
    const TestFolder temporary;
    runner = "TMPDIR=" + temporary.Dir() + " ";
    EXPECT_EQ(Run({"study", project, "--vary", "Q=1000:4000:1000", "--take", "RaftMeanPressure"}).Status, 0);
    EXPECT_EQ(work.Names(), before);
    EXPECT_THAT(temporary.Names(), ElementsAre());
    // Nothing is written, so a folder for temporary files is not even needed.
    runner = "TMPDIR=" + (work / "none") + " ";
    EXPECT_EQ(Run({"study", project, "--vary", "Q=1000:4000:1000", "--take", "RaftMeanPressure"}).Status, 0);
}

TEST_F(CliStudy, AWrongRequestIsToldBeforeAnythingRuns) {
    const std::string project = Example("PointLoad");
    WriteBytes(work / "rows.csv", "z,Q\r\n1,2\r\n3\r\n");
    WriteBytes(work / "head.csv", "z,Young\r\n1,2\r\n");
    WriteBytes(work / "empty.csv", "");
    struct Wrong {
        std::vector<std::string> Words;
        int Status;
        std::string Named;
    };
    const Wrong wrong[] = {
        {{}, 2, "--vary"},
        {{"--vary", "z"}, 2, "z"},
        {{"--vary", "z="}, 2, "z="},
        {{"--vary", "z=1:2"}, 2, "z=1:2"},
        {{"--vary", "z=1:2:x"}, 2, "z=1:2:x"},
        {{"--vary", "z=1:2:0"}, 2, "z=1:2:0"},
        {{"--vary", "z=2:1:0.5"}, 2, "z=2:1:0.5"},
        {{"--vary", "z=1:2:*0"}, 2, "z=1:2:*0"},
        {{"--vary", "z=1:2:*1.5"}, 2, "z=1:2:*1.5"},
        {{"--vary", "z=0:2:^3"}, 2, "z=0:2:^3"},
        {{"--vary", "z=1,two"}, 2, "z=1,two"},
        {{"--vary", "Young=1:2:1"}, 2, "Young"},
        {{"--vary", "hLayer(3)=1:2:1"}, 2, "hLayer(3)"},
        {{"--vary", "z=0:1e11:1"}, 2, "10000000000"},
        {{"--vary", "z=0:200000:1", "--vary", "x=0:200000:1"}, 2, "10000000000"},
        {{"--vary", "z=1,2", "--vary", "z=3,4"}, 2, "z"},
        {{"--vary", "z=1,2", "--case", "A:z=*2"}, 2, "z"},
        {{"--case", "A"}, 2, "A"},
        {{"--case", "A:Q=1.35"}, 2, "A:Q=1.35"},
        {{"--case", "A:Q=*1.35", "--case", "A:Q=*1"}, 2, "A"},
        {{"--case", "A:LoadType=*1.35"}, 2, "LoadType"},
        {{"--rows", work / "none.csv"}, 1, "none.csv"},
        {{"--rows", work / "rows.csv"}, 1, "line 3"},
        {{"--rows", work / "head.csv"}, 2, "Young"},
        {{"--rows", work / "empty.csv"}, 1, "empty.csv"},
        {{"--vary", "z=1", "--limit", "s"}, 2, "s"},
        {{"--vary", "z=1", "--limit", "Moment=3"}, 2, "Moment"},
        {{"--vary", "z=1", "--shard", "3/2"}, 2, "3/2"},
        {{"--vary", "z=1", "--shard", "0/2"}, 2, "0/2"},
        {{"--vary", "z=1", "--shard", "1"}, 2, "1"},
        {{"--vary", "z=1", "--retry-aborted"}, 2, "--resume"},
        {{"--vary", "z=1", "--jobs", "0"}, 2, "--jobs"},
        {{"--vary", "z=1", "--samples", "3", "--correlate", "z,Q=0.5"}, 2, "--random"},
    };
    for (const Wrong& each : wrong) ExpectFailure(Run(With({"study", project}, each.Words)), each.Status, {each.Named});
}

TEST_F(CliStudy, RowsComeFromAFileAndFromStandardInput) {
    LITHMARK_NEEDS(PosixShell);
    const std::string project = Example("PointLoad");
    // A byte order mark, quotes, an empty cell that leaves the project's value, no line end at the end.
    WriteBytes(work / "rows.csv", "\xEF\xBB\xBFz,Q\r\n1,1000\r\n\"2\",\r\n3,500");
    const auto lines = Table(project, {"--rows", work / "rows.csv", "--vary", "x=0,1", "--take", "Sigma_z"});
    ASSERT_EQ(lines.size(), 7u);
    EXPECT_EQ(lines[0], "Row,z,Q,x,Sigma_z,Status,Notices,Study\r");
    EXPECT_THAT(lines[3], StartsWith("3,2,,0,"));
    const auto plain = Table(project, {"--vary", "z=2", "--vary", "x=0", "--take", "Sigma_z"});
    EXPECT_EQ(lines[3].substr(7, 8), plain[1].substr(6, 8)) << "the project's load";
    const auto piped = [&] {
        const std::string line = "cat " + (work / "rows.csv") + " | " + CommandLineTool().string() + " study " +
                                 project + " --rows - --vary x=0,1 --take Sigma_z --settings " + work.Dir() + " >" +
                                 (work / "piped.csv");
        EXPECT_EQ(std::system(line.c_str()), 0);
        return LinesOf(ReadBytes(work / "piped.csv"));
    };
    EXPECT_EQ(piped(), lines);
}

TEST_F(CliStudy, CasesAreTheProjectsValuesTimesFactors) {
    const std::string project = Example("PointLoad");
    const Json rows = Study(
        project, {"--case", "design:Q=*1.35,x=/2", "--case", "plain:Q=*1", "--vary", "z=1,2", "--take", "Sigma_z"});
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0]["Case"], "design");
    EXPECT_EQ(rows[1]["Case"], "design");
    EXPECT_EQ(rows[3]["Case"], "plain");
    const Json show = Json::parse(Run({"report", project, "--format", "json", "--set", "z=1"}).Out)["results"];
    EXPECT_EQ(rows[2]["Sigma_z"], show["Sigma_z"]) << "a factor of 1 changes nothing";
    const CliResult text = Run({"show", project});
    const auto at = text.Out.find("\nQ = "), x = text.Out.find("\nx = ");
    const double load = std::stod(text.Out.substr(at + 5)), place = std::stod(text.Out.substr(x + 5));
    const CliResult design = Run({"report", project, "--format", "json", "--set", "z=1", "--set",
                                  "Q=" + std::to_string(load * 1.35), "--set", "x=" + std::to_string(place / 2)});
    EXPECT_NEAR(rows[0]["Sigma_z"].get<double>(), Json::parse(design.Out)["results"]["Sigma_z"].get<double>(), 1e-4);
}

TEST_F(CliStudy, ACaseScalesAWholeColumn) {
    const std::string project = Example("OfficeBuilding");
    const std::vector<std::string> take = {"--take", "LoadCurve(70)", "--take", "SettlementSum(70)"};
    const Json whole = Study(project, With({"--case", "A:LoadValue=*2"}, take));
    const CliResult show = Run({"show", project});
    const auto count = std::stoi(show.Out.substr(show.Out.find("\nNLoad = ") + 9));
    std::string each = "A:";
    for (int i = 1; i <= count; ++i) each += (i > 1 ? "," : "") + ("LoadValue(" + std::to_string(i)) + ")=*2";
    Json single = Study(project, With({"--case", each}, take));
    single[0]["Study"] = whole[0]["Study"];  // another request
    EXPECT_EQ(whole, single);
    EXPECT_NE(whole[0]["LoadCurve(70)"], Study(project, With({"--case", "A:LoadValue=*1"}, take))[0]["LoadCurve(70)"]);
}

TEST_F(CliStudy, SetsAndLanguageReachEveryRow) {
    const std::string project = Example("PointLoad");
    const Json plain = Study(project, {"--vary", "z=1:2:1", "--take", "Sigma_z", "--set", "Q=500"});
    const Json twice = Study(project, {"--vary", "z=1:2:1", "--take", "Sigma_z", "--set", "Q=1000"});
    for (std::size_t i = 0; i < 2; ++i) EXPECT_NEAR(twice[i]["Sigma_z"], 2 * plain[i]["Sigma_z"].get<double>(), 1e-3);
    const auto message = [&](const std::string& lang) {
        return Study(project, {"--vary", "Es=0", "--take", "s", "--lang", lang})[0]["Status"].get<std::string>();
    };
    EXPECT_NE(message("de"), message("en"));
}

TEST_F(CliStudy, TheFormatsHoldTheSameRows) {
    const std::string project = Example("RectangularFooting");
    const std::vector<std::string> words = {"study", project, "--vary", "Es=0:2000:1000", "--take", "s"};
    const Json list = Json::parse(Run(With(words, {"--format", "json"})).Out);
    const auto lines = LinesOf(Run(With(words, {"--format", "jsonl"})).Out);
    ASSERT_EQ(lines.size(), list.size());
    for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(Json::parse(lines[i]), list[i]);
    EXPECT_EQ(Run(With(words, {"--output", work / "s.jsonl"})).Status, 4);
    EXPECT_EQ(LinesOf(ReadBytes(work / "s.jsonl")), lines) << "told by the ending";
    EXPECT_EQ(Run(With(words, {"--output", "-"})).Out, Run(words).Out);
}

// Clay that is nearly impermeable does not reach 97 per cent in time: a warning, and results all the same.
TEST_F(CliStudy, AWarningStandsBesideItsResults) {
    const std::string project = Example("WaterTower");
    const std::vector<std::string> words = {"--vary", "kf=1e-14,1e-8", "--take", "ConsolidationEnd"};
    const CliResult result = Run(With({"study", project}, words));
    EXPECT_EQ(result.Status, 0);
    const auto lines = LinesOf(result.Out);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_THAT(lines[1], HasSubstr(",ok: "));
    EXPECT_THAT(lines[2], HasSubstr(",ok,"));
}

TEST_F(CliStudy, AVaryThatIsNoWholeNumberFailsRowByRow) {
    const Json rows = Study(Example("PointLoad"), {"--vary", "LoadType=1:2:0.5", "--take", "s"});
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0]["Status"], "ok");
    EXPECT_THAT(rows[1]["Status"].get<std::string>(), HasSubstr("LoadType=1.5"));
    EXPECT_EQ(rows[2]["Status"], "ok");
}

// Ctrl+C and the signal of schedulers and shutdowns alike: the rows so far, and a count of those that are missing. A
// shard that was ended is not done either.
TEST_F(CliStudy, AnEndedStudyLeavesTheRowsSoFar) {
    LITHMARK_NEEDS(PosixShell);
    const std::string project = Example("RectangularFooting");
    for (const std::string signal : {"INT", "TERM", "HUP"}) {
        const bool shard = signal == "HUP";
        runner = "timeout --foreground --preserve-status -s " + signal + " 1 env ";
        std::vector<std::string> words = {"study",  project, "--vary",   "Q=1:1000000000:1",
                                          "--take", "s",     "--output", work / "study.csv"};
        if (shard) words = With(words, {"--shard", "1/2"});
        const CliResult result = Run(words);
        const auto lines = LinesOf(ReadBytes(work / "study.csv"));
        ASSERT_GT(lines.size(), 2u);
        const std::size_t rows = lines.size() - 1, all = shard ? 500000000 : 1000000000;
        ExpectFailure(result, 130, {std::to_string(all - rows), std::to_string(rows)});
        const std::string last = std::to_string(shard ? 2 * rows - 1 : rows);
        EXPECT_THAT(lines.back(), StartsWith(last + "," + last + ","));
        EXPECT_THAT(lines.back(), EndsWith("\r"));
        EXPECT_THAT(work.Names(), testing::Not(testing::Contains(HasSubstr(".tmp"))));
    }
}

// What stood there before stays until the study has a row to show.
TEST_F(CliStudy, AStudyThatCannotBeginLeavesTheOldTable) {
    const std::string project = Example("RectangularFooting");
    WriteBytes(work / "study.csv", "old");
    EXPECT_EQ(Run({"study", project, "--vary", "z=1:2:0", "--output", work / "study.csv"}).Status, 2);
    EXPECT_EQ(ReadBytes(work / "study.csv"), "old");
    EXPECT_EQ(Run({"study", project, "--vary", "z=1,2", "--output", work / "none" + "/study.csv"}).Status, 1);
}

TEST_F(CliStudy, AFullDiskIsAFailureAndNoTable) {
    LITHMARK_NEEDS(DeviceFiles);
    ExpectFailure(RunPlain({"study", Example("RectangularFooting"), "--vary", "z=1:1000:1", "--output", "/dev/full"}),
                  1, {"/dev/full"});
}

TEST_F(CliStudy, ATerminalShowsTheProgress) {
    LITHMARK_NEEDS(PosixShell);
    const std::string project = Example("PointLoad");
    const std::string line = CommandLineTool().string() + " study " + project +
                             " --vary z=1:20000:1 --take s --output " + (work / "s.csv") + " --settings " + work.Dir();
    const std::string shown = work / "shown";
    ASSERT_EQ(std::system(("script -qec '" + line + "' /dev/null >" + shown + " </dev/null").c_str()), 0);
    EXPECT_THAT(ReadBytes(shown), HasSubstr("##"));
    EXPECT_THAT(ReadBytes(shown), HasSubstr(" %"));
    EXPECT_THAT(ReadBytes(shown), EndsWith("\r\x1B[K")) << "the bar is gone at the end";
    EXPECT_EQ(LinesOf(ReadBytes(work / "s.csv")).size(), 20001u);
}

TEST_F(CliStudy, NoProgressIsShownWhereNoTerminalIs) {
    const CliResult result = Run({"study", Example("PointLoad"), "--vary", "z=1:5:1", "--take", "s"});
    EXPECT_EQ(result.Err, "");
}

}  // namespace
}  // namespace lithmark::tests
