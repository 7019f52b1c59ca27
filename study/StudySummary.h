// The summary of a study: per result the figures of its samples, with their standard errors; per limit the share beyond
// it.
//
// Rows that differ in their samples alone make one group, each combination of varied fields its own. Rows without
// samples, one group for each case, are no sample of anything: they have their least and greatest value and the share
// beyond, alone.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "study/SortedNumbers.h"
#include "study/Statistics.h"
#include "study/StudyLine.h"
#include "study/StudyPlan.h"
#include "study/StudyTakes.h"
#include "study/TextTable.h"

namespace lithmark {

class StudySummary {
  public:
    StudySummary(const StudyPlan& plan, const StudyHead& head, std::vector<ResultLimit> limits);

    // All rows of the study in their order. Of one group the values are held, a byte or two each.
    void Add(const StudyLine& line);
    // When the last row has been added.
    TextTable Table();

  private:
    struct Figures {
        SortedNumbers Values;           // of the group, where there are samples
        double Sum = 0;                 // of the values, in order of rows
        std::vector<CopyCount> Copies;  // of the limit
        std::vector<double> CopySums;   // of the values, by copy
        std::uint64_t Count = 0, Beyond = 0;
        float Least = kMissing, Greatest = kMissing;
    };
    using Cells = std::vector<TableCell>;

    std::uint64_t GroupOf(std::uint64_t row) const noexcept { return (row - 1) / groupSize_; }
    std::size_t CopyOf(std::uint64_t row) const noexcept;
    const ResultLimit* LimitOf(const std::string& result) const;
    void BeginGroup(const StudyLine& line);
    void EndGroup();
    void AddNumber(Figures& figures, float number, const ResultLimit* limit, std::size_t copy);
    void AddSampled(Cells& cells, Figures& figures) const;
    void AddLimit(Cells& cells, const Figures& figures, const ResultLimit* limit) const;

    const StudyHead& head_;
    std::vector<ResultLimit> limits_;
    bool sampled_, sobol_;
    std::uint64_t groupSize_, copySize_;
    std::size_t keyFields_;

    std::uint64_t group_ = 0, aborted_ = 0, noticed_ = 0;
    bool begun_ = false;
    Cells key_;
    std::vector<Figures> figures_;
    TextTable table_;
};

}  // namespace lithmark
