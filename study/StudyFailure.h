// Why a study cannot go on: what was asked for is wrong, or a file or a process failed.
#pragma once

#include <stdexcept>
#include <string>

#include "services/texts/LanguageTexts.h"

namespace lithmark {

class StudyFailure : public std::runtime_error {
  public:
    enum class Cause { Request, File };

    StudyFailure(Cause cause, const std::string& line) : std::runtime_error(line), cause_(cause) {}
    Cause Why() const noexcept { return cause_; }

  private:
    Cause cause_;
};

// The text with |1 replaced by what is wrong.
[[noreturn]] inline void FailRequest(TextId text, const std::string& subject) {
    throw StudyFailure(StudyFailure::Cause::Request, Text(text, {{"|1", subject}}));
}
[[noreturn]] inline void FailStudyFile(TextId text, const std::string& subject) {
    throw StudyFailure(StudyFailure::Cause::File, Text(text, {{"|1", subject}}));
}

}  // namespace lithmark
