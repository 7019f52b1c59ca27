#include "core/TimeUnits.h"

#include "base/Utf8.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

Single SecondsPerTimeUnit(const std::string& word) {
    if (word == Text(10001_text)) return 86400;
    if (word == Text(10002_text)) return 604800;
    if (word == Text(10003_text)) return 2628000;
    if (word == Text(10004_text)) return 31540000;
    return 0;
}

std::string TimeUnitInForce(const std::string& word) {
    for (const TextId unit : {10001_text, 10002_text, 10003_text, 10004_text})
        for (const Language language : {Language::German, Language::English, Language::Arabic})
            if (Trim(word) == TextIn(*FindLanguageRow(unit.Number), language)) return Text(unit);
    return word;
}

void FailTimeUnit(const std::string& word) {
    Fail(FailureKind::BadInput, Text(905001_text, {{"|1", word}}));
}

}  // namespace lithmark
