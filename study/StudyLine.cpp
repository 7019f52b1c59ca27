#include "study/StudyLine.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "services/texts/LanguageTexts.h"
#include "study/CsvText.h"

namespace lithmark {

std::vector<std::string> StudyHead::Columns() const {
    std::vector<std::string> columns = {"Row"};
    if (Cases) columns.emplace_back("Case");
    for (const StudyField& field : Fields) columns.push_back(field.Name);
    for (const Take& take : Takes) {
        const bool taken = std::ranges::find(columns, take.Name) != columns.end();
        columns.push_back(taken ? "result(" + take.Name + ")" : take.Name);
    }
    columns.insert(columns.end(), {"Status", "Notices", "Study"});
    return columns;
}

StudyLine LineOf(std::uint64_t row, PlannedRow planned, const RowOutcome& outcome, const StudyHead& head) {
    StudyLine line;
    line.Row = row;
    line.Case = std::move(planned.Case);
    line.Values = std::move(planned.Values);
    line.Numbers = outcome.Numbers;
    line.Numbers.resize(head.Takes.size(), kMissing);
    const std::string message = outcome.Message();
    if (!outcome.Aborted)
        line.Status = message.empty() ? "ok" : "ok: " + message;
    else
        line.Status = message.empty() ? Text(908024_text) : message;
    line.Notices = outcome.Notices;
    return line;
}

std::vector<std::string> CellsOf(const StudyHead& head, const StudyLine& line) {
    std::vector<std::string> cells = {std::to_string(line.Row)};
    if (head.Cases) cells.push_back(line.Case);
    cells.insert(cells.end(), line.Values.begin(), line.Values.end());
    for (const float number : line.Numbers) cells.push_back(IsMissing(number) ? "" : JsonNumber(Single(number)));
    cells.insert(cells.end(), {line.Status, line.Notices, head.Study});
    return cells;
}

std::optional<StudyLine> LineOfCells(const StudyHead& head, std::vector<std::string> cells) {
    const std::size_t fields = head.Fields.size(), takes = head.Takes.size();
    if (cells.size() != 1 + (head.Cases ? 1 : 0) + fields + takes + 3) return std::nullopt;
    StudyLine line;
    auto cell = cells.begin();
    const auto [end, error] = std::from_chars(cell->data(), cell->data() + cell->size(), line.Row);
    if (error != std::errc{} || end != cell->data() + cell->size() || line.Row == 0) return std::nullopt;
    ++cell;
    if (head.Cases) line.Case = std::move(*cell++);
    for (std::size_t i = 0; i < fields; ++i) line.Values.push_back(std::move(*cell++));
    for (std::size_t i = 0; i < takes; ++i, ++cell) {
        const auto number = ParseNumber(*cell);
        if (!cell->empty() && !number) return std::nullopt;
        line.Numbers.push_back(number ? static_cast<float>(*number) : kMissing);
    }
    line.Status = std::move(*cell++);
    line.Notices = std::move(*cell);
    if (line.Status.empty()) return std::nullopt;
    return line;
}

std::string CsvRecord(const std::vector<std::string>& cells) {
    std::string record;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (i > 0) record += ',';
        record += CsvCell(cells[i]);
    }
    return record + "\r\n";
}

std::string JsonRecord(const StudyHead& head, const StudyLine& line) {
    const std::vector<std::string> columns = head.Columns(), cells = CellsOf(head, line);
    const std::size_t firstField = head.Cases ? 2 : 1, firstTake = firstField + head.Fields.size();
    const std::size_t status = firstTake + head.Takes.size();
    const auto isNumber = [&](std::size_t i) {
        if (i == 0 || (i >= firstTake && i < status)) return true;
        return i >= firstField && i < firstTake && head.Fields[i - firstField].Numeric() && ParseNumber(cells[i]);
    };
    const auto isValue = [&](std::size_t i) { return i >= firstField && i < status; };
    std::string record = "{";
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (i > 0) record += ',';
        record += JsonString(columns[i]) + ":";
        record += cells[i].empty() && isValue(i) ? "null" : isNumber(i) ? cells[i] : JsonString(cells[i]);
    }
    return record + "}";
}

std::string JsonString(std::string_view text) {
    constexpr std::string_view kHex = "0123456789abcdef";
    std::string quoted = "\"";
    const bool whole = IsUtf8(text);
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            quoted += '\\';
            quoted += c;
        } else if (byte < 0x20) {
            quoted += "\\u00";
            quoted += kHex[byte >> 4];
            quoted += kHex[byte & 15];
        } else {
            quoted += byte < 0x80 || whole ? std::string(1, c) : std::string("\uFFFD");
        }
    }
    return quoted + "\"";
}

namespace {

// Takes the objects that JsonRecord writes apart.
class RecordReader {
  public:
    explicit RecordReader(std::string_view text) : rest_(text) {}

    bool Take(char c) {
        if (!rest_.starts_with(c)) return false;
        rest_.remove_prefix(1);
        return true;
    }
    bool AtEnd() const { return rest_.empty(); }
    std::optional<std::string> Quoted() {
        if (!Take('"')) return std::nullopt;
        std::string text;
        while (!rest_.empty()) {
            const char c = rest_.front();
            rest_.remove_prefix(1);
            if (c == '"') return text;
            if (c != '\\') {
                text += c;
            } else if (!Escape(text)) {
                return std::nullopt;
            }
        }
        return std::nullopt;
    }
    // A text, a number as it stands, or null as an empty text.
    std::optional<std::string> Value() {
        if (rest_.starts_with('"')) return Quoted();
        const std::string word(rest_.substr(0, rest_.find_first_of(",}")));
        rest_.remove_prefix(word.size());
        if (word == "null") return std::string();
        return ParseNumber(word) ? std::optional(word) : std::nullopt;
    }

  private:
    bool Escape(std::string& text) {
        if (rest_.empty()) return false;
        const char c = rest_.front();
        rest_.remove_prefix(1);
        if (c != 'u') {
            text += c;
            return c == '"' || c == '\\' || c == '/';
        }
        unsigned code = 0;
        const std::string_view digits = rest_.substr(0, 4);
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
        if (error != std::errc{} || end != digits.data() + 4) return false;
        rest_.remove_prefix(4);
        AppendCodePoint(text, code);
        return true;
    }

    std::string_view rest_;
};

}  // namespace

std::optional<std::vector<std::string>> JsonCells(std::string_view record, const std::vector<std::string>& keys) {
    RecordReader reader(record);
    std::vector<std::string> cells;
    for (const std::string& key : keys) {
        if (!reader.Take(cells.empty() ? '{' : ',') || reader.Quoted() != key || !reader.Take(':')) return std::nullopt;
        auto value = reader.Value();
        if (!value) return std::nullopt;
        cells.push_back(std::move(*value));
    }
    if (!reader.Take('}') || !reader.AtEnd()) return std::nullopt;
    return cells;
}

}  // namespace lithmark
