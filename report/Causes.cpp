#include "report/Causes.h"

#include <cmath>

#include "base/Integer.h"
#include "base/NumberText.h"
#include "base/Utf8.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

constexpr double kHuge = 1e12, kTiny = 1e-18;
constexpr double kLongest = 1000, kShortest = 0.001;  // metres

std::string IfAbove(const std::string& name, double value, double most) {
    return std::abs(value) > most ? Text(909103_text, {{"|1", name}}) : std::string();
}

std::string IfNearZero(const std::string& name, double value, double least) {
    return value != 0 && std::abs(value) < least ? Text(909600_text, {{"|1", name}}) : std::string();
}

}  // namespace

// Labels begin with a capital and may end in a colon. English has small letters inside a sentence, but for somebody's
// name and for symbols; German keeps the capitals of its nouns, Arabic knows none.
std::string QuantityName(TextId label) {
    std::string name = Trim(Text(label));
    if (name.ends_with(':')) name.pop_back();
    if (LanguageTexts().Current() != Language::English) return name;
    std::string small;
    for (const std::string& word : Split(name, ' ')) {
        const bool plain = word.size() > 2 && LowerAscii(word).substr(1) == word.substr(1);
        small += (small.empty() ? "" : " ") + (plain && !word.ends_with("'s") ? LowerAscii(word) : word);
    }
    return small;
}

std::string QuantityName(TextId label, int number) {
    return QuantityName(label) + " " + NumberToText(number);
}

std::string QuantityName(Axis axis) {
    return Text(90001_text, {{"|1", LanguageTexts().AxisName(axis)}});
}

std::string IfZero(const std::string& name, double value) {
    return value == 0 ? Text(909101_text, {{"|1", name}}) : std::string();
}

std::string IfNegative(const std::string& name, double value) {
    return value < 0 ? Text(909102_text, {{"|1", name}}) : std::string();
}

std::string IfExtreme(const std::string& name, double value) {
    return FirstCause({IfAbove(name, value, kHuge), IfNearZero(name, value, kTiny)});
}

std::string IfNoLength(const std::string& name, double value) {
    return FirstCause({IfAbove(name, value, kLongest), IfNearZero(name, value, kShortest)});
}

std::string IfFar(const std::string& name, double value) {
    return IfAbove(name, value, kLongest);
}

std::string IfOdd(const std::string& name, int value) {
    return value % 2 != 0 ? Text(909601_text, {{"|1", name}}) : std::string();
}

std::string IfOutside(const std::string& name, double value, double lower, double upper) {
    if (value >= lower && value <= upper) return {};
    const SharedServicesService& services = SharedServices();
    return Text(909104_text, {{"|1", name}, {"|2", services.AsTyped(lower)}, {"|3", services.AsTyped(upper)}});
}

std::string IfBelow(const std::string& name, double value, const std::string& otherName, double other) {
    return value <= other ? Text(909105_text, {{"|1", name}, {"|2", otherName}}) : std::string();
}

std::string IfUncountable(const std::string& name, double nodes) {
    return nodes > Integer::kMax ? Text(909106_text, {{"|1", name}}) : std::string();
}

std::string FirstCause(std::initializer_list<std::string> causes) {
    for (const std::string& cause : causes)
        if (!cause.empty()) return cause;
    return {};
}

}  // namespace lithmark
