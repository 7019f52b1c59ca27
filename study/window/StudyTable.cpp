#include "study/window/StudyTable.h"

#include <algorithm>

#include "study/CsvText.h"
#include "study/StudyFailure.h"
#include "study/StudyPlan.h"
#include "study/StudyTakes.h"

namespace lithmark {

StudyTable::StudyTable(const StudyRequest& request) {
    const StudyPlan plan(request);
    head_ = {!plan.Cases().empty(), plan.Fields(), TakesOf(request), {}};
    wanted_ = plan.Count();
}

void StudyTable::Append(std::string_view bytes) {
    text_ += bytes;
    CsvReader reader(std::string_view(text_).substr(whole_));
    const std::size_t start = whole_;
    while (auto cells = reader.Next(false)) {
        const bool first = whole_ == 0;
        whole_ = start + reader.At();
        if (first) {
            if (*cells != head_.Columns()) FailStudyFile(913312_text, cells->front());
            continue;
        }
        const std::string row = cells->front();
        auto line = LineOfCells(head_, std::move(*cells));
        if (!line) FailStudyFile(913312_text, row);
        lines_.push_back(std::move(*line));
    }
}

int StudyTable::PlaceOfTake(std::string_view take) const {
    const auto found = std::ranges::find(head_.Takes, take, &Take::Name);
    return found == head_.Takes.end() ? -1 : static_cast<int>(found - head_.Takes.begin());
}

int StudyTable::PlaceOfField(std::string_view field) const {
    const auto found = std::ranges::find(head_.Fields, field, &StudyField::Name);
    return found == head_.Fields.end() ? -1 : static_cast<int>(found - head_.Fields.begin());
}

int StudyTable::Aborted() const noexcept {
    return static_cast<int>(std::ranges::count_if(lines_, &StudyLine::Aborted));
}

std::vector<std::vector<std::string>> StudyTable::Cells() const {
    const std::string csv = Csv();
    CsvReader reader(csv);
    std::vector<std::vector<std::string>> cells;
    while (auto row = reader.Next(true)) cells.push_back(std::move(*row));
    return cells;
}

StudyAnswer::StudyAnswer(std::string_view csv) {
    CsvReader reader(csv);
    if (auto head = reader.Next(true)) Head = std::move(*head);
    while (auto row = reader.Next(true))
        if (row->size() == Head.size()) Rows.push_back(std::move(*row));
}

std::string StudyAnswer::Cell(std::size_t row, std::string_view head) const {
    const auto found = std::ranges::find(Head, head);
    return found == Head.end() ? std::string() : Rows.at(row)[static_cast<std::size_t>(found - Head.begin())];
}

}  // namespace lithmark
