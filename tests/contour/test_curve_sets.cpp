// The curve sets against tables written down by hand from small results.
#include <gtest/gtest.h>

#include "contour/CurveSets.h"
#include "core/Units.h"
#include "services/SharedServices.h"
#include "support/Files.h"
#include "support/Matchers.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

using Rows = std::vector<std::vector<std::string>>;

Rows CellsOf(const ChartArguments& chart) {
    Rows rows;
    for (int r = 1; r <= chart.LastRow; ++r) {
        rows.emplace_back();
        for (int c = 1; c <= chart.LastColumn; ++c) rows.back().push_back(chart.Cells(r, c));
    }
    return rows;
}

Rows HeaderOf(const ChartArguments& chart) {
    Rows rows;
    for (int r = 0; r <= chart.HeaderRows; ++r) {
        rows.emplace_back();
        for (int c = 1; c <= chart.LastColumn; ++c) rows.back().push_back(chart.Header(r, c));
    }
    return rows;
}

template <typename T>
std::vector<T> FromOne(const Array<T>& items) {
    std::vector<T> list;
    for (int i = 1; i <= items.Upper(); ++i) list.push_back(items(i));
    return list;
}

void Fill(Array<Single>& array, int lower, const std::vector<double>& values) {
    array.Redim(lower, lower + static_cast<int>(values.size()) - 1);
    for (std::size_t i = 0; i < values.size(); ++i) array(lower + static_cast<int>(i)) = values[i];
}

class CurveSets : public testing::Test {
  protected:
    void SetUp() override {
        FreshSession();
        SharedServices().DecimalSign = '.';
        Session.FirmaLine1 = "Lithos GmbH";
        Session.FirmaLine2 = "Essen";
        Session.FmtPercent = "0.0";
        Session.FmtForce = "0";
        Session.FmtSettlement = "0.00";
        Session.FmtLength = "0.00";
        Session.FmtStress = "0.0";
    }
    void TearDown() override { SharedServices().DecimalSign = '.'; }

    // Two time units, one load step, at problem 6.
    void SetTimeProblem() {
        Session.ProblemType = Problem::TimeDirect;
        Session.TimeUnit = "months";
        Session.TimePeriod = 2;
        Session.NLoad = 1;
        Session.Pt = 500;
        Session.Sc = 8;
        Session.MeasureFactor = 1.25;
        Session.CurveLoadUnit = Session.Force1Label;
        Session.CurveSettlementUnit = Session.Len2Label;
        const double time[] = {9, 0, 1, 1}, load[] = {9, 0, 0, 50}, previous[] = {9, 0, 0, 10};
        for (int i = 0; i < 4; ++i) {
            Session.LoadChartTime(i) = time[i];
            Session.LoadChartNew(i) = load[i];
            Session.LoadChartPrev(i) = previous[i];
            Session.SuddenPercent(i) = 12.34 * i;
            Session.SuddenSettlement(i) = 1.234 * i;
            Session.SettlementSum(i) = 2 * i;
        }
    }
    // Three points along the middle row of a raft 6 m long.
    void SetRaft() {
        Session.ProblemType = Problem::RaftDisplacement;
        Session.LoadType = 2;
        Session.A = Session.A0 = 6;
        Session.RaftMidCount = 3;
        Session.RaftMeanPressure = 80;
        Fill(Session.RaftMidX, 1, {0, 3, 6});
        Fill(Session.RaftMidPressure, 1, {120, 60.04, 90.06});
        Fill(Session.RaftMidSettlement, 1, {1, 2, 3});
        Fill(Session.RaftMidFlexible, 1, {0.5, 4.005, 0.5});
    }
    ChartArguments Chart(const std::string& choice) {
        Session.CurveChoice = choice;
        return BuildChart();
    }
};

TEST_F(CurveSets, Tab1HasTheLoadInForceUnitsAndTheSecondSeriesAsASettlement) {
    SetTimeProblem();
    Session.SymbolSuffix = "'";
    const ChartArguments chart = Chart("Tab1");
    EXPECT_EQ(chart.Curves, 2);
    EXPECT_EQ(chart.LastColumn, 3);
    EXPECT_EQ(chart.LastRow, 3);  // 2 time units and 1 load step
    // 50 % of 500 kN; 10 times 500 / 100, as it stands.
    EXPECT_EQ(CellsOf(chart), (Rows{{"0", "0", "0.00"}, {"1", "0", "0.00"}, {"1", "250", "50.00"}}));
    EXPECT_EQ(chart.TableTitle, "Table T1");
    EXPECT_EQ(chart.ChartTitle, "Time-load curve");
    EXPECT_EQ(chart.XTitle, "Time t months");
    EXPECT_EQ(chart.YTitle, "Loading Ex [kN]");
    EXPECT_THAT(FromOne(chart.Legends), ElementsAre("Load after the load step", "Load before the load step"));
    EXPECT_THAT(FromOne(chart.LineStyles), ElementsAre(LineStyle::Solid, LineStyle::Solid));
    EXPECT_FALSE(chart.Flag);
    // Titles hang from the top; symbols have the suffix, the axis titles have none.
    EXPECT_EQ(
        HeaderOf(chart),
        (Rows{{"Time", "Loading", "Settle-"}, {"", "", "ment"}, {"t'", "Ex'", "Zse'"}, {"months", "[kN]", "[cm]"}}));
    EXPECT_EQ(chart.XStart, 0.0);
    EXPECT_EQ(chart.XEnd, 1.0);
}

TEST_F(CurveSets, Tab1InPerCentLeavesTheLoadOut) {
    SetTimeProblem();
    Session.CurveLoadUnit = "[%]";
    Session.Len2Factor = 10;
    Session.Len2Label = "[mm]";
    const ChartArguments chart = Chart("Tab1");
    EXPECT_EQ(CellsOf(chart), (Rows{{"0", "0.0", "0.00"}, {"1", "0.0", "0.00"}, {"1", "50.0", "100.00"}}));
    EXPECT_EQ(chart.YTitle, "Loading EL [%]");
    EXPECT_EQ(HeaderOf(chart).back(), (std::vector<std::string>{"months", "[%]", "[mm]"}));
}

TEST_F(CurveSets, Tab2BeginsWithTheValueOfTimeZero) {
    SetTimeProblem();
    ChartArguments chart = Chart("Tab2");
    EXPECT_EQ(CellsOf(chart), (Rows{{"0", "0.00"}, {"1", "1.23"}, {"2", "2.47"}}));
    EXPECT_EQ(chart.YTitle, "Settlement Setn [cm]");
    EXPECT_EQ(chart.TableTitle, "Table T2");
    EXPECT_EQ(chart.ChartTitle, "Time-settlement curve for sudden loading");
    EXPECT_THAT(FromOne(chart.Legends), ElementsAre("Time-settlement curve for sudden loading"));
    EXPECT_TRUE(chart.Flag);
    EXPECT_FALSE(chart.SettlementsDown) << "upward unless the user turns it";
    EXPECT_EQ(chart.XEnd, 2.0);
    Session.CurveSettlementUnit = "[%]";
    chart = Chart("Tab2");
    EXPECT_EQ(CellsOf(chart), (Rows{{"0", "0.0"}, {"1", "12.3"}, {"2", "24.7"}}));
    EXPECT_EQ(chart.YTitle, "Settlement Sts [%]");
}

// Row i of the building's settlement is element i, one further than in "Tab2".
TEST_F(CurveSets, Tab3BeginsWithElementOne) {
    SetTimeProblem();
    ChartArguments chart = Chart("Tab3");
    EXPECT_EQ(CellsOf(chart), (Rows{{"0", "2.00"}, {"1", "4.00"}, {"2", "6.00"}}));
    EXPECT_EQ(chart.YTitle, "Settlement Zse [cm]");
    EXPECT_EQ(chart.TableTitle, "Table T3");
    EXPECT_EQ(chart.ChartTitle, "Time-settlement curve");
    EXPECT_TRUE(chart.Flag);
    Session.CurveSettlementUnit = "[%]";
    chart = Chart("Tab3");
    EXPECT_EQ(CellsOf(chart), (Rows{{"0", "25.0"}, {"1", "50.0"}, {"2", "75.0"}}));  // of 8 cm
    EXPECT_EQ(chart.YTitle, "Settlement Zse [%]");
}

TEST_F(CurveSets, Tab3InPerCentOfNoSettlementIsADivisionByZero) {
    SetTimeProblem();
    Session.Sc = 0;
    EXPECT_NO_THROW(Chart("Tab3"));
    Session.CurveSettlementUnit = "[%]";
    EXPECT_EQ(KindOf([&] { Chart("Tab3"); }), FailureKind::DivisionByZero);
}

TEST_F(CurveSets, Tab4IgnoresTheSettlementUnit) {
    SetTimeProblem();
    Session.Ms = true;
    for (const char* unit : {"[cm]", "[%]"}) {
        Session.CurveSettlementUnit = unit;
        const ChartArguments chart = Chart("Tab4");
        EXPECT_EQ(CellsOf(chart), (Rows{{"0", "2.00", "2.50"}, {"1", "4.00", "5.00"}, {"2", "6.00", "7.50"}}));
        EXPECT_EQ(HeaderOf(chart).back(), (std::vector<std::string>{"months", "[cm]", "[cm]"}));
        EXPECT_EQ(chart.YTitle, "Settlement Zse [cm]");
        EXPECT_EQ(chart.TableTitle, "Table T4");
        EXPECT_EQ(chart.ChartTitle, "Corrected time-settlement calculation");
        EXPECT_THAT(FromOne(chart.Legends), ElementsAre("Time-settlement curve", "Corrected time-settlement curve"));
        EXPECT_TRUE(chart.Flag);
    }
}

TEST_F(CurveSets, Tab5CallsTheSameAbscissaZInTheTableAndXOnTheAxis) {
    SetRaft();
    const ChartArguments chart = Chart("Tab5");
    EXPECT_EQ(chart.Curves, 2);
    EXPECT_EQ(CellsOf(chart), (Rows{{"0.00", "80.0", "120.0"}, {"3.00", "80.0", "60.0"}, {"6.00", "80.0", "90.1"}}));
    EXPECT_EQ(chart.XTitle, "Coordinate x [m]");
    EXPECT_EQ(chart.YTitle, "Contact pressure q [kN/m²]");
    EXPECT_EQ(chart.TableTitle, "Table 1");
    EXPECT_EQ(chart.ChartTitle, "Contact pressures under a rigid raft");
    EXPECT_THAT(FromOne(chart.Legends), ElementsAre("Mean contact pressure", "Contact pressure"));
    const Rows header = HeaderOf(chart);
    EXPECT_EQ(header[header.size() - 2], (std::vector<std::string>{"z", "qm", "q"}));
    EXPECT_EQ(header.back(), (std::vector<std::string>{"[m]", "[kN/m²]", "[kN/m²]"}));
    EXPECT_TRUE(chart.Flag);
    EXPECT_FALSE(chart.SettlementsDown);
}

TEST_F(CurveSets, Tab6FitsALineToTheShownSettlements) {
    SetRaft();
    const ChartArguments chart = Chart("Tab6");
    EXPECT_EQ(chart.Curves, 3);
    // Through (0, 1), (3, 2), (6, 3): 1 + x / 3, with slope and numbers of 32 bits, unformatted.
    EXPECT_EQ(CellsOf(chart),
              (Rows{{"0.00", "1.00", "1", "0.50"}, {"3.00", "2.00", "2", "4.01"}, {"6.00", "3.00", "3", "0.50"}}));
    EXPECT_EQ(chart.XTitle, "Coordinate x [m]");
    EXPECT_EQ(chart.YTitle, "Settlement s [cm]");
    EXPECT_EQ(chart.ChartTitle, "Settlement");
    EXPECT_THAT(FromOne(chart.Legends), ElementsAre("Settlement", "Mean settlement", "Settlement of a flexible raft"));
    EXPECT_THAT(FromOne(chart.LineStyles), ElementsAre(LineStyle::Points, LineStyle::LinesNoMarkers, LineStyle::Solid));
    const Rows header = HeaderOf(chart);
    EXPECT_EQ(header[header.size() - 2], (std::vector<std::string>{"x", "s", "sm", "sf"}));
    Session.ProblemType = Problem::RaftConsolidation;
    EXPECT_EQ(Chart("Tab6").ChartTitle, "Consolidation settlement");
}

// In feet the line is fitted over the displayed feet but evaluated at the metres.
TEST_F(CurveSets, Tab6EvaluatesItsLineAtMetres) {
    SetRaft();
    Session.Len1Factor = 2;  // two length units to the metre: abscissae 0, 6, 12; slope 1/6
    Session.FmtSettlement = "0";
    Fill(Session.RaftMidSettlement, 1, {1.4, 2.4, 2.6});  // shown as 1, 2, 3
    const ChartArguments chart = Chart("Tab6");
    EXPECT_EQ(chart.Cells(1, 2) + chart.Cells(2, 2) + chart.Cells(3, 2), "123");
    EXPECT_EQ(chart.Cells(1, 3), "1");
    EXPECT_EQ(chart.Cells(2, 3), "1.5");  // 1 + 3 / 6
    EXPECT_EQ(chart.Cells(3, 3), "2");    // 1 + 6 / 6
}

TEST_F(CurveSets, TheRangeOfARaftIsItsSideOrItsDiameter) {
    SetRaft();
    for (const char* choice : {"Tab5", "Tab6"}) {
        Session.LoadType = 2;
        ChartArguments chart = Chart(choice);
        EXPECT_EQ(chart.XStart, 0.0);
        EXPECT_EQ(chart.XEnd, 6.0);
        Session.LoadType = 3;
        chart = Chart(choice);
        EXPECT_EQ(chart.XStart, -6.0);
        EXPECT_EQ(chart.XEnd, 6.0);
    }
}

TEST_F(CurveSets, Problem5HasOneFixedSetFromNodeZeroOn) {
    Session.ProblemType = Problem::ConsolidationRate;
    Session.IsoLast = 2;
    Fill(Session.IsoZ, 0, {0, 1, 2});
    Fill(Session.IsoU0, 0, {100, 100, 100});
    Fill(Session.IsoUf, 0, {0, 30.04, 40});
    const ChartArguments chart = Chart("Tab3");  // no choice is asked for
    EXPECT_EQ(CellsOf(chart), (Rows{{"0.00", "100.0", "0.0"}, {"1.00", "100.0", "30.0"}, {"2.00", "100.0", "40.0"}}));
    EXPECT_EQ(chart.Curves, 2);
    EXPECT_EQ(chart.XTitle, "Depth z [m]");
    EXPECT_EQ(chart.YTitle, "Pore water pressure u [kN/m²]");
    EXPECT_EQ(chart.ChartTitle, "Pore water pressure");
    EXPECT_EQ(chart.TableTitle, "Table 1");
    EXPECT_THAT(FromOne(chart.Legends), ElementsAre("Initial pore water pressure", "Final pore water pressure"));
    const Rows header = HeaderOf(chart);
    EXPECT_EQ(header[header.size() - 2], (std::vector<std::string>{"z", "u0", "uf"}));
    EXPECT_FALSE(chart.Flag);
    EXPECT_FALSE(chart.SettlementsDown);
    EXPECT_EQ(chart.XStart, 0.0);
    EXPECT_EQ(chart.XEnd, 2.0);
}

TEST_F(CurveSets, ProjectTextAndCompanyLinesComeAlong) {
    SetTimeProblem();
    const ChartArguments chart = Chart("Tab2");
    EXPECT_EQ(chart.CompanyLine1, "Lithos GmbH");
    EXPECT_EQ(chart.CompanyLine2, "Essen");
    EXPECT_EQ(std::count(chart.ProjectText.begin(), chart.ProjectText.end(), '\n'), 4);
    for (const char* part : {"A 17/4\n", "2024-05-17\n", "Lagerhalle, Prüffeld\n", "Halle17\n"})
        EXPECT_THAT(chart.ProjectText, testing::HasSubstr(part));
    EXPECT_THAT(chart.ProjectText, testing::StartsWith("Order"));
}

TEST_F(CurveSets, RowAndColumnZeroStayEmpty) {
    SetRaft();
    const ChartArguments chart = Chart("Tab6");
    for (int c = 0; c <= chart.LastColumn; ++c) EXPECT_EQ(chart.Cells(0, c), "");
    for (int r = 0; r <= chart.LastRow; ++r) EXPECT_EQ(chart.Cells(r, 0), "");
    EXPECT_EQ(chart.Legends(0), "");
}

// A period and a history that together have more rows than the curve has slots.
TEST_F(CurveSets, Tab1EndsWithTheLastSlot) {
    SetTimeProblem();
    Session.TimePeriod = 60;
    Session.NLoad = 20;
    for (int i = 0; i <= 70; ++i) Session.LoadChartTime(i) = i;
    const ChartArguments chart = Chart("Tab1");
    EXPECT_EQ(chart.LastRow, 70);
    EXPECT_EQ(chart.Cells(70, 1), "70");
    EXPECT_EQ(chart.XEnd, 70.0);
}

TEST_F(CurveSets, WhatFilesHoldComesPrintableIntoTheChart) {
    SetTimeProblem();
    Session.TimeUnit = "mon\x1Bths";
    Session.Proj = std::string("Hall\0e", 6);
    Session.FirmaLine1 = "Lithos\uFFFE";
    const ChartArguments chart = Chart("Tab1");
    EXPECT_EQ(chart.XTitle, "Time t mon\uFFFDths");
    EXPECT_THAT(chart.ProjectText, testing::HasSubstr("Hall\uFFFDe\n"));
    EXPECT_EQ(chart.CompanyLine1, "Lithos\uFFFD");
    EXPECT_EQ(HeaderOf(chart).back().front(), "mon\uFFFDths");
}

// With a decimal comma cells are shown with it and read back with it.
TEST_F(CurveSets, ADecimalCommaIsReadBack) {
    SetRaft();
    SharedServices().DecimalSign = ',';
    Fill(Session.RaftMidX, 1, {0, 1.5, 3});
    const ChartArguments chart = Chart("Tab6");
    EXPECT_EQ(chart.Cells(2, 1), "1,50");
    EXPECT_EQ(chart.Cells(2, 3), "2");
    SetTimeProblem();
    EXPECT_EQ(Chart("Tab1").XEnd, 1.0);
}

TEST_F(CurveSets, ResultsThatAreMissingAreAFailure) {
    SetRaft();
    Session.RaftMidCount = 4;
    EXPECT_EQ(KindOf([&] { Chart("Tab5"); }), FailureKind::SubscriptRange);
    EXPECT_EQ(KindOf([&] { Chart("Tab9"); }), FailureKind::InvalidArgument);
    // One node gives no line.
    Session.RaftMidCount = 1;
    EXPECT_EQ(KindOf([&] { Chart("Tab6"); }), FailureKind::DivisionByZero);
    // A period of 70 asks for a value beyond the last.
    SetTimeProblem();
    Session.TimePeriod = 70;
    EXPECT_EQ(KindOf([&] { Chart("Tab3"); }), FailureKind::SubscriptRange);
    EXPECT_NO_THROW(Chart("Tab2"));
}

TEST_F(CurveSets, AHeadOnOneLineHealsDividedWords) {
    SetTimeProblem();
    const ChartArguments chart = Chart("Tab2");
    EXPECT_EQ(ColumnHead(chart, 1), "Time t months");
    EXPECT_EQ(ColumnHead(chart, 2), "Settlement Setn [cm]");
}

TEST_F(CurveSets, EveryColumnHasANameOfItsOwn) {
    SetTimeProblem();
    Session.Ms = true;
    Session.MeasureFactor = 0.5;
    const ChartArguments chart = Chart("Tab4");
    EXPECT_EQ(ColumnHead(chart, 2), ColumnHead(chart, 3));
    const std::vector<std::string> names = ColumnNames(chart);
    ASSERT_EQ(names.size(), 3u);
    EXPECT_EQ(names[1], ColumnHead(chart, 2));
    EXPECT_EQ(names[2], chart.Legends(2) + " Zse [cm]") << "that of its curve";
}

}  // namespace
}  // namespace lithmark::tests
