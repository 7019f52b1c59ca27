// Figure: what the drawing of a form's picture draws.
#pragma once

#include "ui/model/ProblemForm.h"

namespace lithmark {

// A problem as its dialog stands.
struct Figure {
    const ProblemForm& Of;
};

}  // namespace lithmark
