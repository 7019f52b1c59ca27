#include "ui/model/TableRows.h"

#include "base/Failure.h"
#include "base/NumberText.h"
#include "core/Units.h"
#include "services/SharedServices.h"
#include "services/host/Host.h"
#include "ui/model/UnsavedTable.h"

namespace lithmark {

namespace {

double CellNumber(const std::string& cell) {
    const auto number = SharedServices().NumberOf(cell);
    if (!number) Fail(FailureKind::InvalidArgument);
    return *number;
}

Single Stored(double value, Single) {
    return value;
}
Integer Stored(double value, Integer) {
    return Integer::Rounded(value);
}

template <typename First>
bool Edit(TextId title, TextId help, const std::string& rowHead, const EditedColumn& first, const EditedColumn& second,
          Integer& count, Array<First>& times, Array<Single>& values) {
    TableEdit table;
    table.Title = Text(title);
    table.Help = Text(help);
    table.RowHead = rowHead;
    table.Columns = {first.Head, second.Head};
    for (int row = 1; row <= count; ++row) {
        table.Rows.push_back({FormatValue(times(row), first.Format), FormatValue(values(row), second.Format)});
        table.Digits.push_back({NumberToText(times(row)), NumberToText(values(row))});
    }
    OfferUnsavedRows(table);
    if (!CurrentHost().EditTable(table)) return false;

    const int rows = static_cast<int>(table.Rows.size());
    const Integer newCount = rows;
    Array<First> newTimes(1, rows);
    Array<Single> newValues(1, rows);
    for (int row = 1; row <= rows; ++row) {
        const auto& cells = table.Rows[static_cast<std::size_t>(row - 1)];
        newTimes(row) = Stored(CellNumber(FormatValue(CellNumber(cells.at(0)), first.Format)), First());
        newValues(row) = CellNumber(FormatValue(CellNumber(cells.at(1)), second.Format));
    }
    count = newCount;
    times = std::move(newTimes);
    values = std::move(newValues);
    DropUnsavedRows(table);
    return true;
}

}  // namespace

EditedColumn::EditedColumn(const std::string& head, const std::string& format, TableEdit::Kind accepts, double lower,
                           double upper)
    : Format(format) {
    Head.Head = head;
    Head.Accepts = accepts;
    Head.Lower = lower;
    Head.Upper = upper;
}

std::string TableHead(TextId title, const std::string& symbol, const std::string& unit) {
    return Text(title) + "\n" + symbol + "\n" + unit;
}

bool EditRows(TextId title, TextId help, const std::string& rowHead, const EditedColumn& first,
              const EditedColumn& second, Integer& count, Array<Integer>& times, Array<Single>& values) {
    return Edit(title, help, rowHead, first, second, count, times, values);
}

bool EditRows(TextId title, TextId help, const std::string& rowHead, const EditedColumn& first,
              const EditedColumn& second, Integer& count, Array<Single>& times, Array<Single>& values) {
    return Edit(title, help, rowHead, first, second, count, times, values);
}

}  // namespace lithmark
