#include "study/window/StudyCharts.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/NumberText.h"
#include "contour/AxisTicks.h"
#include "services/texts/LanguageTexts.h"
#include "study/Statistics.h"
#include "study/window/ChartColumns.h"
#include "study/window/ShortNumber.h"

namespace lithmark {

namespace {

std::string ResultAxis(const ResultChoice& result) {
    return AxisTitle(result.Label, result.Short(), result.Unit);
}

std::string LimitName(const StudyQuestion& asked, double limit) {
    return Text(913317_text, {{"|1", Together(WithUnit(PictureNumber(limit), asked.Drawn().Unit))}});
}

}  // namespace

ChartArguments CurveChart(const StudyQuestion& asked, const StudyCurves& curves) {
    const FieldChoice& first = *asked.FirstVaried();
    std::vector<ChartColumn> columns = {{"", LineStyle::Solid, curves.X}};
    for (const StudyCurve& curve : curves.Curves) columns.push_back({curve.Name, LineStyle::Solid, curve.Y});
    const std::vector<double> none(curves.X.size(), kEmptyCell);
    if (curves.Limit)
        columns.push_back({LimitName(asked, *curves.Limit), LineStyle::LinesNoMarkers,
                           std::vector<double>(curves.X.size(), *curves.Limit)});
    std::size_t present = 0, crossed = 0;
    if (curves.PresentX) {
        present = columns.size();
        columns.push_back({Text(913318_text), LineStyle::Points, none});
    }
    if (!curves.Crossings.empty()) {
        crossed = columns.size();
        columns.push_back({Text(913319_text), LineStyle::Points, none});
    }
    if (present > 0) AddPoint(columns, present, *curves.PresentX, *curves.PresentY);
    for (const CurveCrossing& crossing : curves.Crossings) AddPoint(columns, crossed, crossing.X, *curves.Limit);
    return ChartOfColumns(Text(913324_text), AxisTitle(first.Label, first.Short(), first.Unit),
                          ResultAxis(asked.Drawn()), columns);
}

namespace {

// The lines at the present values of the varied fields, or at those next to them.
std::vector<const StudyLine*> SampledLines(const StudyQuestion& asked, const StudyTable& table) {
    std::vector<const StudyLine*> lines;
    for (const StudyLine& line : table.Lines()) lines.push_back(&line);
    for (int i = 0; i < StudyQuestion::kVaryLines; ++i) {
        const FieldChoice* field = asked.Varied(i);
        const int place = field == nullptr ? -1 : table.PlaceOfField(field->Name);
        if (place < 0) continue;
        const auto distance = [&](const StudyLine* line) {
            const auto value = ParseNumber(line->Values[static_cast<std::size_t>(place)]);
            return std::abs(value.value_or(0) - field->Value / field->Factor);
        };
        double least = std::numeric_limits<double>::infinity();
        for (const StudyLine* line : lines) least = std::min(least, distance(line));
        std::erase_if(lines, [&](const StudyLine* line) { return distance(line) > least; });
    }
    return lines;
}

// Ascending.
std::vector<float> SampledNumbers(const StudyQuestion& asked, const StudyTable& table) {
    std::vector<float> numbers;
    for (const StudyLine* line : SampledLines(asked, table))
        if (const float number = PlottedNumber(asked, table, *line); !IsMissing(number)) numbers.push_back(number);
    std::ranges::sort(numbers);
    return numbers;
}

}  // namespace

Histogram HistogramOf(const StudyQuestion& asked, const StudyTable& table) {
    constexpr double kLeastBins = 4, kMostBins = 40;
    Histogram histogram;
    const std::vector<float> numbers = SampledNumbers(asked, table);
    histogram.Samples = numbers.size();
    if (numbers.empty()) return histogram;
    const double factor = asked.Drawn().Factor, least = static_cast<double>(numbers.front()) * factor,
                 greatest = static_cast<double>(numbers.back()) * factor;
    const double bins = std::clamp(std::ceil(std::sqrt(static_cast<double>(numbers.size()))), kLeastBins, kMostBins);
    const double span = greatest > least ? greatest - least : std::max(std::abs(least) * 1e-3, 1e-6);
    histogram.Width = RoundStep(span / bins);
    histogram.First = std::floor(least / histogram.Width) * histogram.Width;
    histogram.Counts.resize(static_cast<std::size_t>((greatest - histogram.First) / histogram.Width) + 1);
    for (const float number : numbers) {
        const double place = (static_cast<double>(number) * factor - histogram.First) / histogram.Width;
        ++histogram.Counts[std::min(static_cast<std::size_t>(std::max(place, 0.0)), histogram.Counts.size() - 1)];
    }
    return histogram;
}

ChartArguments HistogramChart(const StudyQuestion& asked, const Histogram& histogram) {
    std::vector<ChartColumn> columns = {{"", LineStyle::Solid, {}},
                                        {asked.Drawn().Short(), LineStyle::LinesNoMarkers, {}}};
    double most = 0;
    for (std::size_t i = 0; i < histogram.Counts.size(); ++i) {
        const double share = 100 * static_cast<double>(histogram.Counts[i]) /
                             static_cast<double>(std::max<std::size_t>(1, histogram.Samples));
        most = std::max(most, share);
        AddPoint(columns, 1, histogram.Edge(i), 0);
        AddPoint(columns, 1, histogram.Edge(i), share);
        AddPoint(columns, 1, histogram.Edge(i + 1), share);
        AddPoint(columns, 1, histogram.Edge(i + 1), 0);
    }
    if (const auto limit = asked.LimitNumber()) {
        const double shown = *limit * asked.Drawn().Factor;
        columns.push_back({LimitName(asked, shown), LineStyle::LinesNoMarkers,
                           std::vector<double>(columns[0].Values.size(), kEmptyCell)});
        AddPoint(columns, 2, shown, 0);
        AddPoint(columns, 2, shown, most);
    }
    return ChartOfColumns(Text(913325_text), ResultAxis(asked.Drawn()), AxisTitle(Text(913326_text), "n", "%"),
                          columns);
}

std::string HistogramText(const StudyQuestion& asked, const StudyTable& table) {
    const std::vector<float> numbers = SampledNumbers(asked, table);
    if (numbers.empty()) return {};
    const ResultChoice& drawn = asked.Drawn();
    const auto shown = [&](double number) {
        return Together(WithUnit(ShortNumber(number * drawn.Factor, 4), drawn.Unit));
    };
    const MeanAndDeviation of = MeanAndDeviationOf(numbers);
    std::string text = Text(913327_text, {{"|1", std::to_string(numbers.size())},
                                          {"|2", drawn.Short()},
                                          {"|3", shown(of.Mean)},
                                          {"|4", shown(of.Deviation)},
                                          {"|5", shown(SortedQuantile(numbers, 0.05))},
                                          {"|6", shown(SortedQuantile(numbers, 0.95))}});
    const auto limit = asked.LimitNumber();
    if (!limit) return text;
    const auto beyond = std::ranges::count_if(numbers, [&](float n) { return n > static_cast<float>(*limit); });
    const ShareBeyond share = ShareOfSamples(static_cast<std::uint64_t>(beyond), numbers.size());
    return text + " " +
           Text(913328_text, {{"|1", shown(*limit)},
                              {"|2", PerCentText(share.Share)},
                              {"|3", PerCentText(share.Low)},
                              {"|4", PerCentText(share.High)}});
}

}  // namespace lithmark
