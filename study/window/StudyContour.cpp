#include "study/window/StudyContour.h"

#include "core/Session.h"
#include "services/texts/LanguageTexts.h"
#include "study/window/ChartColumns.h"
#include "study/window/ShortNumber.h"

namespace lithmark {

namespace {

constexpr int kContourDigits = 4;

std::string AxisOf(const FieldChoice& field) {
    return AxisTitle(field.Label, field.Short(), field.Unit);
}

std::string FieldAndValue(const FieldChoice& field, double value) {
    return field.Short() + " = " + WithUnit(PictureNumber(value, kContourDigits), field.Unit);
}

}  // namespace

std::optional<FieldChart> ContourOf(const StudyQuestion& asked, const StudyCurves& curves) {
    const FieldChoice *first = asked.FirstVaried(), *second = asked.SecondVaried();
    if (first == nullptr || second == nullptr) return std::nullopt;
    std::vector<std::vector<double>> values;
    for (const StudyCurve& curve : curves.Curves) values.push_back(curve.Y);
    const auto triangles = TrianglesOfGrid(curves.X, curves.Family, values);
    if (triangles.empty()) return std::nullopt;
    const ResultChoice& drawn = asked.Drawn();
    FieldChart chart(FieldPlot{triangles});
    chart.Left = curves.X.front();
    chart.Right = curves.X.back();
    chart.Bottom = curves.Family.front();
    chart.Top = curves.Family.back();
    chart.XTitle = AxisOf(*first);
    chart.YTitle = AxisOf(*second);
    chart.ValueTitle = AxisTitle(drawn.Label, drawn.Short(), drawn.Unit);
    chart.Title = chart.ValueTitle + "   " + Session.ProjectName;
    if (curves.Limit) {
        chart.Limit = curves.Limit;
        chart.LimitName = Text(913317_text, {{"|1", Together(WithUnit(PictureNumber(*curves.Limit), drawn.Unit))}});
    }
    const auto inside = [](double value, double from, double to) { return from <= value && value <= to; };
    if (curves.PresentX && inside(*curves.PresentX, chart.Left, chart.Right) &&
        inside(second->Value, chart.Bottom, chart.Top)) {
        chart.Present = FieldPoint{*curves.PresentX, second->Value};
        chart.PresentName =
            Text(913318_text) + ": " + Together(WithUnit(PictureNumber(*curves.PresentY, kContourDigits), drawn.Unit));
    }
    return chart;
}

std::string UnderContour(const StudyQuestion& asked, const FieldChart& chart, const FieldPoint& at) {
    std::string text = FieldAndValue(*asked.FirstVaried(), at.X) + ", " + FieldAndValue(*asked.SecondVaried(), at.Y);
    const ResultChoice& drawn = asked.Drawn();
    if (const auto value = chart.Field.ValueAt(at))
        text += ": " + drawn.Short() + " = " + WithUnit(PictureNumber(*value, kContourDigits), drawn.Unit);
    return text;
}

std::string ContourWords(const StudyQuestion& asked, const FieldChart& chart) {
    const ResultChoice& drawn = asked.Drawn();
    const auto range = [](const std::string& what, double from, double to, const std::string& unit) {
        return Text(913257_text, {{"|1", what},
                                  {"|2", PictureNumber(from, kContourDigits)},
                                  {"|3", WithUnit(PictureNumber(to, kContourDigits), unit)}});
    };
    const FieldChoice &first = *asked.FirstVaried(), &second = *asked.SecondVaried();
    return range(drawn.Short(), chart.Field.Least(), chart.Field.Greatest(), drawn.Unit) + "; " +
           range(first.Short(), chart.Left, chart.Right, first.Unit) + "; " +
           range(second.Short(), chart.Bottom, chart.Top, second.Unit);
}

}  // namespace lithmark
