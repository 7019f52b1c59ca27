// The rows of a study or of a shard of it: worked, taken over from a file of an earlier start, and written in order.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "study/RowWriter.h"
#include "study/StudyLine.h"
#include "study/StudyPlan.h"

namespace lithmark {

// Rows K, K + N, K + 2 N, ... of all.
struct Shard {
    std::uint64_t K = 1, N = 1;

    // "K/N", K from 1 to N. StudyFailure for any other text.
    static Shard Parse(const std::string& text);
    std::uint64_t Count(std::uint64_t rows) const noexcept { return rows < K ? 0 : (rows - K) / N + 1; }
    std::uint64_t Row(std::uint64_t position) const noexcept { return K + position * N; }  // from 1 on
};

// What came of the rows.
struct StudyTally {
    std::uint64_t Rows = 0, Aborted = 0, Missing = 0;
    std::string FirstMessage;  // of the first row that aborted

    void Add(const StudyLine& line) { Add(line.Aborted(), line.Status); }
    void Add(bool aborted, const std::string& message);
};

struct StudyRun {
    StudyRun(const StudyPlan& plan, const StudyHead& head) : Plan(plan), Head(head) {}

    const StudyPlan& Plan;
    const StudyHead& Head;
    Shard Part;
    std::string Resume;  // a file of rows that need not be worked again; empty: none
    bool RetryAborted = false;
    int Jobs = 1;
    std::function<void(const StudyLine&)> Seen;  // every row that is written, in order
    std::function<bool(double part)> GoOn;       // false ends the study

    // Rows that could not be worked before the end of an ended study are counted as missing; those that stand in the
    // file of an earlier start are written all the same.
    StudyTally Work(RowWriter& writer) const;
};

}  // namespace lithmark
