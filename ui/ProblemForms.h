// The dialog of each problem.
#pragma once

#include <memory>

#include "ui/model/ProblemForm.h"

namespace lithmark {

// The dialog of a problem number; null for a problem without one.
std::unique_ptr<ProblemForm> MakeProblemForm(int problemType);
bool HasProblemForm(int problemType);

}  // namespace lithmark
