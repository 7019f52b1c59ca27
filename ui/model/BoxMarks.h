// BoxMarks: what a form says of boxes that cannot be stored as they stand.
#pragma once

#include <string>

#include "services/host/Form.h"

namespace lithmark {

class BoxMarks {
  public:
    virtual ~BoxMarks() = default;
    // Why a box that a command has refused is still not right; empty for all others.
    virtual std::string MarkOf(const Control& box) const = 0;
};

}  // namespace lithmark
