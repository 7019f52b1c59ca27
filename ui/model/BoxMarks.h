// BoxMarks: what a form says of boxes that cannot be stored as they stand.
#pragma once

#include <string>

#include "services/host/Form.h"

namespace lithmark {

class BoxMarks {
  public:
    virtual ~BoxMarks() = default;
    // Why a box cannot be stored as it stands; empty for one that can.
    virtual std::string MarkOf(const Control& box) const = 0;
    // A command has refused the box.
    virtual bool Refused(const Control& box) const = 0;
};

// A text that is not a number yet: nothing, a sign, a decimal sign alone, "1e-".
bool IsUnfinished(const std::string& text);
// So many milliseconds after the last key it is an error where it stands.
inline constexpr int kUnfinishedFor = 1000;

}  // namespace lithmark
