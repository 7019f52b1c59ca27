// The points of a stress, strain or displacement problem as a table: typed, pasted, filled by a grid, a line or depths
// below a point, and worked as rows of a study.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "study/StudyRequest.h"
#include "study/window/FieldChoices.h"
#include "study/window/ResultChoices.h"
#include "study/window/StudyTable.h"
#include "ui/model/TableEditing.h"

namespace lithmark {

// Even values from one end to the other; one value where both ends are the same.
struct EvenValues {
    double From = 0, To = 0;
    int Count = 1;

    std::vector<double> All() const;
};

class PointsTable {
  public:
    static constexpr int kMostPoints = 10000;

    // The fields x, y and z of the dialog, whose point is the first one.
    PointsTable(std::vector<FieldChoice> coordinates, std::vector<ResultChoice> results);

    // What is edited, as it was opened: the dialog's point.
    const TableEdit& Opened() const noexcept { return opened_; }
    TableEditing& Editing() noexcept { return editing_; }
    const TableEditing& Editing() const noexcept { return editing_; }
    const std::vector<FieldChoice>& Coordinates() const noexcept { return coordinates_; }
    const std::vector<ResultChoice>& Results() const noexcept { return results_; }
    // The same points in the symbols of reports, as files have them.
    PointsTable InPlainSymbols() const;

    // All points of the values, z fastest, then y; in place of the present points or behind them. False, and nothing
    // changed, where they would be too many.
    bool AddGrid(const std::array<EvenValues, 3>& values, bool replace);
    // Even steps from the one point to the other.
    bool AddLine(const std::array<double, 3>& from, const std::array<double, 3>& to, int count, bool replace);

    // Why a row cannot be worked: "y: ..."; nothing when it can.
    std::optional<std::string> Fault(int row) const;
    // Rows that can be worked, by their places in the table; the study's rows in order.
    std::vector<int> GoodRows() const;
    // A table of them for --rows, in base units.
    std::string RowsCsv() const;
    // All results of the rows of a file.
    StudyRequest Request(const std::string& rowsFile) const;

    // Number of a coordinate in the unit of the window; nothing where the cell holds none.
    std::optional<double> Coordinate(int row, int column) const { return editing_.Number(row, column); }

  private:
    bool Put(const std::vector<std::array<double, 3>>& points, bool replace);

    std::vector<FieldChoice> coordinates_;
    std::vector<ResultChoice> results_;
    TableEdit opened_;
    TableEditing editing_;
};

}  // namespace lithmark
