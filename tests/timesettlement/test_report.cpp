// The report of problems 6 to 8: rows and cells by hand, and whole reports as goldens in three languages.
#include <algorithm>

#include "TimeCase.h"
#include "support/Golden.h"
#include "support/Lines.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class TimeReport : public TimeSettlementTest {
  protected:
    void RunReport() {
        Run();
        ASSERT_FALSE(Session.CalcAborted);
        lines = ReportLinesOf(Session.ResultText);
    }
    // The line of the n-th row of table T1 .. T4.
    std::string RowOf(const std::string& table, int row) const {
        const auto title = std::find(lines.begin(), lines.end(), Text(40079_text) + " " + table);
        if (title == lines.end()) return "no table " + table;
        int rulers = 0;
        for (auto line = title + 2; line != lines.end(); ++line) {
            if (line->rfind("---", 0) == 0) {
                if (++rulers == 3) return "no row";
            } else if (rulers == 2 && --row == 0) {
                return *line;
            }
        }
        return "no row";
    }
    int RowsOf(const std::string& table) const {
        int count = 0;
        while (RowOf(table, count + 1) != "no row" && count < 100) ++count;
        return count;
    }
    // The value of the parameter line with this symbol.
    std::string ValueOf(const std::string& symbol) const {
        const std::string sign = " " + symbol + Text(123_text) + " ";
        for (const std::string& line : lines) {
            const std::size_t at = line.find(" = ");
            if (at != std::string::npos && line.find(sign) < at) return line.substr(at + 3);
        }
        return "no row";
    }
    long CountOf(const std::string& symbol) const {
        const std::string sign = " " + symbol + Text(123_text) + " ";
        return std::count_if(lines.begin(), lines.end(), [&](const std::string& line) {
            return line.find(sign) != std::string::npos && line.find(" = ") != std::string::npos;
        });
    }
    std::vector<std::string> lines;
};

// The words of a line.
std::vector<std::string> Words(const std::string& line) {
    std::vector<std::string> words;
    for (const std::string& word : Split(line, ' '))
        if (!word.empty()) words.push_back(word);
    return words;
}

TEST_F(TimeReport, ParametersOfTheDefaultsByHand) {
    StartTimeSettlement(6);
    RunReport();
    EXPECT_EQ(ValueOf("Pt"), "6350.0");
    EXPECT_EQ(ValueOf("Sc"), "12.10");
    EXPECT_EQ(ValueOf("Sm"), "4.61");
    // 12.1 (0.19 0.97 + 0.23 0.89 + 0.41 0.49) = 7.1378; 4.61/7.1378 = 0.6459; 12.1 times this is 7.815.
    EXPECT_EQ(ValueOf("Sz"), "7.14");
    EXPECT_EQ(ValueOf("f"), "0.65");
    EXPECT_EQ(ValueOf("Sr"), "7.81");
    EXPECT_EQ(ValueOf("Tb"), "5.00");
    EXPECT_THAT(lines, Contains(Text(300051_text) + " 2024-05-17"));
    EXPECT_THAT(lines, Contains(HasSubstr(Text(300065_text) + " 4 " + Text(300066_text))));
    EXPECT_THAT(lines, Contains(HasSubstr(Text(300063_text) + " 4 " + Text(300064_text))));
}

TEST_F(TimeReport, TablesOfTheDefaultsByHand) {
    StartTimeSettlement(6);
    RunReport();
    const std::string step = Trim(Text(300050_text));
    EXPECT_THAT(RowOf("T1", 1), ContainsRegex("1 +19.00 +1206.5 +" + step));  // 6350 0.19
    EXPECT_THAT(Words(RowOf("T1", 3)), testing::ElementsAre("3", "42.00", "2667.0"));
    EXPECT_THAT(RowOf("T1", 12), ContainsRegex("12 +100.00 +6350.0 +" + step));
    EXPECT_THAT(Words(RowOf("T2", 2)), testing::ElementsAre("2", "74.00", "8.95"));  // 12.1 0.74 = 8.954
    EXPECT_THAT(RowOf("T2", 18), ContainsRegex("18 +100.00 +12.10 +" + Trim(Text(300073_text))));
    // T3 counts from 0.
    EXPECT_THAT(Words(RowOf("T3", 1)), testing::ElementsAre("0", "19.00", "1206.5", "0.00"));
    EXPECT_THAT(Words(RowOf("T3", 2)), testing::ElementsAre("1", "42.00", "2667.0", "1.13"));  // 12.1 0.19 0.49
    EXPECT_THAT(Words(RowOf("T3", 5)), testing::ElementsAre("4", "83.00", "5270.5", "7.14"));
    EXPECT_THAT(RowOf("T4", 5), ContainsRegex("4 +83.00 +5270.5 +4.61 +" + Trim(Text(300067_text))));
    for (const char* table : {"T1", "T2"}) EXPECT_EQ(RowsOf(table), 18);
    for (const char* table : {"T3", "T4"}) EXPECT_EQ(RowsOf(table), 19);
}

TEST_F(TimeReport, APeriodOfOneUnitHasOneRowAndTwo) {
    StartTimeSettlement(6);
    Session.TimePeriod = 1;
    RunReport();
    EXPECT_EQ(RowsOf("T1"), 1);
    EXPECT_EQ(RowsOf("T2"), 1);
    EXPECT_EQ(RowsOf("T3"), 2);
    EXPECT_EQ(RowsOf("T4"), 2);
    // The measurement lies outside the table and is told all the same.
    EXPECT_EQ(ValueOf("Sz"), "7.14");
    EXPECT_THAT(Session.ResultText, Not(HasSubstr(Text(300067_text))));
}

TEST_F(TimeReport, WithoutAMeasurementThereIsNoT4) {
    StartTimeSettlement(6);
    Session.Ms = false;
    RunReport();
    EXPECT_EQ(RowOf("T4", 1), "no table T4");
    EXPECT_EQ(ValueOf("Sm"), "no row");
    EXPECT_EQ(ValueOf("f"), "no row");
}

TEST_F(TimeReport, AMeasuredSettlementOfZeroLeavesOutFactorAndCorrection) {
    StartTimeSettlement(6);
    Session.Sm = 0;
    RunReport();
    EXPECT_EQ(ValueOf("Sm"), "0.00");
    EXPECT_EQ(ValueOf("f"), "no row");
    EXPECT_EQ(ValueOf("Sr"), "no row");
    EXPECT_THAT(Words(RowOf("T4", 19)), testing::ElementsAre("18", "100.00", "6350.0", "0.00"));
}

// Lengths in mm and forces in N: the tables are scaled, settlements and thicknesses of the parameters keep their
// numbers.
TEST_F(TimeReport, OtherUnitsScaleTheTablesAndForcesButNotTheSettlementsOfTheParametersDeliberately) {
    StartTimeSettlement(7);
    Session.Len1Label = Text(42_text);
    Session.Len1Factor = 1000;
    Session.Len2Label = Text(42_text);
    Session.Len2Factor = 10;
    Session.Force1Label = Text(47_text);
    Session.Force1Factor = 1000;
    SetReadings({{0.25, 14}, {1, 28}, {60, 60}, {1440, 100}});
    RunReport();
    EXPECT_EQ(ValueOf("Pt"), "6350000.0");
    EXPECT_EQ(ValueOf("Sc"), "12.10");
    EXPECT_EQ(ValueOf("Hm"), ".019");
    EXPECT_EQ(ValueOf("Hb"), "8");
    EXPECT_THAT(Words(RowOf("T3", 1)), testing::ElementsAre("0", "19.00", "1206500.0", "0.00"));
    const double settlement = Session.SuddenSettlement(1) * 10;
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", settlement);
    EXPECT_EQ(Words(RowOf("T2", 1))[3], text);
}

TEST_F(TimeReport, OedometerRowsTellTheLastReadingWithoutItsUnitDeliberately) {
    StartTimeSettlement(7);
    RunReport();
    const auto reading = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
        return line.find(Text(300060_text)) != std::string::npos;
    });
    ASSERT_NE(reading, lines.end());
    EXPECT_THAT(*reading, ContainsRegex("\\[-\\] += 1.309$"));
    EXPECT_EQ(ValueOf("Tm"), "1440.00");
    EXPECT_EQ(ValueOf("Hm"), ".019");
    // Row j shows the j-th reading, and the last one from there on.
    EXPECT_EQ(Words(RowOf("T2", 1))[1], "0.14");
    EXPECT_EQ(Words(RowOf("T2", 5))[1], "0.84");
    EXPECT_EQ(Words(RowOf("T2", 10))[1], "1.31");
    EXPECT_EQ(Words(RowOf("T2", 18))[1], "1.31");
}

TEST_F(TimeReport, TheoryTellsCvTwiceWhereItIsComputedDeliberately) {
    StartTimeSettlement(8);
    RunReport();
    EXPECT_EQ(CountOf("Cv"), 2);
    EXPECT_EQ(ValueOf("Cv"), "0.1474");  // 0.00004 36144.58/9.81
    EXPECT_EQ(ValueOf("Est"), "36144.6");
    EXPECT_EQ(ValueOf("k"), "0.0000400");
    EXPECT_EQ(ValueOf("Tb"), "1.00");
}

TEST_F(TimeReport, TheoryTellsAGivenCvOnceAndNoSoilData) {
    StartTimeSettlement(8);
    Session.CvChoice = 3;
    Session.CvTS = 0.00002;
    RunReport();
    EXPECT_EQ(CountOf("Cv"), 1);
    EXPECT_EQ(ValueOf("Est"), "no row");
    EXPECT_EQ(ValueOf("k"), "no row");
}

TEST_F(TimeReport, TheoryMarksTheFirstRowOf97PerCentAlone) {
    StartTimeSettlement(8);
    Session.CvChoice = 3;
    Session.CvTS = 0.3 * 16 / 86400;  // Tv(t) = 0.3 t: 97 % at t = 4
    RunReport();
    const std::string mark = Trim(Text(300073_text));
    EXPECT_THAT(RowOf("T2", 3), Not(HasSubstr(mark)));
    EXPECT_THAT(RowOf("T2", 4), HasSubstr(mark));
    EXPECT_THAT(RowOf("T2", 5), Not(HasSubstr(mark)));
    EXPECT_EQ(ValueOf("Tb"), "4.00");
    // Tv = 0.3: 1 - 0.666666 exp(-0.65) = 65.20 %, and 12.1 times this is 7.89 cm.
    EXPECT_THAT(Words(RowOf("T2", 1)), testing::ElementsAre("1", "2", "0.30", "65.20", "7.89"));
    EXPECT_THAT(Words(RowOf("T2", 5)), testing::ElementsAre("5", "2", "1.20", "100.00", "12.10"));
}

TEST_F(TimeReport, TheoryBeyondThePeriodHasNoMarkButTheRealEnd) {
    StartTimeSettlement(8);
    Session.CvChoice = 3;
    Session.CvTS = 0.3 * 16 / 86400;
    Session.TimePeriod = 3;
    RunReport();
    EXPECT_THAT(Session.ResultText, Not(HasSubstr(Text(300073_text))));
    EXPECT_EQ(ValueOf("Tb"), "4.00");
}

TEST_F(TimeReport, AnotherProblemNumberReportsLoadAndNoSettlement) {
    StartTimeSettlement(5);
    Session.Ms = false;
    RunReport();
    EXPECT_EQ(RowOf("T2", 1), "no table T2");
    EXPECT_EQ(RowsOf("T3"), 19);
}

// --- goldens ---

struct GoldenCase {
    const char* Name;
    int ProblemType;
    void (*Change)();
};

class TimeReportGolden : public TimeSettlementTest, public testing::WithParamInterface<GoldenCase> {};

TEST_P(TimeReportGolden, InThreeLanguages) {
    const std::pair<Language, const char*> languages[] = {
        {Language::German, "de"}, {Language::English, "en"}, {Language::Arabic, "ar"}};
    for (const auto& [language, suffix] : languages) {
        StartTimeSettlement(GetParam().ProblemType, language);
        GetParam().Change();
        Run();
        ASSERT_FALSE(Session.CalcAborted);
        EXPECT_TRUE(MatchesGolden(std::string("timesettlement/") + GetParam().Name + "_" + suffix + ".txt",
                                  Session.ResultText));
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, TimeReportGolden,
                         testing::Values(GoldenCase{"direct", 6, [] {}},
                                         GoldenCase{"oedometer", 7,
                                                    [] {
                                                        Session.TimeUnit = Text(10003_text);
                                                        SetReadings({{0.25, 10.7},
                                                                     {1, 21.5},
                                                                     {2.25, 32.4},
                                                                     {4, 43.1},
                                                                     {9, 64.1},
                                                                     {16, 77.8},
                                                                     {25, 87.7},
                                                                     {36, 94},
                                                                     {49, 96},
                                                                     {1440, 100}});
                                                    }},
                                         GoldenCase{"theory", 8,
                                                    [] {
                                                        Session.TimeUnit = Text(10003_text);
                                                        Session.kf = 0.0000000003;
                                                        Session.TimePeriod = 10;
                                                    }},
                                         GoldenCase{"theory_given_cv", 8,
                                                    [] {
                                                        Session.TimeUnit = Text(10003_text);
                                                        Session.CvChoice = 3;
                                                        Session.CvTS = 0.0000005;
                                                        Session.Ms = false;
                                                        Session.TimePeriod = 20;
                                                    }}),
                         [](const auto& param) { return std::string(param.param.Name); });

}  // namespace
}  // namespace lithmark::tests
