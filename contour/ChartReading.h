// ChartReading: the curves of a chart as numbers, and what can be read off them: the values at a place, two marks and
// their difference. The table's own digits are shown, not values in between.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "services/host/Charting.h"

namespace lithmark {

// How engineers draw a chart otherwise: settlements downward; pressures over a depth that points downward, so that the
// axes change places.
enum class ChartTurn { None, Settlements, Depth };
ChartTurn TurnOf(const ChartArguments& chart);

// The axis of the first column counts time units.
bool HasTimeAxis(const ChartArguments& chart);

// An axis title "title symbol unit" in its parts; the unit without its brackets.
struct AxisWords {
    std::string Title, Symbol, Unit;
};
AxisWords WordsOf(const std::string& axisTitle);

// A row of the table and one of its curves, from 1.
struct ChartMark {
    int Row = 0, Curve = 0;
    bool operator==(const ChartMark&) const = default;
};

class ChartReading {
  public:
    explicit ChartReading(const ChartArguments& chart);

    int Rows() const noexcept { return rows_; }
    int Curves() const noexcept { return curves_; }
    // NaN where a cell holds no number.
    double X(int row) const { return Number(row, 0); }
    double Y(int row, int curve) const { return Number(row, curve); }

    bool Shown(int curve) const { return shown_[Index(curve - 1)]; }
    void Show(int curve, bool on) { shown_[Index(curve - 1)] = on; }

    // The first row at the place nearest to x where a shown curve has a value; nothing without such rows.
    std::optional<int> NearestRow(double x) const;
    // The row of the next place to the right (by > 0) or to the left, the row itself at the end.
    int NextPlace(int row, int by) const;
    // "t = 9 days: computed 9.87, corrected 10.22 cm"; both values at a jump.
    std::string ValuesAt(int row) const;

    // The point of a shown curve nearest to (x, y), both counted in the given lengths.
    std::optional<ChartMark> NearestPoint(double x, double y, double xLength, double yLength) const;
    // "9 days, 9.87 cm"
    std::string MarkText(const ChartMark& mark) const;
    // From the first mark to the second, with the digits of the table: "14 days, 5.95 cm".
    std::string DifferenceText(const ChartMark& from, const ChartMark& to) const;

    // In one sentence, for who cannot see it: the ranges of place and values.
    std::string Summary() const;

  private:
    static std::size_t Index(int i) { return static_cast<std::size_t>(i); }
    double Number(int row, int column) const { return numbers_[Index((row - 1) * (curves_ + 1) + column)]; }
    // The cell as it is shown, with the decimal sign of the language.
    std::string Cell(int row, int column) const;
    bool HasValue(int row) const;
    // The last row at the place of a row; the rows of a jump follow each other.
    int LastAt(int row) const;
    std::string Difference(int from, int to, int fromColumn, int toColumn) const;

    const ChartArguments chart_;
    const AxisWords x_, y_;
    int rows_, curves_;
    std::vector<double> numbers_;
    std::vector<bool> shown_;
};

}  // namespace lithmark
