// report --tables: the steps behind the result, behind the report or alone.
#include "cli/CliCase.h"
#include "support/Matchers.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

class CliTables : public CliTest {};

TEST_F(CliTables, StandBehindAReportThatStaysByteForByte) {
    const std::string project = Example("ClayUnderFooting");
    const CliResult plain = Run({"report", project, "--lang", "de"});
    const CliResult with = Run({"report", project, "--lang", "de", "--tables"});
    ASSERT_EQ(with.Status, 0) << with.Err;
    EXPECT_THAT(with.Out, StartsWith(plain.Out));
    EXPECT_THAT(with.Out.substr(plain.Out.size()), HasSubstr("Tabellen zum Nachrechnen von Hand"));
    EXPECT_THAT(plain.Out, Not(HasSubstr("Nachrechnen")));
}

TEST_F(CliTables, AreAListInJsonWhoseNumbersGiveTheResult) {
    const CliResult result = Run({"report", Example("ClayUnderFooting"), "--tables", "--format", "json"});
    ASSERT_EQ(result.Status, 0) << result.Err;
    const Json json = Json::parse(result.Out);
    EXPECT_THAT(Keys(json),
                ElementsAre("project", "problem", "aborted", "messages", "notices", "results", "report", "tables"));
    const Json table = json["tables"].at(0);
    EXPECT_THAT(Keys(table), ElementsAre("title", "columns", "rows", "sums", "notes"));
    double s = 0;
    for (const Json& row : table["rows"]) s += row.back().get<double>();
    EXPECT_NEAR(s, json["results"]["s"].get<double>(), 1e-5);
    EXPECT_NEAR(table["sums"][0]["cells"].back().get<double>(), table["sums"][1]["cells"].back().get<double>(), 1e-5);
}

TEST_F(CliTables, AreThereForEveryProblemAndLanguage) {
    const std::vector<std::pair<std::string, std::size_t>> tables = {{"RectangularFooting", 2}, {"OneClayLayer", 3},
                                                                     {"GrainStore", 2},         {"SiloRaft", 1},
                                                                     {"RaftOnThinClay", 1},     {"PointLoad", 0}};
    for (const auto& [name, count] : tables)
        for (const char* language : {"de", "ar"}) {
            const std::filesystem::path folder = work / (name + language);
            std::filesystem::copy(SourceDir() / "examples" / name, folder);
            const CliResult result = Run(
                {"report", (folder / (name + ".PO3")).string(), "--tables", "--format", "json", "--lang", language});
            ASSERT_EQ(result.Status, 0) << result.Err;
            EXPECT_EQ(Json::parse(result.Out)["tables"].size(), count) << name << " " << language;
        }
}

TEST_F(CliTables, AloneAsCsv) {
    const CliResult result = Run({"report", Example("SquareRaft"), "--tables", "--format", "csv", "--lang", "en"});
    ASSERT_EQ(result.Status, 0) << result.Err;
    std::vector<std::string> lines = LinesOf(result.Out);
    ASSERT_EQ(lines.size(), 2 + 441 + 3 + 1u);
    EXPECT_EQ(lines[0], "Nodes and equilibrium\r");
    EXPECT_THAT(lines[1], StartsWith("No. i,Distance from the center u [m],"));
    EXPECT_THAT(lines[2], StartsWith("1,-5,-5,0.0625,"));
    EXPECT_THAT(lines[443], StartsWith("Sum,,,100,,"));
    EXPECT_THAT(lines[444], StartsWith("Load,,,100,,"));
}

TEST_F(CliTables, AloneAsSpreadsheet) {
    const std::string output = work / "tables.xlsx";
    const CliResult result = Run({"report", Example("SquareRaft"), "--tables", "--output", output});
#ifdef LITHMARK_RENDER
    EXPECT_EQ(result.Status, 0) << result.Err;
    EXPECT_TRUE(ReadBytes(output).starts_with("PK"));
#else
    ExpectFailure(result, 1, {"xlsx", "lithmark-render"});
#endif
}

TEST_F(CliTables, CsvAndSpreadsheetAreForTablesAlone) {
    const std::string project = Example("SquareRaft");
    ExpectFailure(Run({"report", project, "--format", "csv", "--lang", "en"}), 2, {"csv", "--tables"});
#ifdef LITHMARK_RENDER
    ExpectFailure(Run({"report", project, "--format", "xlsx", "--lang", "en"}), 2, {"xlsx", "--tables"});
#endif
}

#ifdef LITHMARK_RENDER
TEST_F(CliTables, DocumentsHaveTheNoticesInABoxUnlessTheyAreLeftOut) {
    const std::string project = Example("RectangularFooting");
    for (const char* format : {"html", "rtf"}) {
        const auto document = [&](const std::vector<std::string>& more) {
            std::vector<std::string> words = {"report", project, "--format", format, "--lang", "en"};
            words.insert(words.end(), more.begin(), more.end());
            return Run(words).Out;
        };
        EXPECT_THAT(document({}), HasSubstr("q-impossible: q ="));
        EXPECT_THAT(document({}), Not(HasSubstr("Tables for a check")));
        EXPECT_THAT(document({"--no-notices"}), Not(HasSubstr("q-impossible")));
        EXPECT_THAT(document({"--tables"}), HasSubstr("Corners of the rectangle"));
    }
    const CliResult pdf = Run({"report", project, "--format", "pdf", "--tables"});
    EXPECT_EQ(pdf.Status, 0);
    EXPECT_THAT(pdf.Out, StartsWith("%PDF-"));
}
#endif

}  // namespace
}  // namespace lithmark::tests
