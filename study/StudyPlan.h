// The rows of a study, each worked out by itself: every case with every row of the file, every combination of the
// varied fields and every sample of the random ones; the samples go fastest, of the varied fields the last one, the
// cases slowest. All blocks of samples have the same ones.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "study/Row.h"
#include "study/RowsFile.h"
#include "study/Sampler.h"
#include "study/StudyCase.h"
#include "study/StudyField.h"
#include "study/StudyRequest.h"
#include "study/Variation.h"

namespace lithmark {

struct PlannedRow {
    std::string Case;                 // empty without cases
    std::vector<std::string> Values;  // one for each field of the plan; empty where the project's value stays
    RowInput Input;
};

class StudyPlan {
  public:
    static constexpr std::uint64_t kMostRows = 10'000'000'000;

    // On the project that Session holds. StudyFailure where the request cannot be understood, a field is set twice, or
    // there are too many rows.
    explicit StudyPlan(const StudyRequest& request);

    std::uint64_t Count() const noexcept { return count_; }
    // Row 0 to Count() - 1.
    PlannedRow Row(std::uint64_t row) const;
    // Those of the columns, in their order: rows of a file, varied, random.
    const std::vector<StudyField>& Fields() const noexcept { return fields_; }

    const std::vector<StudyCase>& Cases() const noexcept { return cases_; }
    const std::vector<Variation>& Variations() const noexcept { return variations_; }
    const std::optional<RowsFile>& Rows() const noexcept { return rows_; }
    const std::optional<Sampler>& Samples() const noexcept { return sampler_; }
    // Rows that follow one another and differ in their samples alone; 1 without samples.
    std::uint64_t BlockSize() const noexcept { return sampler_ ? sampler_->Count() : 1; }
    // Fields that are the same in all rows of a block: those ahead of the random ones.
    std::size_t BlockFields() const noexcept;
    // True when the field is set by the rows themselves.
    bool Sets(std::string_view name) const;

  private:
    void CheckFields() const;
    std::uint64_t Product() const;

    std::vector<StudyCase> cases_;
    std::optional<RowsFile> rows_;
    std::vector<Variation> variations_;
    std::optional<Sampler> sampler_;
    std::vector<StudyField> fields_;
    std::uint64_t count_ = 0;
};

}  // namespace lithmark
