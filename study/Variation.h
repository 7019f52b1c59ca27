// The values that a varied field takes one after the other.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "study/StudyField.h"

namespace lithmark {

class Variation {
  public:
    // FIELD=FROM:TO:STEP: the last value may miss TO by a billionth of a step. FIELD=FROM:TO:*COUNT: even steps from
    // the one end to the other. FIELD=FROM:TO:^COUNT: even factors, from and to of one sign. FIELD=A,B,C: these.
    // StudyFailure for any other text.
    explicit Variation(const std::string& text);

    const StudyField& Field() const noexcept { return field_; }
    std::uint64_t Count() const noexcept { return count_; }
    // Value 0 to Count() - 1.
    std::string Value(std::uint64_t i) const;
    // The same texts for all ways to write the same steps between the same ends, or the same list.
    std::vector<std::string> Plain() const;
    // The least and the greatest of all values; StudyFailure where they are no numbers.
    double Least() const;
    double Greatest() const;

  private:
    enum class Steps { Even, Factors, List };

    void ReadSteps(const std::string& text, const std::vector<std::string>& parts);
    double NumberAt(std::uint64_t i) const;
    double Extreme(bool greatest) const;

    std::string text_;
    StudyField field_;
    Steps steps_ = Steps::List;
    double from_ = 0, to_ = 0, step_ = 0;
    bool bothEnds_ = false;
    std::uint64_t count_ = 0;
    std::vector<std::string> list_;
};

}  // namespace lithmark
