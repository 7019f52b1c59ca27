// What the next study of a problem begins with: how the last one was asked, without its values.
#pragma once

#include <string>

#include "study/window/StudyQuestion.h"

namespace lithmark {

// Steps and count, the second field, what is drawn and taken.
std::string MemoryOf(const StudyQuestion& question);
// As far as the question has these fields and results; ranges are proposed anew.
void Recall(StudyQuestion& question, const std::string& memory);

}  // namespace lithmark
