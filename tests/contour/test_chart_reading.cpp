// What can be read off a chart: values at the cursor, jumps, marks and their difference.
#include <gtest/gtest.h>

#include <cmath>

#include "contour/ChartReading.h"
#include "contour/ChartTable.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

// Two curves over the time; at time 4 the load jumps.
ChartArguments Load(const std::vector<std::vector<std::string>>& rows) {
    ChartArguments chart;
    chart.Curves = 2;
    chart.LastColumn = 3;
    chart.LastRow = static_cast<int>(rows.size());
    chart.HeaderRows = 0;
    chart.XTitle = "Time t days";
    chart.YTitle = "Loading Ex [kN]";
    chart.ChartTitle = "Load";
    chart.Legends.Redim(0, 2);
    chart.Legends(1) = "new";
    chart.Legends(2) = "old";
    chart.LineStyles.Redim(0, 2);
    chart.Cells.Redim(0, chart.LastRow, 0, 3);
    chart.Header.Redim(0, 0, 0, 3);
    for (int c = 1; c <= 3; ++c) chart.Header(0, c) = std::vector<std::string>{"t", "Ex, new", "Ex old"}[c - 1];
    for (int r = 1; r <= chart.LastRow; ++r)
        for (int c = 1; c <= 3; ++c)
            chart.Cells(r, c) = rows[static_cast<std::size_t>(r - 1)][static_cast<std::size_t>(c - 1)];
    return chart;
}

ChartArguments Steps() {
    return Load({{"0", "0", "0"}, {"4", "1207", "1207"}, {"4", "2667", "1207"}, {"9", "2667.5", ""}});
}

class ReadingTest : public testing::Test {
  protected:
    void TearDown() override {
        LanguageTexts().SetCurrent(Language::English);
        SharedServices().DecimalSign = '.';
    }
};

TEST_F(ReadingTest, TheValuesAtTheNearestPlaceAreTheOnesOfTheTable) {
    const ChartReading reading(Steps());
    EXPECT_EQ(reading.NearestRow(-3), 1);
    EXPECT_EQ(reading.NearestRow(1.9), 1);
    EXPECT_EQ(reading.NearestRow(2.1), 2);
    EXPECT_EQ(reading.ValuesAt(1), "t = 0 days: new 0, old 0 kN");
    EXPECT_EQ(reading.NearestRow(8), 4);
    EXPECT_EQ(reading.ValuesAt(4), "t = 9 days: new 2667.5 kN") << "a curve without a value there says nothing";
}

TEST_F(ReadingTest, AtAJumpBothValuesAreTold) {
    const ChartReading reading(Steps());
    EXPECT_EQ(reading.ValuesAt(2), "t = 4 days: new before 1207, after 2667, old 1207 kN");
}

TEST_F(ReadingTest, AHiddenCurveIsNotRead) {
    ChartReading reading(Steps());
    reading.Show(1, false);
    EXPECT_EQ(reading.ValuesAt(2), "t = 4 days: old 1207 kN");
    EXPECT_EQ(reading.NearestRow(9), 2) << "the old curve ends at 4";
    reading.Show(2, false);
    EXPECT_FALSE(reading.NearestRow(9));
    EXPECT_FALSE(reading.NearestPoint(4, 0, 1, 1));
}

TEST_F(ReadingTest, WalkingGoesFromPlaceToPlaceAndStopsAtTheEnds) {
    const ChartReading reading(Steps());
    EXPECT_EQ(reading.NextPlace(1, 1), 2);
    EXPECT_EQ(reading.NextPlace(2, 1), 4);
    EXPECT_EQ(reading.NextPlace(4, 1), 4);
    EXPECT_EQ(reading.NextPlace(4, -1), 2) << "a jump is entered at its first row";
    EXPECT_EQ(reading.NextPlace(2, -1), 1);
    EXPECT_EQ(reading.NextPlace(1, -1), 1);
}

TEST_F(ReadingTest, MarksAndTheirDifferenceHaveTheDigitsOfTheTable) {
    const ChartReading reading(Load({{"4", "6.10", "0"}, {"18", "12.05", "0"}}));
    const ChartMark a{1, 1}, b{2, 1};
    EXPECT_EQ(reading.MarkText(a), "4 days, 6.10 kN");
    EXPECT_EQ(reading.DifferenceText(a, b), "14 days, 5.95 kN");
    EXPECT_EQ(reading.DifferenceText(b, a), "-14 days, -5.95 kN");
}

TEST_F(ReadingTest, TheNearestPointIsTheOneOnTheScreen) {
    const ChartReading reading(Steps());
    EXPECT_EQ(reading.NearestPoint(4, 2600, 1, 100), (ChartMark{3, 1}));
    EXPECT_EQ(reading.NearestPoint(4, 1300, 1, 100), (ChartMark{2, 1}));
    // 1 day right and 1460 kN below the last point: near in days, far in kN.
    EXPECT_EQ(reading.NearestPoint(8, 1207, 1, 1), (ChartMark{2, 1}));
    EXPECT_EQ(reading.NearestPoint(8, 1207, 1, 100000), (ChartMark{4, 1}));
}

TEST_F(ReadingTest, NumbersStandInTheDecimalSignOfTheLanguage) {
    LanguageTexts().SetCurrent(Language::German);
    SharedServices().DecimalSign = '.';
    ChartArguments chart = Steps();
    EXPECT_THAT(ChartReading(chart).ValuesAt(4), HasSubstr("2667,5"));
    SharedServices().DecimalSign = ',';
    chart.Cells(4, 2) = "2667,5";
    EXPECT_THAT(ChartReading(chart).ValuesAt(4), HasSubstr("2667,5"));
    EXPECT_EQ(ChartReading(chart).Y(4, 1), 2667.5);
    LanguageTexts().SetCurrent(Language::English);
    EXPECT_THAT(ChartReading(chart).ValuesAt(4), HasSubstr("2667.5"));
    EXPECT_EQ(ChartReading(chart).DifferenceText({2, 1}, {4, 1}), "5 days, 1460.5 kN");
}

// Numbers run from left to right in their own isolates; a time unit is a word of the line.
TEST_F(ReadingTest, AnArabicLineKeepsItsNumbersTogether) {
    LanguageTexts().SetCurrent(Language::Arabic);
    ChartArguments chart = Steps();
    chart.XTitle = Text(10247_text) + " t " + Text(10001_text);
    const ChartReading reading(chart);
    EXPECT_THAT(reading.ValuesAt(4), testing::StartsWith("\u2066t = 9\u2069 " + Text(10001_text) + ": "));
    EXPECT_THAT(reading.ValuesAt(4), testing::EndsWith("\u20662667.5 kN\u2069"));
    EXPECT_EQ(reading.MarkText({1, 1}), "\u20660\u2069 " + Text(10001_text) + Text(910011_text) + " \u20660 kN\u2069");
}

TEST_F(ReadingTest, AnAxisTitleHasWordsSymbolAndUnit) {
    const auto expect = [](const std::string& title, const std::string& words, const std::string& symbol,
                           const std::string& unit) {
        const AxisWords axis = WordsOf(title);
        EXPECT_EQ(axis.Title, words);
        EXPECT_EQ(axis.Symbol, symbol);
        EXPECT_EQ(axis.Unit, unit);
    };
    expect("Contact pressure q [kN/m²]", "Contact pressure", "q", "kN/m²");
    expect("Time t days", "Time", "t", "days");
    expect("Tilt k [-]", "Tilt", "k", "");
    expect("Share", "Share", "", "");
}

TEST_F(ReadingTest, InOneSentence) {
    EXPECT_EQ(ChartReading(Steps()).Summary(), "Loading from 0 to 2667.5 kN; Time from 0 to 9 days");
}

TEST_F(ReadingTest, SettlementsAndDepthsCanBeTurned) {
    for (const Language language : {Language::German, Language::English, Language::Arabic}) {
        LanguageTexts().SetCurrent(language);
        ChartArguments chart = Steps();
        chart.YTitle = Text(300053_text) + " Ex [kN]";
        EXPECT_EQ(TurnOf(chart), ChartTurn::None);
        chart.YTitle = Text(40081_text) + " Zse [cm]";
        EXPECT_EQ(TurnOf(chart), ChartTurn::Settlements);
        chart.XTitle = Text(10247_text) + " t days";
        EXPECT_TRUE(HasTimeAxis(chart));
        chart.XTitle = Text(300018_text) + " z [m]";
        EXPECT_EQ(TurnOf(chart), ChartTurn::Depth);
        EXPECT_FALSE(HasTimeAxis(chart));
    }
}

TEST_F(ReadingTest, TheTableAsTextInBothKinds) {
    SharedServices().DecimalSign = ',';
    const ChartArguments chart = Load({{"0,5", "1", ""}});
    EXPECT_EQ(ChartCsv(chart), "t,\"Ex, new\",Ex old\r\n0.5,1,\r\n");
    EXPECT_EQ(ChartTabs(chart), "t\tEx, new\tEx old\n0,5\t1\t\n");
}

}  // namespace
}  // namespace lithmark::tests
