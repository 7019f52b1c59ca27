#include "study/ShareSearch.h"

#include <utility>

#include "base/NumberText.h"
#include "study/Bracket.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

// To what part of a value the answer is told; the samples leave more open than that.
constexpr double kAnswerPart = 1e-4;

}  // namespace

ShareSearch::ShareSearch(const StudyPlan& plan, const SearchRange& range, float limit, double share)
    : plan_(plan), range_(range), limit_(limit), share_(share) {}

double ShareSearch::ParseShare(const std::string& text) {
    const bool percent = text.ends_with('%');
    const auto number = ParseNumber(percent ? text.substr(0, text.size() - 1) : text);
    const double share = number ? *number / (percent ? 100 : 1) : -1;
    if (!(share >= 0 && share <= 1)) FailRequest(908301_text, text);
    return share;
}

bool ShareSearch::WorkValues(QuestionRows& rows, ShareRow& row, const std::vector<double>& values,
                             Shares& shares) const {
    const std::uint64_t samples = plan_.BlockSize(), first = (row.Row - 1) * samples;
    const std::uint64_t copy = plan_.Samples()->CopySize();
    std::vector<CopyCount> copies;
    return rows.Work(
        values.size() * samples,
        [&](std::uint64_t i) { return range_.Set(plan_.Row(first + i % samples).Input, values[i / samples]); },
        [&](std::uint64_t i, const RowOutcome& outcome) {
            if (i % samples == 0) copies.assign(samples / copy, {});
            ++row.Tried;
            if (outcome.Aborted && row.Aborted++ == 0) row.Message = outcome.Message();
            CopyCount& count = copies[i % samples / copy];
            ++count.Count;
            if (outcome.Aborted || !(outcome.Numbers[0] <= limit_)) ++count.Beyond;
            if (i % samples + 1 == samples) shares[values[i / samples]] = ShareOfCopies(copies);
        });
}

std::optional<double> ShareSearch::Smallest(QuestionRows& rows, ShareRow& row, Measure measure, Shares& shares) const {
    const std::vector<double>& points = range_.Points();
    const auto trial = [&](double value) { return Trial{value, shares.at(value).*measure - share_, {}, {}}; };
    std::size_t i = 0;
    while (i < points.size() && trial(points[i]).Beyond()) ++i;
    if (i == points.size()) return std::nullopt;
    if (i == 0) return points.front();
    Bracket bracket(range_, kAnswerPart, trial(points[i - 1]), trial(points[i]));
    while (const auto value = bracket.Next()) {
        if (!shares.contains(*value) && !WorkValues(rows, row, {*value}, shares)) return std::nullopt;
        bracket.Put(trial(*value));
    }
    return bracket.Inside().Value;
}

void ShareSearch::Run(QuestionRows& rows, const std::function<void(const ShareRow&)>& found) const {
    const std::uint64_t blocks = plan_.Count() / plan_.BlockSize();
    for (std::uint64_t block = 1; block <= blocks; ++block) {
        ShareRow row;
        row.Row = block;
        row.Planned = plan_.Row((block - 1) * plan_.BlockSize());
        Shares shares;
        if (!WorkValues(rows, row, range_.Points(), shares)) return;
        row.Value = Smallest(rows, row, &ShareBeyond::Share, shares);
        row.Low = Smallest(rows, row, &ShareBeyond::Low, shares);
        row.High = Smallest(rows, row, &ShareBeyond::High, shares);
        if (rows.Ended()) return;
        if (row.Value) row.Share = shares.at(*row.Value);
        found(row);
    }
}

}  // namespace lithmark
