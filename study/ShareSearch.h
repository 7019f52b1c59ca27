// The smallest value of a field for which at most a share of the samples is beyond the limit of a result.
//
// Every value is held against the same samples, so that from value to value the share changes by the field alone. A
// sample that aborts, or has no such result, counts as beyond: what is found errs to the safe side.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "study/QuestionRows.h"
#include "study/SearchRange.h"
#include "study/Statistics.h"
#include "study/StudyPlan.h"

namespace lithmark {

struct ShareRow {
    std::uint64_t Row = 0;  // which block of samples, from 1 on
    PlannedRow Planned;     // the first row of the block
    std::optional<double> Value;
    ShareBeyond Share{};  // at the value
    std::optional<double> Low,
        High;  // of the value: where the ends of the share's 95 % interval come down to the share
    std::uint64_t Tried = 0, Aborted = 0;
    std::string Message;  // of the first sample that aborted
};

class ShareSearch {
  public:
    // The rows have the limited result as their first number. `share` from 0 to 1.
    ShareSearch(const StudyPlan& plan, const SearchRange& range, float limit, double share);

    // Gives the blocks of the plan in order, as far as they could be searched.
    void Run(QuestionRows& rows, const std::function<void(const ShareRow&)>& found) const;

    // "0.05" or "5%"; StudyFailure for what is no share.
    static double ParseShare(const std::string& text);

  private:
    using Shares = std::map<double, ShareBeyond>;
    using Measure = double ShareBeyond::*;

    // Works all samples for each of the values; false when that was ended.
    bool WorkValues(QuestionRows& rows, ShareRow& row, const std::vector<double>& values, Shares& shares) const;
    // The smallest value whose measure comes down to the share; nothing where none does, or the work was ended.
    std::optional<double> Smallest(QuestionRows& rows, ShareRow& row, Measure measure, Shares& shares) const;

    const StudyPlan& plan_;
    const SearchRange& range_;
    float limit_;
    double share_;
};

}  // namespace lithmark
