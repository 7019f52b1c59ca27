// The curves of two projects over each other.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <set>
#include <tuple>
#include <utility>

#include "contour/ChartReading.h"
#include "core/TimeUnits.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "ui/compare/Comparison.h"

namespace lithmark {

namespace {

// A curve over its places: the depth, the time, or a length.
struct PlacedLine {
    std::string Name;
    std::vector<double> Places, Values;
};

struct Axes {
    bool OverDepth = false;
    std::string Places, Values;  // "Depth z [m]"
};

// Six digits, as short as they are.
std::string NumberOf(double number) {
    constexpr int kDigits = 6;
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::general, kDigits);
    std::string digits(text.data(), end.ptr);
    std::ranges::replace(digits, '.', SharedServices().DecimalSign);
    return digits;
}

std::string WordOf(const AnswerCurve& curve) {
    if (curve.YSymbol == "z") return curve.Title;
    return curve.YSymbol == "s" ? Text(40081_text) : curve.Title;
}

// As the charts of a problem call them, so that depths and settlements can be turned downward.
Axes AxesOf(const AnswerCurve& curve) {
    const auto title = [](const std::string& word, const std::string& symbol, const std::string& unit) {
        return word + " " + symbol + " " + unit;
    };
    if (curve.YSymbol == "z")
        return {true, title(Text(300018_text), curve.YSymbol, curve.YUnit),
                title(WordOf(curve), curve.XSymbol, curve.XUnit)};
    const std::string values = title(WordOf(curve), curve.YSymbol, curve.YUnit);
    if (curve.XSymbol != "t") return {false, title(Text(400004_text), curve.XSymbol, curve.XUnit), values};
    // A time unit stands without brackets there.
    return {false, title(Text(10247_text), curve.XSymbol, curve.XUnit.substr(1, curve.XUnit.size() - 2)), values};
}

// `factor` counts the places in the unit of the other project.
PlacedLine Placed(const AnswerCurve::Line& line, bool overDepth, const std::string& name, double factor) {
    PlacedLine placed{name, overDepth ? line.Y : line.X, overDepth ? line.X : line.Y};
    for (double& place : placed.Places) place *= factor;
    return placed;
}

// Two lines of one table share their rows where neither has a place inside the other's range that the other lacks.
bool ShareRows(const std::vector<PlacedLine>& lines) {
    std::set<double> places;
    for (const PlacedLine& line : lines) {
        if (!std::ranges::is_sorted(line.Places, std::less_equal<>())) return false;  // a jump has two rows
        places.insert(line.Places.begin(), line.Places.end());
    }
    return std::ranges::all_of(lines, [&](const PlacedLine& line) {
        if (line.Places.empty()) return true;
        const auto inside =
            std::distance(places.lower_bound(line.Places.front()), places.upper_bound(line.Places.back()));
        return inside == std::ssize(line.Places);
    });
}

struct TableRow {
    double Place = 0;
    std::map<std::size_t, double> Values;  // by line
};

std::vector<TableRow> RowsOf(const std::vector<PlacedLine>& lines) {
    std::vector<TableRow> rows;
    if (ShareRows(lines)) {
        std::map<double, TableRow> byPlace;
        for (std::size_t i = 0; i < lines.size(); ++i)
            for (std::size_t k = 0; k < lines[i].Places.size(); ++k) {
                TableRow& row = byPlace[lines[i].Places[k]];
                row.Place = lines[i].Places[k];
                row.Values[i] = lines[i].Values[k];
            }
        for (auto& [place, row] : byPlace) rows.push_back(std::move(row));
        return rows;
    }
    for (std::size_t i = 0; i < lines.size(); ++i)
        for (std::size_t k = 0; k < lines[i].Places.size(); ++k)
            rows.push_back({lines[i].Places[k], {{i, lines[i].Values[k]}}});
    return rows;
}

ChartArguments ChartOf(const std::string& title, const Axes& axes, const std::vector<PlacedLine>& lines,
                       const std::string& projectText) {
    const std::vector<TableRow> rows = RowsOf(lines);
    ChartArguments chart;
    chart.Curves = static_cast<int>(lines.size());
    chart.LastColumn = chart.Curves + 1;
    chart.LastRow = static_cast<int>(rows.size());
    chart.HeaderRows = 0;
    chart.XTitle = axes.Places;
    chart.YTitle = axes.Values;
    chart.ChartTitle = chart.TableTitle = title;
    chart.ProjectText = projectText;
    chart.CompanyLine1 = Session.FirmaLine1;
    chart.CompanyLine2 = Session.FirmaLine2;
    chart.Legends.Redim(0, chart.Curves);
    chart.LineStyles.Redim(0, chart.Curves);
    chart.Header.Redim(0, 0, 0, chart.LastColumn);
    chart.Header(0, 1) = axes.Places;
    for (int curve = 1; curve <= chart.Curves; ++curve) {
        const std::string& name = lines[static_cast<std::size_t>(curve - 1)].Name;
        chart.Legends(curve) = name;
        chart.LineStyles(curve) = LineStyle::LinesNoMarkers;
        chart.Header(0, curve + 1) = name + ": " + axes.Values;
    }
    chart.Cells.Redim(0, chart.LastRow, 0, chart.LastColumn);
    for (int row = 1; row <= chart.LastRow; ++row) {
        const TableRow& of = rows[static_cast<std::size_t>(row - 1)];
        chart.Cells(row, 1) = NumberOf(of.Place);
        for (const auto& [line, value] : of.Values)
            if (std::isfinite(value)) chart.Cells(row, static_cast<int>(line) + 2) = NumberOf(value);
    }
    if (rows.empty()) return chart;
    const auto [least, greatest] = std::ranges::minmax(rows, {}, &TableRow::Place);
    chart.XStart = least.Place;
    chart.XEnd = greatest.Place;
    chart.SettlementsDown = TurnOf(chart) != ChartTurn::None;
    return chart;
}

// Time units of the other project in one of the first.
double TimesFactor(const ComparedPair& pair, const AnswerCurve& one, const AnswerCurve& other) {
    if (one.XSymbol != "t" || one.XUnit == other.XUnit) return 1;
    const double from = SecondsPerTimeUnit(pair.Other.Record.TimeUnit),
                 to = SecondsPerTimeUnit(pair.One.Record.TimeUnit);
    return from > 0 && to > 0 ? from / to : 1;
}

// "Pore water pressure, 90 days / 180 days": of a line by itself.
std::string TitleOf(const AnswerCurve& one, const AnswerCurve& other, std::size_t line) {
    std::string title = one.Title, last;
    for (const AnswerCurve* curve : {&one, &other}) {
        if (line >= curve->Lines.size() || curve->Lines[line].Name == last) continue;
        title += (last.empty() ? ", " : " / ") + curve->Lines[line].Name;
        last = curve->Lines[line].Name;
    }
    return title;
}

}  // namespace

std::vector<ChartArguments> ComparedCharts(const ComparedPair& pair, const Answer& one, const Answer& other) {
    const std::string projectText =
        pair.NameOfOne + ": " + pair.One.File + "\n" + pair.NameOfOther + ": " + pair.Other.File + "\n\n\n";
    std::vector<ChartArguments> charts;
    for (std::size_t i = 0; i < std::min(one.Curves.size(), other.Curves.size()); ++i) {
        const AnswerCurve &first = one.Curves[i], &second = other.Curves[i];
        if (first.XSymbol != second.XSymbol || first.YSymbol != second.YSymbol) continue;
        const Axes axes = AxesOf(first);
        const double factor = TimesFactor(pair, first, second);
        // More curves than four cannot be told apart: each line is a chart then.
        constexpr std::size_t kMostLines = 2;
        const std::size_t most = std::max(first.Lines.size(), second.Lines.size());
        const bool apart = most > kMostLines;
        std::vector<PlacedLine> lines;
        for (std::size_t k = 0; k < most; ++k) {
            for (const auto& [curve, name, by] :
                 {std::tuple(&first, &pair.NameOfOne, 1.0), std::tuple(&second, &pair.NameOfOther, factor)}) {
                if (k >= curve->Lines.size()) continue;
                const AnswerCurve::Line& line = curve->Lines[k];
                const std::string called = line.Name.empty() ? *name : *name + ": " + line.Name;
                lines.push_back(Placed(line, axes.OverDepth, called, by));
            }
            if (!apart) continue;
            charts.push_back(ChartOf(TitleOf(first, second, k), axes, std::exchange(lines, {}), projectText));
        }
        if (!lines.empty()) charts.push_back(ChartOf(first.Title, axes, lines, projectText));
    }
    return charts;
}

}  // namespace lithmark
