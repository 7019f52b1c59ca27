#include "ui/model/TableEditing.h"

#include <algorithm>
#include <utility>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

using Block = std::vector<std::vector<std::string>>;

char Sign() {
    return SharedServices().DecimalSign;
}

std::vector<std::string> Split(const std::string& text, char at) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == at)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

Block BlockOf(const std::string& text) {
    std::vector<std::string> lines = Split(ReplaceAll(ReplaceAll(text, "\r\n", "\n"), "\r", "\n"), '\n');
    while (!lines.empty() && Trim(lines.back()).empty()) lines.pop_back();
    const char column = text.find('\t') != std::string::npos ? '\t' : ';';
    Block block;
    for (const std::string& line : lines) {
        block.emplace_back();
        for (const std::string& cell : Split(line, column)) block.back().push_back(Trim(cell));
    }
    return block;
}

// The decimal sign of a block: the one that alone occurs; the one in force where neither or both do.
char SignOf(const Block& block) {
    bool point = false, comma = false;
    for (const auto& row : block)
        for (const std::string& cell : row) {
            point = point || (cell.find('.') != std::string::npos && ParseNumber(cell, '.'));
            comma = comma || (cell.find(',') != std::string::npos && ParseNumber(cell, ','));
        }
    return point == comma ? Sign() : point ? '.' : ',';
}

bool HoldsNumber(const std::vector<std::string>& row, char sign) {
    return std::any_of(row.begin(), row.end(), [&](const std::string& cell) { return ParseNumber(cell, sign); });
}

std::string InSignInForce(const std::string& cell, char sign) {
    return ParseNumber(cell, sign) ? ReplaceAll(cell, std::string(1, sign), std::string(1, Sign())) : cell;
}

}  // namespace

TableEditing::TableEditing(TableEdit table) : table_(std::move(table)) {
    for (std::size_t r = 0; r < table_.Rows.size(); ++r) {
        cells_.emplace_back();
        for (std::size_t c = 0; c < table_.Columns.size(); ++c) {
            const bool exact = r < table_.Digits.size() && c < table_.Digits[r].size();
            cells_.back().push_back({table_.Rows[r].at(c), exact ? table_.Digits[r][c] : ""});
        }
    }
}

const TableEditing::CellState& TableEditing::At(int row, int column) const {
    return cells_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
}

// A value whose digits all show stands as it is shown, "42.0" and not "42".
std::string TableEditing::AllDigits(int row, int column) const {
    const CellState& cell = At(row, column);
    const auto exact = ParseNumber(cell.Digits), shown = ParseNumber(cell.Text, Sign());
    if (!exact || exact == shown) return cell.Text;
    const std::string digits = cell.Digits.starts_with('.') ? "0" + cell.Digits : cell.Digits;
    return ReplaceAll(digits, ".", std::string(1, Sign()));
}

std::optional<double> TableEditing::Number(int row, int column) const {
    return SharedServices().NumberOf(Cell(row, column));
}

std::optional<std::string> TableEditing::Fault(int row, int column) const {
    constexpr int kWhole = 1, kReal = 2;
    const TableEdit::Column& of = table_.Columns.at(static_cast<std::size_t>(column));
    const double lower = of.Accepts == TableEdit::Kind::Positive ? std::max(0.0, of.Lower) : of.Lower;
    return SharedServices().TextFault(Cell(row, column), of.Accepts == TableEdit::Kind::Whole ? kWhole : kReal,
                                      of.Upper, lower, Title(column));
}

std::optional<TableEditing::Place> TableEditing::FirstFault() const {
    for (int row = 0; row < Rows(); ++row)
        for (int column = 0; column < Columns(); ++column)
            if (Fault(row, column)) return Place{row, column};
    return std::nullopt;
}

void TableEditing::Remember() {
    undo_.push_back(cells_);
    redo_.clear();
}

void TableEditing::SetCell(int row, int column, const std::string& text) {
    if (Cell(row, column) == text) return;
    Remember();
    cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = {text, ""};
}

void TableEditing::AppendRows(const std::vector<std::vector<std::string>>& rows, bool replace) {
    Remember();
    if (replace) cells_.clear();
    for (const auto& row : rows) {
        cells_.emplace_back();
        for (const std::string& text : row) cells_.back().push_back({text, ""});
    }
}

std::vector<TableEditing::CellState> TableEditing::NewRow(int row) const {
    std::vector<CellState> cells(static_cast<std::size_t>(Columns()), {"0", ""});
    const bool counts = !cells.empty() && table_.Columns[0].Accepts == TableEdit::Kind::Whole;
    if (const auto former = counts && row > 0 ? Number(row - 1, 0) : std::nullopt)
        cells[0].Text = FormatNumber(*former + 1, "0", Sign());
    else if (counts)
        cells[0].Text = "1";
    return cells;
}

void TableEditing::InsertRow(int row) {
    Remember();
    cells_.insert(cells_.begin() + row, NewRow(row));
}

void TableEditing::DeleteRows(int first, int last) {
    if (first < 0 || last < first || last >= Rows() || last - first + 1 >= Rows()) return;
    Remember();
    cells_.erase(cells_.begin() + first, cells_.begin() + last + 1);
}

bool TableEditing::MoveRows(int first, int last, int by) {
    if (first < 0 || last < first || first + by < 0 || last + by >= Rows()) return false;
    Remember();
    if (by < 0)
        std::rotate(cells_.begin() + first - 1, cells_.begin() + first, cells_.begin() + last + 1);
    else
        std::rotate(cells_.begin() + first, cells_.begin() + last + 1, cells_.begin() + last + 2);
    return true;
}

std::string TableEditing::Copied(int firstRow, int firstColumn, int lastRow, int lastColumn) const {
    std::string text;
    for (int row = firstRow; row <= lastRow; ++row) {
        for (int column = firstColumn; column <= lastColumn; ++column)
            text += (column > firstColumn ? "\t" : "") + AllDigits(row, column);
        text += '\n';
    }
    return text;
}

std::string TableEditing::Paste(int row, int column, const std::string& text) {
    Block block = BlockOf(text);
    if (block.empty() || row < 0 || column < 0) return {};
    const char sign = SignOf(block);
    std::size_t head = 0;
    while (head < block.size() && !HoldsNumber(block[head], sign)) ++head;
    if (head == block.size()) head = 0;  // no numbers at all: the cells say so
    block.erase(block.begin(), block.begin() + static_cast<std::ptrdiff_t>(head));

    Remember();
    for (std::size_t r = 0; r < block.size(); ++r) {
        const int at = row + static_cast<int>(r);
        if (at == Rows()) cells_.push_back(NewRow(at));
        for (std::size_t c = 0; c < block[r].size() && column + static_cast<int>(c) < Columns(); ++c)
            cells_[static_cast<std::size_t>(at)][static_cast<std::size_t>(column) + c] = {
                InSignInForce(block[r][c], sign), ""};
    }
    std::string words = Text(906530_text, {{"|1", std::to_string(block.size())}});
    words += ", " + Text(sign == ',' ? 906531_text : 906532_text);
    if (head > 0) words += ", " + Text(906533_text);
    return words;
}

void TableEditing::Undo() {
    if (!CanUndo()) return;
    redo_.push_back(std::exchange(cells_, std::move(undo_.back())));
    undo_.pop_back();
}

void TableEditing::Redo() {
    if (!CanRedo()) return;
    undo_.push_back(std::exchange(cells_, std::move(redo_.back())));
    redo_.pop_back();
}

std::vector<std::vector<std::string>> TableEditing::Texts() const {
    std::vector<std::vector<std::string>> texts;
    for (const auto& row : cells_) {
        texts.emplace_back();
        for (const CellState& cell : row) texts.back().push_back(cell.Text);
    }
    return texts;
}

std::string TableEditing::Title(int column) const {
    return Split(table_.Columns.at(static_cast<std::size_t>(column)).Head, '\n').front();
}

}  // namespace lithmark
