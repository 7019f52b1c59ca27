#include "contour/CurveSets.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "core/Catalogue.h"
#include "core/CurveRequest.h"
#include "core/Session.h"
#include "core/Units.h"
#include "report/ToolLib.h"
#include "services/SharedServices.h"
#include "services/numerics/NumericLib.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// One data column: its head, and what the cell of row i holds.
struct Column {
    TextId Title;
    std::string Symbol, Unit;
    std::function<std::string(int)> Cell;
};

struct Curve {
    std::string Legend;
    LineStyle Style = LineStyle::Solid;
};

std::string AxisTitle(TextId title, const std::string& symbol, const std::string& unit) {
    return Text(title) + " " + symbol + " " + unit;
}

std::string AxisTitle(const Column& column) {
    return AxisTitle(column.Title, column.Symbol, column.Unit);
}

// The cell of row i as a 32-bit number again.
Single CellNumber(const std::string& cell) {
    const auto number = ParseNumber(cell, SharedServices().DecimalSign);
    if (!number) Fail(FailureKind::InvalidArgument);
    return Single(*number);
}

// Puts rows 1 .. lastRow of the columns into the chart and describes the table in Session. Column 0 stays empty.
void FillTable(ChartArguments& chart, int lastRow, const std::string& tableTitle, const std::vector<Column>& columns,
               const std::vector<Curve>& curves) {
    const int lastColumn = static_cast<int>(columns.size());
    TableColumns(lastColumn, lastRow, tableTitle);
    TableColumn(0, std::string(), "", std::string());
    chart.Cells.Redim(0, lastRow, 0, lastColumn);
    for (int c = 1; c <= lastColumn; ++c) {
        const Column& column = columns[static_cast<std::size_t>(c - 1)];
        TableColumn(c, column.Title, column.Symbol + Session.SymbolSuffix, column.Unit);
        for (int row = 1; row <= lastRow; ++row)
            if (column.Cell) chart.Cells(row, c) = column.Cell(row);
    }
    chart.Curves = static_cast<int>(curves.size());
    chart.Legends.Redim(0, chart.Curves);
    chart.LineStyles.Redim(0, chart.Curves);
    for (int i = 1; i <= chart.Curves; ++i) {
        chart.Legends(i) = curves[static_cast<std::size_t>(i - 1)].Legend;
        chart.LineStyles(i) = curves[static_cast<std::size_t>(i - 1)].Style;
    }
    chart.XTitle = AxisTitle(columns[0]);
    chart.YTitle = AxisTitle(columns[1]);
}

std::string TableTitle(const char* suffix) {
    return Text(40079_text) + suffix;
}

Column TimeColumn() {
    return {10247_text, "t", Session.TimeUnit, [](int i) { return NumberToText(i - 1); }};
}

std::string LengthCell(Single value) {
    return FormatValue(value * Session.Len1Factor, Session.FmtLength);
}

std::string StressCell(Single value) {
    return FormatValue(value * FactorOf(Unit::Pressure), Session.FmtStress);
}

std::string SettlementCell(Single value) {
    return FormatValue(value * Session.Len2Factor, Session.FmtSettlement);
}

// "Tab1": the stepped load line.
void LoadCurveSet(ChartArguments& chart, const CurveRequest& request) {
    const SessionRecord& p = Session;
    const bool perCent = request.LoadUnit == CurveUnit::PerCent;
    const auto loadCell = [&, perCent](int i) {
        if (perCent) return FormatValue(p.LoadChartNew(i), p.FmtPercent);
        return FormatValue(p.LoadChartNew(i) * p.Force1Factor * p.Pt / 100, p.FmtForce);
    };
    // Deliberate: the second load series has a settlement's title, factor and format.
    const auto previousCell = [&, perCent](int i) {
        const double value = p.LoadChartPrev(i) * p.Len2Factor;
        return FormatValue(perCent ? value : value * p.Pt / 100, p.FmtSettlement);
    };
    const std::string loadUnit = LabelOf(perCent ? Unit::PerCent : Unit::Force);
    const Column time{10247_text, "t", p.TimeUnit, [&](int i) { return NumberToText(p.LoadChartTime(i)); }};
    const Column load{300053_text, perCent ? "EL" : "Ex", loadUnit, loadCell};
    const Column previous{40081_text, "Zse", p.Len2Label, previousCell};
    // A long history ends with the last slot, which a period longer than the slots does not reach.
    const int lastRow = std::min(p.TimePeriod + p.NLoad, p.LoadChartTime.Upper());
    FillTable(chart, lastRow, TableTitle(" T1"), {time, load, previous}, {{Text(400183_text)}, {Text(400003_text)}});
    chart.ChartTitle = Text(300019_text);
    chart.Flag = false;
}

// A table of settlements over time with one curve, whose legend is the chart's title.
void SettlementCurveSet(ChartArguments& chart, const char* table, TextId title, const Column& settlement) {
    FillTable(chart, Session.TimePeriod + 1, TableTitle(table), {TimeColumn(), settlement}, {{Text(title)}});
    chart.ChartTitle = Text(title);
}

std::string SettlementUnit(bool perCent) {
    return LabelOf(perCent ? Unit::PerCent : Unit::Settlement);
}

// "Tab2": settlement under the load applied suddenly.
void SuddenCurveSet(ChartArguments& chart, const CurveRequest& request) {
    const bool perCent = request.SettlementUnit == CurveUnit::PerCent;
    const auto cell = [perCent](int i) {
        if (perCent) return FormatValue(Session.SuddenPercent(i - 1), Session.FmtPercent);
        return SettlementCell(Session.SuddenSettlement(i - 1));
    };
    SettlementCurveSet(chart, " T2", 300052_text,
                       {40081_text, perCent ? "Sts" : "Setn", SettlementUnit(perCent), cell});
}

// "Tab3": settlement of the building.
void BuildingCurveSet(ChartArguments& chart, const CurveRequest& request) {
    const bool perCent = request.SettlementUnit == CurveUnit::PerCent;
    const auto cell = [perCent](int i) {
        if (perCent) return FormatValue(Quotient(Session.SettlementSum(i) * 100, Session.Sc), Session.FmtPercent);
        return SettlementCell(Session.SettlementSum(i));
    };
    SettlementCurveSet(chart, " T3", 140188_text, {40081_text, "Zse", SettlementUnit(perCent), cell});
}

// "Tab4": computed and corrected settlement; the settlement unit choice has no effect here.
void CorrectedCurveSet(ChartArguments& chart) {
    const SessionRecord& p = Session;
    const auto correctedCell = [&](int i) {
        return FormatValue(p.SettlementSum(i) * p.Len2Factor * p.MeasureFactor, p.FmtSettlement);
    };
    const Column computed{40081_text, "Zse", p.Len2Label, [&](int i) { return SettlementCell(p.SettlementSum(i)); }};
    const Column corrected{40081_text, "Zse", p.Len2Label, correctedCell};
    FillTable(chart, p.TimePeriod + 1, TableTitle(" T4"), {TimeColumn(), computed, corrected},
              {{Text(140188_text)}, {Text(300056_text)}});
    chart.ChartTitle = Text(300054_text);
}

// "Tab5": contact pressure along the middle row. Deliberate: the abscissa is "z" in the table and "x" on
// the axis.
void PressureCurveSet(ChartArguments& chart) {
    const SessionRecord& p = Session;
    const std::string stress = LabelOf(Unit::Pressure);
    const Column place{400004_text, "z", p.Len1Label, [&](int i) { return LengthCell(p.RaftMidX(i)); }};
    const Column mean{160007_text, "qm", stress, [&](int) { return StressCell(p.RaftMeanPressure); }};
    const Column pressure{90098_text, "q", stress, [&](int i) { return StressCell(p.RaftMidPressure(i)); }};
    FillTable(chart, p.RaftMidCount, TableTitle(" 1"), {place, mean, pressure},
              {{Text(160007_text)}, {Text(90098_text)}});
    chart.ChartTitle = Text(300077_text);
    chart.XTitle = AxisTitle(400004_text, "x", p.Len1Label);
    chart.YTitle = AxisTitle(pressure);
}

// "Tab6": settlements along the middle row, the straight line through them, and the flexible raft.
void RaftSettlementCurveSet(ChartArguments& chart) {
    const SessionRecord& p = Session;
    const TextId title = ProblemInForce().RaftSettlement;
    const Column place{400004_text, "x", p.Len1Label, [&](int i) { return LengthCell(p.RaftMidX(i)); }};
    const Column settlement{title, "s", p.Len2Label, [&](int i) { return SettlementCell(p.RaftMidSettlement(i)); }};
    const Column line{300080_text, "sm", p.Len2Label, nullptr};
    const Column flexible{300087_text, "sf", p.Len2Label, [&](int i) { return SettlementCell(p.RaftMidFlexible(i)); }};
    FillTable(chart, p.RaftMidCount, TableTitle(" 1"), {place, settlement, line, flexible},
              {{Text(title), LineStyle::Points},
               {Text(300080_text), LineStyle::LinesNoMarkers},
               {Text(300087_text), LineStyle::Solid}});

    // Deliberate: the line is fitted to the shown, rounded numbers and evaluated at the coordinates in metres.
    const int n = p.RaftMidCount;
    Array<Single> x(1, n), y(1, n);
    for (int i = 1; i <= n; ++i) {
        x(i) = CellNumber(chart.Cells(i, 1));
        y(i) = CellNumber(chart.Cells(i, 2));
    }
    Single intercept, slope;
    NumericLib::FitLine(n, x, y, intercept, slope);
    for (int i = 1; i <= n; ++i) chart.Cells(i, 3) = FormatValue(slope * p.RaftMidX(i) + intercept, "");
    chart.ChartTitle = Text(title);
}

// Problem 5: pore water pressure over depth, at the start and at the time of the calculation.
void IsochroneCurveSet(ChartArguments& chart) {
    const SessionRecord& p = Session;
    const std::string stress = LabelOf(Unit::Pressure);
    const Column depth{300018_text, "z", p.Len1Label, [&](int i) { return LengthCell(p.IsoZ(i - 1)); }};
    const Column start{300016_text, "u0", stress, [&](int i) { return StressCell(p.IsoU0(i - 1)); }};
    const Column end{300017_text, "uf", stress, [&](int i) { return StressCell(p.IsoUf(i - 1)); }};
    FillTable(chart, p.IsoLast + 1, TableTitle(" 1"), {depth, start, end}, {{Text(300016_text)}, {Text(300017_text)}});
    chart.ChartTitle = Text(300015_text);
    chart.YTitle = AxisTitle(300015_text, "u", stress);
    chart.Flag = false;
}

void BuildCurveSet(ChartArguments& chart, const CurveRequest& request) {
    switch (request.Set) {
        case CurveSet::Load:
            return LoadCurveSet(chart, request);
        case CurveSet::SuddenLoad:
            return SuddenCurveSet(chart, request);
        case CurveSet::Building:
            return BuildingCurveSet(chart, request);
        case CurveSet::Corrected:
            return CorrectedCurveSet(chart);
        case CurveSet::ContactPressure:
            return PressureCurveSet(chart);
        case CurveSet::RaftSettlement:
            return RaftSettlementCurveSet(chart);
    }
}

// A raft's curves run over the whole raft, the others from the first to the last place of the table.
void SetRange(ChartArguments& chart, bool ofRaft) {
    if (ofRaft && Session.LoadType == LoadShape::Circle) {
        chart.XStart = -Session.A0;
        chart.XEnd = Session.A0;
    } else if (ofRaft && Session.LoadType == LoadShape::Rectangle) {
        chart.XStart = 0;
        chart.XEnd = Session.A;
    } else {
        chart.XStart = CellNumber(chart.Cells(1, 1));
        chart.XEnd = CellNumber(chart.Cells(Session.TableLastRow, 1));
    }
}

// Units, time units and heading data come from files as they stand there.
void MakePrintable(ChartArguments& chart) {
    for (std::string* text : {&chart.XTitle, &chart.YTitle, &chart.TableTitle, &chart.ProjectText, &chart.ChartTitle,
                              &chart.CompanyLine1, &chart.CompanyLine2})
        *text = PrintableText(*text);
    for (std::string& cell : chart.Header.Items()) cell = PrintableText(cell);
}

}  // namespace

std::string ProjectTextInForce() {
    return Text(11_text, Styles::Heading) + Session.Auftr + "\n" + Text(12_text, Styles::Heading) + Session.Datum +
           "\n" + Text(95_text, Styles::Heading) + Session.Proj + "\n" + Text(107_text, Styles::Heading) +
           Session.ProjectName + "\n";
}

ChartArguments BuildChart() {
    ChartArguments chart;
    chart.Flag = true;
    if (Session.ProblemType == Problem::ConsolidationRate) {
        IsochroneCurveSet(chart);
        SetRange(chart, false);
    } else {
        const CurveRequest request = RequestedCurve();
        BuildCurveSet(chart, request);
        SetRange(chart, IsRaftCurve(request.Set));
    }
    chart.ProjectText = ProjectTextInForce();
    BuildTableHeader(chart.Header);
    chart.LastColumn = Session.TableLastColumn;
    chart.LastRow = Session.TableLastRow;
    chart.HeaderRows = Session.HeaderRows;
    chart.TableTitle = Session.TableTitle;
    chart.CompanyLine1 = Session.FirmaLine1;
    chart.CompanyLine2 = Session.FirmaLine2;
    MakePrintable(chart);
    return chart;
}

std::string ColumnHead(const ChartArguments& chart, int column) {
    std::string head;
    for (int row = 0; row <= chart.HeaderRows; ++row) {
        const std::string& part = chart.Header(row, column);
        if (part.empty()) continue;
        const bool divided = head.ends_with('-') && part.front() >= 'a' && part.front() <= 'z';
        if (divided) head.pop_back();
        head += (head.empty() || divided ? "" : " ") + part;
    }
    return head;
}

std::vector<std::string> ColumnNames(const ChartArguments& chart) {
    std::vector<std::string> names;
    const auto taken = [&](const std::string& name) { return std::ranges::find(names, name) != names.end(); };
    for (int c = 1; c <= chart.LastColumn; ++c) {
        std::string name = ColumnHead(chart, c);
        // Behind the title stand the rows of symbols and units.
        if (taken(name) && c - 1 <= chart.Curves && chart.HeaderRows >= 2)
            name = chart.Legends(c - 1) + " " + chart.Header(chart.HeaderRows - 1, c) + " " +
                   chart.Header(chart.HeaderRows, c);
        const std::string head = name;
        for (int number = 2; taken(name); ++number) name = head + " (" + std::to_string(number) + ")";
        names.push_back(name);
    }
    return names;
}

}  // namespace lithmark
