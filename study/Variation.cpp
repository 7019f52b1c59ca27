#include "study/Variation.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "study/PlainMath.h"
#include "study/StudyFailure.h"
#include "study/StudyPlan.h"

namespace lithmark {

namespace {

// Fifteen digits: 0.1 three times is 0.3.
double Rounded(double value) {
    std::array<char, 40> digits;
    const auto end = std::to_chars(digits.begin(), digits.end(), value, std::chars_format::scientific, 14).ptr;
    std::from_chars(digits.begin(), end, value);
    return value;
}

}  // namespace

Variation::Variation(const std::string& text) : text_(text) {
    const auto equals = text.find('=');
    if (equals == std::string::npos) FailRequest(902043_text, text);
    field_ = FindStudyField(text.substr(0, equals));
    const std::string values = text.substr(equals + 1);
    const std::vector<std::string> parts = Split(values, ':');
    if (parts.size() > 1 && field_.Numeric()) {
        ReadSteps(text, parts);
        return;
    }
    for (const std::string& item : Split(values, ',')) {
        if (Trim(item).empty() || (field_.Numeric() && !ParseNumber(item))) FailRequest(902043_text, text);
        list_.push_back(ValueText(field_, Trim(item)));
    }
    count_ = list_.size();
}

void Variation::ReadSteps(const std::string& text, const std::vector<std::string>& parts) {
    if (parts.size() != 3) FailRequest(902043_text, text);
    const std::string& last = parts[2];
    bothEnds_ = last.starts_with('*') || last.starts_with('^');
    steps_ = last.starts_with('^') ? Steps::Factors : Steps::Even;
    const auto from = ParseNumber(parts[0]), to = ParseNumber(parts[1]);
    const auto step = ParseNumber(bothEnds_ ? last.substr(1) : last);
    if (!from || !to || !step) FailRequest(902043_text, text);
    from_ = *from;
    to_ = *to;
    step_ = *step;
    if (steps_ == Steps::Factors && !(from_ * to_ > 0)) FailRequest(908017_text, text);
    double steps = 0;
    if (bothEnds_) {
        if (step_ != std::floor(step_) || step_ < 1 || (step_ == 1 && from_ != to_)) FailRequest(902044_text, text);
        steps = step_ - 1;
    } else {
        steps = step_ == 0 ? (from_ == to_ ? 0 : -1) : (to_ - from_) / step_;
    }
    if (!(steps > -1e-9)) FailRequest(902044_text, text);
    if (steps > static_cast<double>(StudyPlan::kMostRows))
        FailRequest(902045_text, std::to_string(StudyPlan::kMostRows));
    count_ = static_cast<std::uint64_t>(std::floor(steps + 1e-9)) + 1;
}

double Variation::NumberAt(std::uint64_t i) const {
    if (!bothEnds_) return Rounded(from_ + static_cast<double>(i) * step_);
    if (i == 0) return from_;
    if (i == count_ - 1) return to_;
    const double part = static_cast<double>(i) / static_cast<double>(count_ - 1);
    if (steps_ == Steps::Even) return Rounded(from_ + part * (to_ - from_));
    const double first = PlainLog(std::abs(from_)), last = PlainLog(std::abs(to_));
    return Rounded(std::copysign(PlainExp(first + part * (last - first)), from_));
}

std::string Variation::Value(std::uint64_t i) const {
    return steps_ == Steps::List ? list_[i] : ValueText(field_, NumberAt(i));
}

std::vector<std::string> Variation::Plain() const {
    if (steps_ == Steps::List) return list_;
    const char* kind = steps_ == Steps::Factors ? "^" : bothEnds_ ? "*" : ":";
    return {kind, JsonNumber(from_), JsonNumber(to_), JsonNumber(step_)};
}

double Variation::Extreme(bool greatest) const {
    if (!field_.Numeric()) FailRequest(908018_text, text_);
    if (steps_ != Steps::List) {
        const double first = NumberAt(0), last = NumberAt(count_ - 1);
        return greatest ? std::max(first, last) : std::min(first, last);
    }
    std::vector<double> values;
    for (const std::string& item : list_) values.push_back(ParseNumber(item).value_or(0));
    return greatest ? *std::ranges::max_element(values) : *std::ranges::min_element(values);
}

double Variation::Least() const {
    return Extreme(false);
}

double Variation::Greatest() const {
    return Extreme(true);
}

}  // namespace lithmark
