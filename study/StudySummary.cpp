#include "study/StudySummary.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <utility>

#include "study/PlainMath.h"

namespace lithmark {

namespace {

constexpr std::array kFigures = {"count", "aborted", "noticed", "mean", "se_mean", "sd",
                                 "min",   "p5",      "p50",     "p95",  "max"};
constexpr std::array kLimitFigures = {"limit", "beyond", "se_beyond", "low", "high", "beyond_worst", "beta"};

void AddEmpty(std::vector<TableCell>& cells, std::size_t count) {
    cells.insert(cells.end(), count, TableCell::Empty());
}

void AddNumbers(std::vector<TableCell>& cells, std::initializer_list<double> values) {
    for (const double value : values) cells.push_back(TableCell::OfNumber(value));
}

// The standard error of the mean of copies, from what each of them sums up.
double ErrorOfMeans(const std::vector<CopyCount>& copies, const std::vector<double>& sums) {
    std::vector<double> means;
    for (std::size_t i = 0; i < copies.size(); ++i)
        if (copies[i].Count > 0) means.push_back(sums[i] / static_cast<double>(copies[i].Count));
    return CopiesError(means);
}

// By the standard normal value that a share exceeds: how many deviations of a normal result the limit is away.
double ReliabilityIndex(double share) {
    return share > 0 && share < 1 ? UpperNormalQuantile(share) + 0.0 : std::numeric_limits<double>::quiet_NaN();
}

std::uint64_t GroupSize(const StudyPlan& plan) {
    if (plan.Samples()) return plan.BlockSize();
    return std::max<std::uint64_t>(1, plan.Count() / std::max<std::uint64_t>(1, plan.Cases().size()));
}

}  // namespace

StudySummary::StudySummary(const StudyPlan& plan, const StudyHead& head, std::vector<ResultLimit> limits)
    : head_(head),
      limits_(std::move(limits)),
      sampled_(plan.Samples().has_value()),
      sobol_(sampled_ && plan.Samples()->Sobol()),
      groupSize_(GroupSize(plan)),
      copySize_(sobol_ ? plan.Samples()->CopySize() : groupSize_),
      keyFields_(sampled_ ? plan.BlockFields() : 0) {
    std::vector<std::string>& columns = table_.Columns;
    if (head_.Cases) columns.emplace_back("Case");
    for (std::size_t i = 0; i < keyFields_; ++i) columns.push_back(head_.Fields[i].Name);
    columns.emplace_back("Result");
    columns.insert(columns.end(), kFigures.begin(), kFigures.end());
    if (!limits_.empty()) columns.insert(columns.end(), kLimitFigures.begin(), kLimitFigures.end());
}

std::size_t StudySummary::CopyOf(std::uint64_t row) const noexcept {
    return static_cast<std::size_t>((row - 1) % groupSize_ / copySize_);
}

const ResultLimit* StudySummary::LimitOf(const std::string& result) const {
    const auto limit = std::ranges::find(limits_, result, &ResultLimit::Result);
    return limit == limits_.end() ? nullptr : &*limit;
}

void StudySummary::BeginGroup(const StudyLine& line) {
    begun_ = true;
    group_ = GroupOf(line.Row);
    aborted_ = noticed_ = 0;
    figures_.clear();
    figures_.resize(head_.Takes.size());
    for (Figures& figures : figures_) {
        figures.Copies.resize(groupSize_ / copySize_);
        figures.CopySums.resize(groupSize_ / copySize_);
    }
    key_.clear();
    if (head_.Cases) key_.push_back(TableCell::OfText(line.Case));
    for (std::size_t i = 0; i < keyFields_; ++i)
        key_.push_back(TableCell::OfValue(line.Values[i], head_.Fields[i].Numeric()));
}

void StudySummary::AddNumber(Figures& figures, float number, const ResultLimit* limit, std::size_t copy) {
    const bool beyond = limit && number > limit->Value;
    ++figures.Count;
    figures.Beyond += beyond ? 1 : 0;
    if (!(figures.Least <= number)) figures.Least = number;
    if (!(figures.Greatest >= number)) figures.Greatest = number;
    if (!sampled_) return;
    figures.Values.Add(number);
    figures.Sum += static_cast<double>(number);
    ++figures.Copies[copy].Count;
    figures.Copies[copy].Beyond += beyond ? 1 : 0;
    figures.CopySums[copy] += static_cast<double>(number);
}

void StudySummary::Add(const StudyLine& line) {
    if (begun_ && GroupOf(line.Row) != group_) EndGroup();
    if (!begun_) BeginGroup(line);
    aborted_ += line.Aborted() ? 1 : 0;
    noticed_ += line.Notices.empty() ? 0 : 1;
    if (line.Aborted()) return;
    for (std::size_t i = 0; i < head_.Takes.size(); ++i)
        if (!IsMissing(line.Numbers[i]))
            AddNumber(figures_[i], line.Numbers[i], LimitOf(head_.Takes[i].Name), CopyOf(line.Row));
}

void StudySummary::AddSampled(Cells& cells, Figures& figures) const {
    const MeanAndDeviation moments = MeanAndDeviationOf(figures.Values, figures.Sum);
    const double error = sobol_ ? ErrorOfMeans(figures.Copies, figures.CopySums)
                                : moments.Deviation / std::sqrt(static_cast<double>(figures.Count));
    for (const std::uint64_t count : {figures.Count, aborted_, noticed_}) cells.push_back(TableCell::OfCount(count));
    AddNumbers(cells, {moments.Mean, error, moments.Deviation, static_cast<double>(figures.Least)});
    for (const double quantile : SortedQuantiles(figures.Values, {0.05, 0.5, 0.95})) AddNumbers(cells, {quantile});
    AddNumbers(cells, {static_cast<double>(figures.Greatest)});
}

void StudySummary::AddLimit(Cells& cells, const Figures& figures, const ResultLimit* limit) const {
    if (!limit) {
        AddEmpty(cells, kLimitFigures.size());
        return;
    }
    const auto count = static_cast<double>(figures.Count), aborted = static_cast<double>(aborted_);
    const auto beyond = static_cast<double>(figures.Beyond);
    AddNumbers(cells, {static_cast<double>(limit->Value)});
    if (!sampled_) {
        AddNumbers(cells, {beyond / count});
        AddEmpty(cells, kLimitFigures.size() - 2);
        return;
    }
    const ShareBeyond share = ShareOfCopies(figures.Copies);
    AddNumbers(cells, {share.Share, share.Error, share.Low, share.High, (beyond + aborted) / (count + aborted),
                       ReliabilityIndex(share.Share)});
}

void StudySummary::EndGroup() {
    for (std::size_t i = 0; i < head_.Takes.size(); ++i) {
        Cells cells = key_;
        cells.push_back(TableCell::OfText(head_.Takes[i].Name));
        if (sampled_) {
            AddSampled(cells, figures_[i]);
        } else {
            AddEmpty(cells, 6);
            AddNumbers(cells, {static_cast<double>(figures_[i].Least)});
            AddEmpty(cells, 3);
            AddNumbers(cells, {static_cast<double>(figures_[i].Greatest)});
        }
        if (!limits_.empty()) AddLimit(cells, figures_[i], LimitOf(head_.Takes[i].Name));
        table_.Rows.push_back(std::move(cells));
    }
    begun_ = false;
}

TextTable StudySummary::Table() {
    if (begun_) EndGroup();
    return table_;
}

}  // namespace lithmark
