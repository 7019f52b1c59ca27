#include "study/Tornado.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lithmark {

namespace {

constexpr double kLowShare = 0.05, kHighShare = 0.95;

// What moves, from where to where, and what the field is in the middle (empty: as the project has it).
struct Mover {
    StudyField Field;
    std::string Low, Middle, High;
};

std::vector<Mover> MoversOf(const StudyPlan& plan) {
    std::vector<Mover> movers;
    for (const Variation& variation : plan.Variations()) {
        const StudyField& field = variation.Field();
        movers.push_back({field, ValueText(field, variation.Least()), {}, ValueText(field, variation.Greatest())});
    }
    if (!plan.Samples()) return movers;
    const std::vector<StudyField>& fields = plan.Samples()->Fields();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const auto at = [&](double share) {
            return ValueText(fields[i], plan.Samples()->DistributionOf(i).Quantile(share));
        };
        movers.push_back({fields[i], at(kLowShare), at(0.5), at(kHighShare)});
    }
    return movers;
}

// Row 0 has all in the middle; then each field low and high.
RowInput InputOf(const RowInput& start, const std::vector<Mover>& movers, std::size_t row) {
    RowInput input = start;
    for (std::size_t i = 0; i < movers.size(); ++i) {
        const Mover& mover = movers[i];
        const std::string& value = row == 2 * i + 1 ? mover.Low : row == 2 * i + 2 ? mover.High : mover.Middle;
        if (!value.empty()) input.push_back({mover.Field.Name, value});
    }
    return input;
}

}  // namespace

float Influence::Swing() const {
    return std::abs(AtHigh - AtLow);
}

std::vector<Tornado> WorkTornados(const StudyPlan& plan, const std::vector<Take>& takes, QuestionRows& rows,
                                  StudyTally& tally) {
    const std::vector<Mover> movers = MoversOf(plan);
    std::vector<StudyCase> cases = plan.Cases();
    if (cases.empty()) cases.emplace_back();
    std::vector<Tornado> tornados;
    for (const StudyCase& each : cases) {
        std::vector<std::vector<float>> numbers;  // by row
        const bool worked = rows.Work(
            2 * movers.size() + 1, [&](std::uint64_t row) { return InputOf(each.Changes, movers, row); },
            [&](std::uint64_t, const RowOutcome& outcome) {
                tally.Add(outcome.Aborted, outcome.Message());
                numbers.push_back(outcome.Numbers);
                numbers.back().resize(takes.size(), kMissing);
            });
        if (!worked) break;
        for (std::size_t take = 0; take < takes.size(); ++take) {
            Tornado tornado{each.Name, takes[take].Name, numbers[0][take], {}};
            for (std::size_t i = 0; i < movers.size(); ++i)
                tornado.Influences.push_back({movers[i].Field.Name, movers[i].Low, movers[i].High,
                                              numbers[2 * i + 1][take], numbers[2 * i + 2][take]});
            std::ranges::stable_sort(tornado.Influences, [](const Influence& a, const Influence& b) {
                return IsMissing(b.Swing()) ? !IsMissing(a.Swing()) : a.Swing() > b.Swing();
            });
            tornados.push_back(std::move(tornado));
        }
    }
    return tornados;
}

}  // namespace lithmark
