#include "study/window/PointsChart.h"

#include <algorithm>
#include <array>
#include <map>

#include "contour/AxisTicks.h"
#include "services/texts/LanguageTexts.h"
#include "study/Row.h"
#include "study/window/ChartColumns.h"
#include "study/window/ShortNumber.h"

namespace lithmark {

namespace {

constexpr std::size_t kMostCurves = 7;

// The points of one line along a coordinate: the other two, and value of the coordinate and result.
struct PointLine {
    std::array<double, 2> At;
    std::map<double, double> Values;
};

std::array<int, 2> OthersOf(int coordinate) {
    return {coordinate == 0 ? 1 : 0, coordinate == 2 ? 1 : 2};
}

// By the other two coordinates, in the order in which they come.
std::vector<PointLine> LinesAlong(const PointsTable& points, int coordinate, const std::vector<float>& numbers,
                                  double factor) {
    std::vector<PointLine> lines;
    std::map<std::array<double, 2>, std::size_t> places;
    const auto [one, other] = OthersOf(coordinate);
    for (int row = 0; row < points.Editing().Rows(); ++row) {
        const auto at = points.Coordinate(row, coordinate), a = points.Coordinate(row, one),
                   b = points.Coordinate(row, other);
        const auto place = static_cast<std::size_t>(row);
        if (!at || !a || !b) continue;
        const auto [found, isNew] = places.try_emplace({*a, *b}, lines.size());
        if (isNew) lines.push_back({{*a, *b}, {}});
        // A point without a result is a gap.
        const bool missing = place >= numbers.size() || IsMissing(numbers[place]);
        lines[found->second].Values[*at] = missing ? kEmptyCell : static_cast<double>(numbers[place]) * factor;
    }
    return lines;
}

// "x = 0 m, y = 1.5 m"
std::string NameOf(const PointLine& line, const std::vector<PointLine>& all, const PointsTable& points,
                   int coordinate) {
    std::string name;
    for (std::size_t i = 0; i < 2; ++i) {
        const FieldChoice& field = points.Coordinates()[static_cast<std::size_t>(OthersOf(coordinate)[i])];
        std::vector<double> places;
        places.reserve(all.size());
        for (const PointLine& each : all) places.push_back(each.At[i]);
        const std::string number = NumberApart(line.At[i], places, LanguageDecimalSign());
        name += (i == 0 ? "" : ", ") + field.Short() + " = " + WithUnit(number, field.Unit);
    }
    return name;
}

}  // namespace

ChartArguments PointsChart(const PointsTable& points, int result, int coordinate, const std::vector<float>& numbers) {
    const ResultChoice& drawn = points.Results()[static_cast<std::size_t>(result)];
    const FieldChoice& along = points.Coordinates()[static_cast<std::size_t>(coordinate)];
    const std::vector<PointLine> lines = LinesAlong(points, coordinate, numbers, drawn.Factor);
    const bool curves = !lines.empty() && lines.size() <= kMostCurves &&
                        std::ranges::all_of(lines, [](const PointLine& line) { return line.Values.size() > 1; });
    std::vector<ChartColumn> columns(1);
    if (curves)
        for (const PointLine& line : lines)
            columns.push_back({NameOf(line, lines, points, coordinate), LineStyle::Solid, {}});
    else
        columns.push_back({drawn.Short(), LineStyle::Points, {}});
    for (std::size_t i = 0; i < lines.size(); ++i)
        for (const auto& [at, value] : lines[i].Values) AddPoint(columns, curves ? i + 1 : 1, at, value);
    // Depths can point downward.
    const std::string label = coordinate == 2 ? Text(300018_text) : along.Label;
    return ChartOfColumns(Text(913270_text), AxisTitle(label, along.Short(), along.Unit),
                          AxisTitle(drawn.Label, drawn.Short(), drawn.Unit), columns);
}

}  // namespace lithmark
