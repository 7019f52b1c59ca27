// The field whose value is looked for, and the values that it may take.
#pragma once

#include <string>
#include <vector>

#include "study/Row.h"
#include "study/StudyField.h"

namespace lithmark {

class SearchRange {
  public:
    // FIELD=FROM:TO, FROM below TO. StudyFailure for any other text.
    explicit SearchRange(const std::string& text);

    const StudyField& Field() const noexcept { return field_; }
    // Where a search begins: 17 values, evenly from the one end to the other; of a whole field each number once.
    const std::vector<double>& Points() const noexcept { return points_; }
    // The value that the field holds when it is set to this one.
    double Held(double value) const;
    // A difference of two values that does not matter: `part` of the greater one, of a thousandth of the range at
    // least.
    double Small(double a, double b, double part) const;
    // The row with the field set.
    RowInput Set(RowInput row, double value) const;

  private:
    static constexpr int kPoints = 17;

    StudyField field_;
    std::vector<double> points_;
};

}  // namespace lithmark
