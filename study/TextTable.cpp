#include "study/TextTable.h"

#include <cmath>

#include "base/NumberText.h"
#include "study/StudyLine.h"

namespace lithmark {

TableCell TableCell::OfNumber(double value) {
    if (!std::isfinite(static_cast<float>(value))) return Empty();
    return {JsonNumber(Single(value)), true};
}

TableCell TableCell::OfValue(std::string text, bool numeric) {
    const bool number = numeric && (text.empty() || ParseNumber(text));
    return {std::move(text), number};
}

std::string TextTable::Csv() const {
    std::string csv;
    for (const auto& row : Texts()) csv += CsvRecord(row);
    return csv;
}

std::string TextTable::Object(const std::vector<TableCell>& row) const {
    std::string object = "{";
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (i > 0) object += ',';
        object += JsonString(Columns[i]) + ":";
        object += !row[i].Number ? JsonString(row[i].Text) : row[i].Text.empty() ? "null" : row[i].Text;
    }
    return object + "}";
}

std::string TextTable::Json() const {
    std::string json = "[";
    for (const auto& row : Rows) json += (json.size() > 1 ? ",\n" : "\n") + Object(row);
    return json + "\n]\n";
}

std::string TextTable::JsonLines() const {
    std::string lines;
    for (const auto& row : Rows) lines += Object(row) + "\n";
    return lines;
}

std::vector<std::vector<std::string>> TextTable::Texts() const {
    std::vector<std::vector<std::string>> texts = {Columns};
    for (const auto& row : Rows) {
        texts.emplace_back();
        for (const TableCell& cell : row) texts.back().push_back(cell.Text);
    }
    return texts;
}

}  // namespace lithmark
