#include "core/TimeUnits.h"

#include "services/texts/LanguageTexts.h"

namespace lithmark {

Single SecondsPerTimeUnit(const std::string& word) {
    if (word == Text(10001_text)) return 86400;
    if (word == Text(10002_text)) return 604800;
    if (word == Text(10003_text)) return 2628000;
    if (word == Text(10004_text)) return 31540000;
    return 0;
}

void FailTimeUnit(const std::string& word) {
    Fail(FailureKind::DivisionByZero, Text(905001_text, {{"|1", word}}));
}

}  // namespace lithmark
