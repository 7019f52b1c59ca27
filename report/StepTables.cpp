#include "report/StepTables.h"

#include <algorithm>
#include <cmath>

#include "services/texts/LanguageTexts.h"

namespace lithmark {

void StepTable::AddColumn(const Label& title, const std::string& symbol, const std::string& unit) {
    const auto* id = std::get_if<TextId>(&title);
    const auto* text = std::get_if<std::string>(&title);
    Columns.push_back({id != nullptr ? Text(*id) : text != nullptr ? *text : std::string(), symbol, unit});
}

std::string StepColumn::Head() const {
    std::string head = Title;
    for (const std::string* part : {&Symbol, &Unit})
        if (!part->empty()) head += (head.empty() ? "" : " ") + *part;
    return head;
}

double StepTable::SumOf(std::size_t column) const {
    double sum = 0;
    for (const auto& row : Rows)
        if (row[column].Number) sum += *row[column].Number;
    return sum;
}

void StepTable::AddSums(const std::vector<std::size_t>& columns) {
    StepSum sums{Text(907210_text), StepSum::Of::Column, std::vector<StepCell>(Columns.size() - 1)};
    for (const std::size_t column : columns) sums.Cells[column - 1] = SumOf(column);
    Sums.push_back(std::move(sums));
}

void StepTable::AddLine(const std::string& label, std::vector<StepCell> cells) {
    cells.resize(Columns.size() - 1);
    Sums.push_back({label, StepSum::Of::Something, std::move(cells)});
}

int DecimalsOf(const StepTable& table, std::size_t column) {
    constexpr int kSignificant = 7;  // digits of a Single
    double greatest = 0;
    bool whole = true;
    const auto look = [&](const StepCell& cell) {
        if (!cell.Number) return;
        greatest = std::max(greatest, std::abs(*cell.Number));
        whole = whole && *cell.Number == std::floor(*cell.Number);
    };
    for (const auto& row : table.Rows) look(row[column]);
    for (const StepSum& sum : table.Sums)
        if (column > 0 && sum.Kind == StepSum::Of::Column) look(sum.Cells[column - 1]);
    if (greatest == 0 || (whole && greatest < 1e7)) return 0;
    const int magnitude = static_cast<int>(std::floor(std::log10(greatest)));
    return magnitude < -4 || magnitude >= kSignificant ? -1 : std::max(0, kSignificant - 1 - magnitude);
}

StepTable& StepRecorder::Add(const std::string& title) {
    tables_.push_back({title, {}, {}, {}, {}});
    return tables_.back();
}

StepRecorder& Steps() {
    static StepRecorder recorder;
    return recorder;
}

}  // namespace lithmark
