#include "study/Crossings.h"

#include <algorithm>
#include <utility>

namespace lithmark {

namespace {

// To what part of a value a crossing is told.
constexpr double kCrossingPart = 1e-6;
// Rows that are searched at the same time, so that all workers are busy.
constexpr std::uint64_t kTogether = 256;

}  // namespace

struct CrossingSearch::Search {
    CrossedRow Row;
    std::vector<std::optional<Trial>> Points;
    std::vector<Bracket> Brackets;
};

CrossingSearch::CrossingSearch(const StudyPlan& plan, const SearchRange& range, std::size_t limited, float limit)
    : plan_(plan), range_(range), limited_(limited), limit_(limit) {}

std::optional<Trial> CrossingSearch::TrialOf(double value, const RowOutcome& outcome) const {
    if (outcome.Aborted || IsMissing(outcome.Numbers[limited_])) return std::nullopt;
    const double excess = static_cast<double>(outcome.Numbers[limited_]) - static_cast<double>(limit_);
    return Trial{value, excess, outcome.Numbers, outcome.Notices};
}

std::optional<Trial> CrossingSearch::Note(CrossedRow& row, double value, const RowOutcome& outcome) const {
    ++row.Tried;
    if (outcome.Aborted && row.Aborted++ == 0) row.Message = outcome.Message();
    return TrialOf(value, outcome);
}

bool CrossingSearch::RunSome(QuestionRows& rows, std::vector<Search>& searches) const {
    const std::vector<double>& points = range_.Points();
    const auto searchOf = [&](std::uint64_t i) -> Search& { return searches[i / points.size()]; };
    const bool tried = rows.Work(
        searches.size() * points.size(),
        [&](std::uint64_t i) { return range_.Set(searchOf(i).Row.Planned.Input, points[i % points.size()]); },
        [&](std::uint64_t i, const RowOutcome& outcome) {
            Search& search = searchOf(i);
            search.Points.push_back(Note(search.Row, points[i % points.size()], outcome));
        });
    if (!tried) return false;
    for (Search& search : searches)
        for (std::size_t i = 1; i < search.Points.size(); ++i) {
            const auto &low = search.Points[i - 1], &high = search.Points[i];
            if (low && high && low->Beyond() != high->Beyond())
                search.Brackets.emplace_back(range_, kCrossingPart, *low, *high);
        }
    for (;;) {
        struct Open {
            Search* Of;
            Bracket* Between;
            double Value;
        };
        std::vector<Open> open;
        for (Search& search : searches)
            for (Bracket& bracket : search.Brackets)
                if (const auto value = bracket.Next()) open.push_back({&search, &bracket, *value});
        if (open.empty()) return true;
        const bool drawn = rows.Work(
            open.size(), [&](std::uint64_t i) { return range_.Set(open[i].Of->Row.Planned.Input, open[i].Value); },
            [&](std::uint64_t i, const RowOutcome& outcome) {
                if (auto trial = Note(open[i].Of->Row, open[i].Value, outcome))
                    open[i].Between->Put(std::move(*trial));
                else
                    open[i].Between->End();
            });
        if (!drawn) return false;
    }
}

void CrossingSearch::Run(QuestionRows& rows, const std::function<void(const CrossedRow&)>& found) const {
    for (std::uint64_t first = 0; first < plan_.Count(); first += kTogether) {
        std::vector<Search> searches(std::min(kTogether, plan_.Count() - first));
        for (std::size_t i = 0; i < searches.size(); ++i) {
            searches[i].Row.Row = first + i + 1;
            searches[i].Row.Planned = plan_.Row(first + i);
        }
        if (!RunSome(rows, searches)) return;
        for (Search& search : searches) {
            for (const Bracket& bracket : search.Brackets)
                search.Row.Crossings.push_back({bracket.Inside(), bracket.BeyondAbove()});
            found(search.Row);
        }
    }
}

}  // namespace lithmark
