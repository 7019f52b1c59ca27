#include "study/window/Points.h"

#include <algorithm>

#include "base/NumberText.h"
#include "services/texts/LanguageTexts.h"
#include "study/StudyField.h"
#include "study/StudyLine.h"
#include "study/window/ShortNumber.h"

namespace lithmark {

namespace {

TableEdit EditOf(const std::vector<FieldChoice>& coordinates) {
    TableEdit table;
    table.Title = Text(913270_text);
    table.RowHead = Text(913329_text);
    table.Rows.emplace_back();
    for (const FieldChoice& field : coordinates) {
        TableEdit::Column column;
        column.Head = field.Short() + "\n[" + (field.Unit.empty() ? "-" : field.Unit) + "]";
        column.Accepts = TableEdit::Kind::Real;
        column.Lower = field.Least;
        column.Upper = field.Greatest;
        table.Columns.push_back(column);
        table.Rows.front().push_back(ShortNumber(field.Value));
    }
    return table;
}

}  // namespace

PointsTable PointsTable::InPlainSymbols() const {
    PointsTable plain = *this;
    for (FieldChoice& coordinate : plain.coordinates_) coordinate.InPrint.clear();
    for (ResultChoice& result : plain.results_) result.InPrint.clear();
    return plain;
}

std::vector<double> EvenValues::All() const {
    std::vector<double> values;
    const int count = From == To ? 1 : std::max(1, Count);
    values.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        values.push_back(count == 1 ? From : From + (To - From) * i / static_cast<double>(count - 1));
    return values;
}

PointsTable::PointsTable(std::vector<FieldChoice> coordinates, std::vector<ResultChoice> results)
    : coordinates_(std::move(coordinates)),
      results_(std::move(results)),
      opened_(EditOf(coordinates_)),
      editing_(opened_) {}

bool PointsTable::Put(const std::vector<std::array<double, 3>>& points, bool replace) {
    const std::size_t present = replace ? 0 : static_cast<std::size_t>(editing_.Rows());
    if (points.empty() || present + points.size() > static_cast<std::size_t>(kMostPoints)) return false;
    std::vector<std::vector<std::string>> rows;
    for (const auto& point : points) {
        rows.emplace_back();
        for (const double value : point) rows.back().push_back(ShortNumber(value));
    }
    editing_.AppendRows(rows, replace);
    return true;
}

bool PointsTable::AddGrid(const std::array<EvenValues, 3>& values, bool replace) {
    std::array<std::vector<double>, 3> all;
    double count = 1;
    for (std::size_t i = 0; i < all.size(); ++i) {
        count *= std::max(1, values[i].Count);
        if (count > kMostPoints) return false;
        all[i] = values[i].All();
    }
    std::vector<std::array<double, 3>> points;
    for (const double x : all[0])
        for (const double y : all[1])
            for (const double z : all[2]) points.push_back({x, y, z});
    return Put(points, replace);
}

bool PointsTable::AddLine(const std::array<double, 3>& from, const std::array<double, 3>& to, int count, bool replace) {
    if (count < 2 || count > kMostPoints) return false;
    std::vector<std::array<double, 3>> points;
    for (int i = 0; i < count; ++i) {
        points.emplace_back();
        for (std::size_t c = 0; c < from.size(); ++c)
            points.back()[c] = from[c] + (to[c] - from[c]) * i / static_cast<double>(count - 1);
    }
    return Put(points, replace);
}

std::optional<std::string> PointsTable::Fault(int row) const {
    for (int column = 0; column < editing_.Columns(); ++column)
        if (auto fault = editing_.Fault(row, column)) return fault;
    return std::nullopt;
}

std::vector<int> PointsTable::GoodRows() const {
    std::vector<int> rows;
    for (int row = 0; row < editing_.Rows(); ++row)
        if (!Fault(row)) rows.push_back(row);
    return rows;
}

std::string PointsTable::RowsCsv() const {
    std::vector<std::string> head;
    for (const FieldChoice& field : coordinates_) head.push_back(field.Name);
    std::string csv = CsvRecord(head);
    for (const int row : GoodRows()) {
        std::vector<std::string> cells;
        for (std::size_t c = 0; c < coordinates_.size(); ++c)
            cells.push_back(ValueText({coordinates_[c].Name, FieldKind::Number},
                                      editing_.Number(row, static_cast<int>(c)).value_or(0) / coordinates_[c].Factor));
        csv += CsvRecord(cells);
    }
    return csv;
}

StudyRequest PointsTable::Request(const std::string& rowsFile) const {
    StudyRequest request;
    request.Rows = rowsFile;
    for (const ResultChoice& result : results_) request.Take.push_back(result.Take);
    return request;
}

}  // namespace lithmark
