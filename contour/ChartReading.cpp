#include "contour/ChartReading.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "contour/AxisTicks.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

// In a line from right to left a number runs from left to right, with its unit unless that is a word of the language.
std::string WithUnit(const std::string& value, const std::string& unit) {
    std::string sign = unit.empty() ? value : value + " " + unit;
    if (!LanguageTexts().RightToLeft()) return sign;
    const bool word = !unit.empty() && static_cast<unsigned char>(unit.front()) >= 0x80;
    const auto apart = [](const std::string& text) { return "\u2066" + text + "\u2069"; };
    return word ? apart(value) + " " + unit : apart(sign);
}

int DecimalsIn(const std::string& cell, char decimalSign) {
    const std::size_t sign = cell.find(decimalSign);
    if (sign == std::string::npos || cell.find_first_of("eE") != std::string::npos) return 0;
    return static_cast<int>(cell.size() - sign - 1);
}

}  // namespace

ChartTurn TurnOf(const ChartArguments& chart) {
    if (chart.XTitle.starts_with(Text(300018_text))) return ChartTurn::Depth;
    for (const TextId settlement : {40081_text, 90046_text, 140186_text})
        if (chart.YTitle.starts_with(Text(settlement) + " ")) return ChartTurn::Settlements;
    return ChartTurn::None;
}

bool HasTimeAxis(const ChartArguments& chart) {
    return chart.XTitle.starts_with(Text(10247_text) + " ");
}

AxisWords WordsOf(const std::string& axisTitle) {
    AxisWords words{axisTitle, "", ""};
    const bool bracketed = axisTitle.ends_with(']');
    const std::size_t unit = bracketed ? axisTitle.rfind('[') : axisTitle.rfind(' ');
    if (unit == std::string::npos || unit == 0) return words;
    const std::string front = Trim(axisTitle.substr(0, unit));
    const std::size_t symbol = front.rfind(' ');
    if (symbol == std::string::npos) return words;
    words.Title = front.substr(0, symbol);
    words.Symbol = front.substr(symbol + 1);
    words.Unit = bracketed ? axisTitle.substr(unit + 1, axisTitle.size() - unit - 2) : axisTitle.substr(unit + 1);
    if (words.Unit == "-") words.Unit.clear();
    return words;
}

ChartReading::ChartReading(const ChartArguments& chart)
    : chart_(chart),
      x_(WordsOf(chart.XTitle)),
      y_(WordsOf(chart.YTitle)),
      rows_(chart.LastRow),
      curves_(chart.Curves),
      shown_(static_cast<std::size_t>(curves_), true) {
    numbers_.reserve(Index(rows_ * (curves_ + 1)));
    for (int row = 1; row <= rows_; ++row)
        for (int column = 1; column <= curves_ + 1; ++column)
            numbers_.push_back(ParseNumber(chart.Cells(row, column), SharedServices().DecimalSign).value_or(kNoNumber));
}

bool ChartReading::HasValue(int row) const {
    if (std::isnan(X(row))) return false;
    for (int curve = 1; curve <= curves_; ++curve)
        if (Shown(curve) && !std::isnan(Y(row, curve))) return true;
    return false;
}

std::optional<int> ChartReading::NearestRow(double x) const {
    std::optional<int> nearest;
    for (int row = 1; row <= rows_; ++row)
        if (HasValue(row) && (!nearest || std::abs(X(row) - x) < std::abs(X(*nearest) - x))) nearest = row;
    return nearest;
}

int ChartReading::LastAt(int row) const {
    int last = row;
    while (last < rows_ && X(last + 1) == X(row)) ++last;
    return last;
}

int ChartReading::NextPlace(int row, int by) const {
    int next = by > 0 ? LastAt(row) + 1 : row - 1;
    while (next >= 1 && next <= rows_ && !HasValue(next)) next += by > 0 ? 1 : -1;
    if (next < 1 || next > rows_) return row;
    while (next > 1 && X(next - 1) == X(next)) --next;
    return next;
}

std::string ChartReading::Cell(int row, int column) const {
    std::string cell = chart_.Cells(row, column + 1);
    std::replace(cell.begin(), cell.end(), SharedServices().DecimalSign, LanguageDecimalSign());
    return cell;
}

std::string ChartReading::ValuesAt(int row) const {
    const int last = LastAt(row);
    std::string values;
    // The unit stands once, behind the last value.
    int final = 0;
    for (int curve = 1; curve <= curves_; ++curve)
        if (Shown(curve) && !std::isnan(Y(row, curve))) final = curve;
    for (int curve = 1; curve <= final; ++curve) {
        if (!Shown(curve) || std::isnan(Y(row, curve))) continue;
        const auto value = [&](int at) { return WithUnit(Cell(at, curve), ""); };
        const auto closing = [&](int at) { return curve == final ? WithUnit(Cell(at, curve), y_.Unit) : value(at); };
        const bool jump = !std::isnan(Y(last, curve)) && Y(last, curve) != Y(row, curve);
        values += (values.empty() ? "" : Text(910011_text) + " ") + chart_.Legends(curve) + " " +
                  (jump ? Text(910006_text, {{"|1", value(row)}, {"|2", closing(last)}}) : closing(row));
    }
    return WithUnit(x_.Symbol + " = " + Cell(row, 0), x_.Unit) + ": " + values;
}

std::optional<ChartMark> ChartReading::NearestPoint(double x, double y, double xLength, double yLength) const {
    std::optional<ChartMark> nearest;
    double least = std::numeric_limits<double>::infinity();
    for (int row = 1; row <= rows_; ++row)
        for (int curve = 1; curve <= curves_; ++curve) {
            if (!Shown(curve)) continue;
            const double distance = std::hypot((X(row) - x) / xLength, (Y(row, curve) - y) / yLength);
            if (!(distance < least)) continue;  // a gap is nowhere near
            least = distance;
            nearest = ChartMark{row, curve};
        }
    return nearest;
}

std::string ChartReading::MarkText(const ChartMark& mark) const {
    return WithUnit(Cell(mark.Row, 0), x_.Unit) + Text(910011_text) + " " +
           WithUnit(Cell(mark.Row, mark.Curve), y_.Unit);
}

std::string ChartReading::Difference(int from, int to, int fromColumn, int toColumn) const {
    const char sign = LanguageDecimalSign();
    const int decimals = std::max(DecimalsIn(Cell(from, fromColumn), sign), DecimalsIn(Cell(to, toColumn), sign));
    return TickText(Number(to, toColumn) - Number(from, fromColumn), decimals, sign);
}

std::string ChartReading::DifferenceText(const ChartMark& from, const ChartMark& to) const {
    return WithUnit(Difference(from.Row, to.Row, 0, 0), x_.Unit) + Text(910011_text) + " " +
           WithUnit(Difference(from.Row, to.Row, from.Curve, to.Curve), y_.Unit);
}

std::string ChartReading::Summary() const {
    std::optional<ChartMark> least, greatest;
    std::optional<int> first, last;
    for (int row = 1; row <= rows_; ++row)
        for (int curve = 1; curve <= curves_; ++curve) {
            const double y = Y(row, curve);
            if (!Shown(curve) || std::isnan(X(row)) || std::isnan(y)) continue;
            if (!least || y < Y(least->Row, least->Curve)) least = ChartMark{row, curve};
            if (!greatest || y > Y(greatest->Row, greatest->Curve)) greatest = ChartMark{row, curve};
            if (!first || X(row) < X(*first)) first = row;
            if (!last || X(row) > X(*last)) last = row;
        }
    if (!least) return chart_.ChartTitle;
    return Text(910010_text, {{"|1", y_.Title},
                              {"|2", Cell(least->Row, least->Curve)},
                              {"|3", WithUnit(Cell(greatest->Row, greatest->Curve), y_.Unit)},
                              {"|4", x_.Title},
                              {"|5", Cell(*first, 0)},
                              {"|6", WithUnit(Cell(*last, 0), x_.Unit)}});
}

}  // namespace lithmark
