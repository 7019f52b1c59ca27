// Where a result crosses its limit as a field grows, for every row of a study: at 17 values of the field first, so that
// several crossings are all told, then drawn together to a millionth of the value.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "study/Bracket.h"
#include "study/QuestionRows.h"
#include "study/SearchRange.h"
#include "study/StudyPlan.h"

namespace lithmark {

struct Crossing {
    Trial At;                  // the value next to the crossing that is not beyond
    bool BeyondAbove = false;  // greater values are beyond
};

struct CrossedRow {
    std::uint64_t Row = 0;  // of the plan, from 1 on
    PlannedRow Planned;
    std::vector<Crossing> Crossings;  // from the least value on
    int Tried = 0, Aborted = 0;
    std::string Message;  // of the first trial that aborted
};

class CrossingSearch {
  public:
    // The rows have the limited result as their number `limited`.
    CrossingSearch(const StudyPlan& plan, const SearchRange& range, std::size_t limited, float limit);

    // Gives the rows of the plan in order, as far as they could be searched.
    void Run(QuestionRows& rows, const std::function<void(const CrossedRow&)>& found) const;

  private:
    struct Search;

    bool RunSome(QuestionRows& rows, std::vector<Search>& searches) const;
    // Nothing where the row aborted or has no such result.
    std::optional<Trial> TrialOf(double value, const RowOutcome& outcome) const;
    std::optional<Trial> Note(CrossedRow& row, double value, const RowOutcome& outcome) const;

    const StudyPlan& plan_;
    const SearchRange& range_;
    std::size_t limited_;
    float limit_;
};

}  // namespace lithmark
