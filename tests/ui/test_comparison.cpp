// Two projects beside each other: how they are read, what differs, and that nothing of them is changed.
#include <filesystem>
#include <limits>
#include <map>

#include "FormTest.h"
#include "core/SessionFields.h"
#include "services/storage/ProjectLock.h"
#include "support/Matchers.h"
#include "support/Places.h"
#include "support/System.h"
#include "ui/compare/Comparison.h"

namespace lithmark::tests {
namespace {

namespace fs = std::filesystem;

class ComparisonTest : public FormTest {
  protected:
    ComparisonTest() { Session.ProjectName.clear(); }

    // A project of problem 1 to 3: x, y, z, Q, P, A, B, Nue, Es, LoadType.
    std::string Stress(const std::string& name, const std::string& data, int problem = 1) const {
        WriteBytes(DataFile(name + ".PO3"), "Version 9\r\n" + std::to_string(problem) + "\r\n0\r\n");
        WriteBytes(DataFile(name + ".AUF"), "Order\r\n1 May\r\nHouse\r\n");
        WriteBytes(DataFile(name + ".SSD"), data);
        return DataFile(name + ".PO3");
    }
    std::string Footing(const std::string& name, const std::string& width = "4", const std::string& z = "2") const {
        return Stress(name, ".5\r\n.5\r\n" + z + "\r\n2640\r\n220\r\n3\r\n" + width + "\r\n.3\r\n18000\r\n2\r\n");
    }
    std::string PointLoad(const std::string& name) const {
        return Stress(name, ".5\r\n.5\r\n2\r\n2640\r\n220\r\n3\r\n4\r\n.3\r\n18000\r\n1\r\n");
    }
    // A building's time-settlement curve, whose file has been changed.
    std::string Building(const std::string& name, const std::string& from = {}, const std::string& to = {}) const {
        const std::string example = (SourceDir() / "examples/OfficeBuilding/OfficeBuilding").string();
        for (const char* ending : {".PO3", ".AUF", ".TST"})
            WriteBytes(DataFile(name + ending), ReadBytes(example + ending));
        std::string data = ReadBytes(DataFile(name + ".TST"));
        const std::size_t at = data.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        WriteBytes(DataFile(name + ".TST"), data.replace(at, from.size(), to));
        return DataFile(name + ".PO3");
    }
    static ComparedPair Read(const std::string& one, const std::string& other) {
        const PairReading reading = ReadPair(one, other);
        EXPECT_EQ(reading.Fault, "");
        return reading.Pair.value_or(ComparedPair());
    }
    static std::vector<ComparedRow> Differing(const std::string& one, const std::string& other) {
        return DifferingInputs(Read(one, other));
    }
    // Everything below the test's folder of projects, with hidden files.
    std::map<std::string, std::string> Bytes() const {
        std::map<std::string, std::string> bytes;
        for (const auto& entry : fs::recursive_directory_iterator(DataDir()))
            if (entry.is_regular_file()) bytes[entry.path().string()] = ReadBytes(entry.path().string());
        return bytes;
    }
    static std::string Record() {
        std::string text = Session.WorkDir + Session.WorkName + Session.DataDir + Session.ProjectName;
        for (const SessionField& field : SessionFields()) text += SessionFieldText(field.Ref) + "\n";
        return text;
    }
    // The fault of a pair, which changes neither the folder nor the record and shows no message.
    std::string Fault(const std::string& one, const std::string& other) const {
        const auto bytes = Bytes();
        const std::string record = Record();
        const PairReading reading = ReadPair(one, other);
        EXPECT_FALSE(reading.Pair);
        EXPECT_EQ(Bytes(), bytes);
        EXPECT_EQ(Record(), record);
        EXPECT_THAT(host.Messages, IsEmpty());
        return reading.Fault;
    }
    static AnswerValue Value(const std::string& symbol, const std::string& text, double number,
                             const std::string& unit = "[kN/m²]") {
        return {symbol, "Label of " + symbol, text, unit, number};
    }
    static AnswerCurve Curve(const std::string& x, const std::string& xUnit, const std::string& y,
                             std::vector<AnswerCurve::Line> lines) {
        AnswerCurve curve;
        curve.Title = "Title";
        curve.XSymbol = x;
        curve.XUnit = xUnit;
        curve.YSymbol = y;
        curve.YUnit = "[m]";
        curve.Lines = std::move(lines);
        return curve;
    }
    static std::vector<ChartArguments> Charts(const AnswerCurve& one, const AnswerCurve& other,
                                              const ComparedPair& pair = Named()) {
        return ComparedCharts(pair, {{}, {one}, {}}, {{}, {other}, {}});
    }
    static ComparedPair Named() {
        ComparedPair pair;
        pair.NameOfOne = "One";
        pair.NameOfOther = "Other";
        return pair;
    }
    static std::vector<std::string> Column(const ChartArguments& chart, int column) {
        std::vector<std::string> cells;
        for (int row = 1; row <= chart.LastRow; ++row) cells.push_back(chart.Cells(row, column));
        return cells;
    }
};

// --- inputs ---

TEST_F(ComparisonTest, EqualProjectsDifferInNothing) {
    EXPECT_THAT(Differing(Footing("One"), Footing("Other")), IsEmpty());
}

TEST_F(ComparisonTest, AFieldThatDiffersStandsWithBothValuesAndItsChange) {
    const auto rows = Differing(Footing("One", "4"), Footing("Other", "5"));
    ASSERT_THAT(rows, SizeIs(1));
    EXPECT_EQ(rows[0].Label, "Width");
    EXPECT_EQ(rows[0].Symbol, "b");
    EXPECT_EQ(rows[0].Unit, "m");
    EXPECT_EQ(rows[0].One, "4.00");
    EXPECT_EQ(rows[0].Other, "5.00");
    EXPECT_EQ(rows[0].Change, "+25.0 %");
}

TEST_F(ComparisonTest, ValuesStandInTheUnitsAndWithTheDecimalSignInForce) {
    Session.Len1Label = "[mm]";
    Session.Len1Factor = 1000;
    SharedServices().DecimalSign = ',';
    const auto rows = Differing(Footing("One", "4"), Footing("Other", "2.5"));
    ASSERT_THAT(rows, SizeIs(1));
    EXPECT_EQ(rows[0].Unit, "mm");
    EXPECT_EQ(rows[0].One, "4000,00");
    EXPECT_EQ(rows[0].Other, "2500,00");
    EXPECT_EQ(rows[0].Change, "-37,5 %");
}

TEST_F(ComparisonTest, ValuesThatReadTheSameHaveAllTheirDigits) {
    const auto rows = Differing(Footing("One", "4.001"), Footing("Other", "4.0015"));
    ASSERT_THAT(rows, SizeIs(1));
    EXPECT_EQ(rows[0].One, "4.001");
    EXPECT_EQ(rows[0].Other, "4.0015");
}

// A point load has neither sides nor a uniform load, a rectangle has no Q.
TEST_F(ComparisonTest, AChoiceStandsInWordsAndWhatDoesNotCountIsADash) {
    const auto rows = Differing(PointLoad("One"), Footing("Other"));
    ASSERT_THAT(rows, SizeIs(5));
    EXPECT_EQ(rows[0].One, "Point load");
    EXPECT_EQ(rows[0].Other, "Rectangular uniform load");
    EXPECT_EQ(rows[0].Change, "");
    std::map<std::string, std::pair<std::string, std::string>> bySymbol;
    for (const ComparedRow& row : rows) bySymbol[row.Symbol] = {row.One, row.Other};
    EXPECT_EQ(bySymbol["Q"], std::pair(std::string("2640.0"), std::string("–")));
    EXPECT_EQ(bySymbol["p"], std::pair(std::string("–"), std::string("220.0")));
    EXPECT_EQ(bySymbol["b"].second, "4.00");
}

TEST_F(ComparisonTest, WhatCountsInNeitherIsLeftOut) {
    const std::string other = Stress("Other", ".5\r\n.5\r\n2\r\n2640\r\n99\r\n7\r\n8\r\n.3\r\n18000\r\n1\r\n");
    EXPECT_THAT(Differing(PointLoad("One"), other), IsEmpty());
}

// The word for the time unit is that of the language in which a project was saved.
TEST_F(ComparisonTest, AProjectSavedInAnotherLanguageIsReadAsItIsMeant) {
    EXPECT_THAT(Differing(Building("One"), Building("Other", "months", "Monate")), IsEmpty());
    StartIn(Language::German);
    EXPECT_THAT(Differing(Building("One"), Building("Other", "months", "Monate")), IsEmpty());
    const auto rows = Differing(Building("One"), Building("Other", "months", "days"));
    ASSERT_FALSE(rows.empty());
    EXPECT_EQ(rows[0].One, "Monate");
    EXPECT_EQ(rows[0].Other, "Tage");
}

TEST_F(ComparisonTest, RowsOfTablesAreCompared) {
    const auto rows = Differing(Building("One"), Building("Other", "\r\n83\r\n4\r\n", "\r\n85\r\n4\r\n"));
    ASSERT_THAT(rows, SizeIs(1));
    EXPECT_EQ(rows[0].Label, "Time-load data, row 3");
    EXPECT_EQ(rows[0].One, "4: 83");
    EXPECT_EQ(rows[0].Other, "4: 85");
}

TEST_F(ComparisonTest, ARowThatOneTableLacksIsADash) {
    const auto rows = Differing(Building("One"), Building("Other", "5\r\n19\r\n1\r\n42", "4\r\n42"));
    ASSERT_THAT(rows, SizeIs(5));
    EXPECT_EQ(rows[4].Label, "Time-load data, row 5");
    EXPECT_EQ(rows[4].One, "12: 100");
    EXPECT_EQ(rows[4].Other, "–");
}

// --- reading ---

TEST_F(ComparisonTest, ReadingChangesNeitherFilesNorTheRecord) {
    const std::string one = Footing("One"), other = Footing("Other", "5");
    Session.A = 321;
    Session.LoadValue.Redim(1, 2);
    Session.LoadValue(2) = 7;
    const auto bytes = Bytes();
    const std::string record = Record();
    EXPECT_TRUE(ReadPair(one, other).Pair);
    EXPECT_EQ(Bytes(), bytes);
    EXPECT_EQ(Record(), record);
    EXPECT_EQ(Session.LoadValue(2), Single(7)) << "its tables too";
    EXPECT_EQ(&CurrentHost(), &host);
}

TEST_F(ComparisonTest, APackedProjectStaysPacked) {
    const std::string one = Footing("One"), other = Footing("Other", "5");
    ASSERT_TRUE(ProjectStore().PackProject(DataFile("Other"), 1, "", ".po3"));
    ASSERT_FALSE(fs::exists(DataFile("Other.SSD")));
    const auto bytes = Bytes();
    EXPECT_THAT(Differing(one, other), SizeIs(1));
    EXPECT_EQ(Bytes(), bytes);
}

TEST_F(ComparisonTest, AProjectThatIsOpenElsewhereIsReadAsItIsSaved) {
    const std::string one = Footing("One"), other = Footing("Other", "5");
    const ProjectLock theirs(DataFile("Other"));
    const auto bytes = Bytes();
    const ComparedPair pair = Read(one, other);
    EXPECT_EQ(pair.One.Holder, "");
    EXPECT_THAT(pair.Other.Holder, HasSubstr(std::to_string(OwnProcess())));
    EXPECT_EQ(Bytes(), bytes);
}

// The program's own lock is no other program.
TEST_F(ComparisonTest, TheOpenProjectIsNotOpenElsewhere) {
    const std::string one = Footing("One"), other = Footing("Other", "5");
    Session.ProjectName = "One";
    ASSERT_TRUE(ProjectStore().TakeProject(DataFile("One")));
    EXPECT_EQ(Read(one, other).One.Holder, "");
}

TEST_F(ComparisonTest, ProjectsOfOneNameAreToldApartByTheirFolders) {
    fs::create_directories(DataFile("north"));
    const std::string one = Footing("Crane"), other = Footing("north/Crane", "5");
    const ComparedPair pair = Read(one, other);
    EXPECT_EQ(pair.NameOfOne, "data/Crane");
    EXPECT_EQ(pair.NameOfOther, "north/Crane");
}

// --- faults ---

TEST_F(ComparisonTest, TheSameProjectTwiceIsRefused) {
    const std::string one = Footing("One");
    EXPECT_THAT(Fault(one, one), AllOf(StartsWith(one), HasSubstr("same project")));
    if (!SystemHas(Ability::SymbolicLinks)) return;
    fs::create_symlink(one, DataFile("Link.PO3"));
    EXPECT_THAT(Fault(one, DataFile("Link.PO3")), HasSubstr("same project"));
}

TEST_F(ComparisonTest, AProjectOfAnotherProblemIsRefused) {
    const std::string other = Stress("Other", "0\r\n0\r\n2\r\n1\r\n1\r\n1\r\n1\r\n.3\r\n1\r\n1\r\n", 2);
    EXPECT_THAT(Fault(Footing("One"), other),
                AllOf(StartsWith(other), HasSubstr("Strains in soil"), HasSubstr("Stresses in soil")));
}

TEST_F(ComparisonTest, AFileThatIsNoProjectIsRefused) {
    const std::string one = Footing("One");
    EXPECT_THAT(Fault(one, DataFile("One.SSD")), AllOf(HasSubstr("One.SSD"), HasSubstr(".PO3")));
    EXPECT_THAT(Fault(one, DataFile("None.PO3")), HasSubstr("None.PO3"));
    WriteBytes(DataFile("Twelve.PO3"), "Version 9\r\n12\r\n0\r\n");
    EXPECT_THAT(Fault(one, DataFile("Twelve.PO3")), HasSubstr("Twelve.PO3"));
    WriteBytes(DataFile("Table.PO3"), "Version 9\r\n11\r\n0\r\n");
    EXPECT_THAT(Fault(one, DataFile("Table.PO3")), HasSubstr("Table.PO3"));
    fs::create_directory(DataFile("Folder.PO3"));
    EXPECT_THAT(Fault(one, DataFile("Folder.PO3")), HasSubstr("Folder.PO3"));
}

TEST_F(ComparisonTest, AProjectWithoutDataIsRefused) {
    const std::string one = Footing("One"), other = Footing("Other");
    fs::remove(DataFile("Other.SSD"));
    EXPECT_THAT(Fault(one, other), AllOf(StartsWith(other), HasSubstr("no saved data")));
}

// The message names the project's own file and line, not the copy that was read.
TEST_F(ComparisonTest, DamagedDataAreRefusedWithFileAndLine) {
    const std::string other = Stress("Other", "0\r\n0\r\ntwo\r\n");
    EXPECT_THAT(Fault(Footing("One"), other), AllOf(HasSubstr(DataFile("Other.SSD")), HasSubstr("3")));
    const std::string shorter = Stress("Short", "0\r\n0\r\n");
    EXPECT_THAT(Fault(Footing("One"), shorter), HasSubstr(DataFile("Short.SSD")));
}

TEST_F(ComparisonTest, ADamagedArchiveIsRefused) {
    const std::string one = Footing("One"), other = Footing("Other");
    ASSERT_TRUE(ProjectStore().PackProject(DataFile("Other"), 1, "", ".po3"));
    std::string bytes = ReadBytes(other);
    bytes[bytes.size() / 2] = static_cast<char>(~bytes[bytes.size() / 2]);
    WriteBytes(other, bytes.substr(0, bytes.size() - 10));
    EXPECT_THAT(Fault(one, other), HasSubstr("Other.PO3"));
}

TEST_F(ComparisonTest, AValueThatTheDialogRefusesStopsTheResultsAlone) {
    const std::string one = Footing("One");
    const std::string other = Stress("Other", ".5\r\n.5\r\n2\r\n2640\r\n220\r\n3\r\n4\r\n.7\r\n18000\r\n2\r\n");
    const ComparedPair pair = Read(one, other);
    EXPECT_EQ(pair.One.Stopped, "");
    EXPECT_THAT(pair.Other.Stopped, HasSubstr("Poisson"));
    EXPECT_THAT(DifferingInputs(pair), SizeIs(1));
    EXPECT_EQ(AnswerOfProject(pair.Other, {}).Failure, pair.Other.Stopped);
}

// --- results ---

TEST_F(ComparisonTest, ResultsStandBesideEachOtherWithTheirChange) {
    const Answer one{{Value("Sigma_z", "62.3", 62.34), Value("Tau_xy", "0.0", 0)}, {}, {}};
    const Answer other{{Value("Sigma_z", "55.6", 55.55), Value("Tau_xy", "1.0", 1)}, {}, {}};
    const auto rows = ComparedResults(one, other);
    ASSERT_THAT(rows, SizeIs(2));
    EXPECT_EQ(rows[0].Symbol, "Sigma_z");
    EXPECT_EQ(rows[0].Unit, "kN/m²");
    EXPECT_EQ(rows[0].One, "62.3");
    EXPECT_EQ(rows[0].Other, "55.6");
    EXPECT_EQ(rows[0].Change, "-10.9 %");  // (55.55 - 62.34) / 62.34
    EXPECT_EQ(rows[1].Change, "-");        // from nothing
}

TEST_F(ComparisonTest, AResultThatOneHasNotIsADash) {
    const auto rows = ComparedResults({{}, {}, {}}, {{Value("f", "0.97", 0.97, "[-]")}, {}, {}});
    ASSERT_THAT(rows, SizeIs(1));
    EXPECT_EQ(rows[0].One, "–");
    EXPECT_EQ(rows[0].Other, "0.97");
    EXPECT_EQ(rows[0].Unit, "");
    EXPECT_EQ(rows[0].Change, "");
}

TEST_F(ComparisonTest, ValuesInTwoUnitsStandWithThem) {
    const auto rows =
        ComparedResults({{Value("Tb", "18", 18, "months")}, {}, {}}, {{Value("Tb", "540", 540, "days")}, {}, {}});
    ASSERT_THAT(rows, SizeIs(1));
    EXPECT_EQ(rows[0].One, "18 months");
    EXPECT_EQ(rows[0].Other, "540 days");
    EXPECT_EQ(rows[0].Unit, "");
    EXPECT_EQ(rows[0].Change, "");
}

TEST_F(ComparisonTest, ARunThatFailsSaysWhy) {
    CommandOutput aborted;
    aborted.Status = 3;
    aborted.Aborted = true;
    aborted.Messages = {"The calculation stopped."};
    EXPECT_EQ(AnswerOfProject(Read(Footing("One"), Footing("Other", "5")).One, {aborted}).Failure,
              "The calculation stopped.");
}

TEST_F(ComparisonTest, CurvesOverTheDepthReachTheDeeperPoint) {
    const ComparedPair pair = Read(Footing("One", "4", "2"), Footing("Other", "4", "20"));
    const auto commands = ComparisonCommands(pair);
    ASSERT_THAT(commands, SizeIs(2));
    EXPECT_THAT(commands[1][2], HasSubstr(":30:*"));  // one and a half times 20 m
}

// --- curves ---

TEST_F(ComparisonTest, CurvesOverTheSamePlacesShareTheirRows) {
    const auto charts = Charts(Curve("Sigma_z", "[kN/m²]", "z", {{"", {10, 8}, {1, 2}}}),
                               Curve("Sigma_z", "[kN/m²]", "z", {{"", {9, 7}, {1, 2}}}));
    ASSERT_THAT(charts, SizeIs(1));
    EXPECT_EQ(charts[0].XTitle, "Depth z [m]");
    EXPECT_EQ(charts[0].YTitle, "Title Sigma_z [kN/m²]");
    EXPECT_TRUE(charts[0].SettlementsDown);
    EXPECT_THAT(Column(charts[0], 1), ElementsAre("1", "2"));
    EXPECT_THAT(Column(charts[0], 2), ElementsAre("10", "8"));
    EXPECT_THAT(Column(charts[0], 3), ElementsAre("9", "7"));
    EXPECT_EQ(charts[0].Legends(1), "One");
    EXPECT_EQ(charts[0].Legends(2), "Other");
}

TEST_F(ComparisonTest, AShorterCurveEndsWhereItEnds) {
    const auto charts = Charts(Curve("t", "[days]", "s", {{"", {0, 1}, {0, 4}}}),
                               Curve("t", "[days]", "s", {{"", {0, 1, 2}, {0, 5, 6}}}));
    ASSERT_THAT(charts, SizeIs(1));
    EXPECT_EQ(charts[0].XTitle, "Time t days");
    EXPECT_EQ(charts[0].YTitle, "Settlement s [m]");
    EXPECT_THAT(Column(charts[0], 1), ElementsAre("0", "1", "2"));
    EXPECT_THAT(Column(charts[0], 2), ElementsAre("0", "4", ""));
    EXPECT_THAT(Column(charts[0], 3), ElementsAre("0", "5", "6"));
    EXPECT_EQ(charts[0].XEnd, 2);
}

// Nothing is put between the places that were worked out.
TEST_F(ComparisonTest, CurvesOverOtherPlacesKeepTheirOwn) {
    const auto charts = Charts(Curve("x", "[m]", "q", {{"", {0, 2, 4}, {1, 2, 3}}}),
                               Curve("x", "[m]", "q", {{"", {0, 1, 4}, {5, 6, 7}}}));
    ASSERT_THAT(charts, SizeIs(1));
    EXPECT_FALSE(charts[0].SettlementsDown);
    EXPECT_THAT(Column(charts[0], 1), ElementsAre("0", "2", "4", "0", "1", "4"));
    EXPECT_THAT(Column(charts[0], 2), ElementsAre("1", "2", "3", "", "", ""));
    EXPECT_THAT(Column(charts[0], 3), ElementsAre("", "", "", "5", "6", "7"));
}

// A week is seven days.
TEST_F(ComparisonTest, TimesOfAnotherUnitAreCountedInTheFirst) {
    ComparedPair pair = Named();
    pair.One.Record.TimeUnit = "days";
    pair.Other.Record.TimeUnit = "weeks";
    const auto charts = Charts(Curve("t", "[days]", "s", {{"", {0, 7}, {0, 4}}}),
                               Curve("t", "[weeks]", "s", {{"", {0, 1, 2}, {0, 5, 6}}}), pair);
    ASSERT_THAT(charts, SizeIs(1));
    EXPECT_THAT(Column(charts[0], 1), ElementsAre("0", "7", "14"));
    EXPECT_THAT(Column(charts[0], 3), ElementsAre("0", "5", "6"));
}

TEST_F(ComparisonTest, MoreThanFourCurvesAreAChartEach) {
    const auto lines = [](const std::string& unit) {
        std::vector<AnswerCurve::Line> all;
        for (const char* time : {"0 ", "45 ", "90 ", "180 "}) all.push_back({time + unit, {5, 6}, {0, 1}});
        return all;
    };
    const auto charts = Charts(Curve("u", "[kN/m²]", "z", lines("days")), Curve("u", "[kN/m²]", "z", lines("weeks")));
    ASSERT_THAT(charts, SizeIs(4));
    EXPECT_EQ(charts[1].ChartTitle, "Title, 45 days / 45 weeks");
    EXPECT_EQ(charts[1].Legends(2), "Other: 45 weeks");
}

TEST_F(ComparisonTest, AGapStaysAGap) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    const auto charts = Charts(Curve("Sigma_z", "[kN/m²]", "z", {{"", {10, none, 8}, {1, 2, 3}}}),
                               Curve("Sigma_z", "[kN/m²]", "z", {{"", {9, 8, 7}, {1, 2, 3}}}));
    ASSERT_THAT(charts, SizeIs(1));
    EXPECT_THAT(Column(charts[0], 2), ElementsAre("10", "", "8"));
}

// --- files ---

TEST_F(ComparisonTest, FilesHaveNumbersWithAPoint) {
    SharedServices().DecimalSign = ',';
    const ComparedPair pair = Read(Footing("One", "4"), Footing("Other", "2.5"));
    const auto table = ComparisonTable(pair, DifferingInputs(pair), {{"Stress", "Sigma_z", "kN/m²", "62,3", "–", ""}});
    ASSERT_THAT(table, SizeIs(3));
    EXPECT_THAT(table[0], ElementsAre("Part", "Quantity", "Symbol", "One", "Other", "Unit", "Change"));
    EXPECT_THAT(table[1], ElementsAre("Input that differs", "Width", "b", "4.00", "2.50", "m", "-37,5 %"));
    EXPECT_THAT(table[2], ElementsAre("Results", "Stress", "Sigma_z", "62.3", "–", "kN/m²", ""));
    EXPECT_THAT(ComparisonCsv(table), StartsWith("Part,Quantity,Symbol,One,Other,Unit,Change\r\n"));
}

}  // namespace
}  // namespace lithmark::tests
