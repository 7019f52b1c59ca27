#include "study/StudyPlan.h"

#include <algorithm>
#include <set>
#include <utility>

#include "base/NumberText.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

// The place in the fastest dimension; what is left counts the slower ones.
std::uint64_t TakePart(std::uint64_t& rest, std::uint64_t size) {
    return std::exchange(rest, rest / size) % size;
}

}  // namespace

StudyPlan::StudyPlan(const StudyRequest& request) {
    for (const std::string& text : request.Cases) cases_.push_back(StudyCase::Parse(text));
    if (!request.Rows.empty()) rows_.emplace(request.Rows);
    for (const std::string& text : request.Vary) variations_.emplace_back(text);
    if (!request.Random.empty()) sampler_.emplace(request);
    if (rows_) fields_ = rows_->Fields();
    for (const Variation& variation : variations_) fields_.push_back(variation.Field());
    if (sampler_) fields_.insert(fields_.end(), sampler_->Fields().begin(), sampler_->Fields().end());
    CheckFields();
    count_ = Product();
}

// A field has one value in a row.
void StudyPlan::CheckFields() const {
    std::set<std::string> names;
    for (const StudyField& field : fields_)
        if (!names.insert(field.Name).second) FailRequest(908022_text, field.Name);
    std::set<std::string> caseNames;
    for (const StudyCase& each : cases_) {
        if (!caseNames.insert(each.Name).second) FailRequest(908023_text, each.Name);
        std::set<std::string> inCase = names;
        for (const FieldChange& change : each.Changes)
            if (!inCase.insert(change.Name).second) FailRequest(908022_text, change.Name);
    }
}

std::uint64_t StudyPlan::Product() const {
    std::uint64_t product = 1;
    const auto times = [&](std::uint64_t size) {
        if (size != 0 && product > kMostRows / size) FailRequest(902045_text, std::to_string(kMostRows));
        product *= size;
    };
    if (!cases_.empty()) times(cases_.size());
    if (rows_) times(rows_->Count());
    for (const Variation& variation : variations_) times(variation.Count());
    times(BlockSize());
    return product;
}

std::size_t StudyPlan::BlockFields() const noexcept {
    return fields_.size() - (sampler_ ? sampler_->Fields().size() : 0);
}

bool StudyPlan::Sets(std::string_view name) const {
    return std::ranges::find(fields_, name, &StudyField::Name) != fields_.end();
}

PlannedRow StudyPlan::Row(std::uint64_t row) const {
    PlannedRow planned;
    planned.Values.resize(fields_.size());
    std::size_t at = fields_.size();
    if (sampler_) {
        const std::vector<double> values = sampler_->Values(TakePart(row, sampler_->Count()));
        for (std::size_t i = values.size(); i-- > 0;) {
            --at;
            planned.Values[at] = ValueText(fields_[at], values[i]);
        }
    }
    for (std::size_t i = variations_.size(); i-- > 0;)
        planned.Values[--at] = variations_[i].Value(TakePart(row, variations_[i].Count()));
    if (rows_) {
        std::vector<std::string> values = rows_->Values(TakePart(row, rows_->Count()));
        std::move(values.begin(), values.end(), planned.Values.begin());
    }
    if (!cases_.empty()) {
        planned.Case = cases_[row].Name;
        planned.Input = cases_[row].Changes;
    }
    for (std::size_t i = 0; i < fields_.size(); ++i)
        if (!planned.Values[i].empty()) planned.Input.push_back({fields_[i].Name, planned.Values[i]});
    return planned;
}

}  // namespace lithmark
