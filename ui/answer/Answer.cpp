#include "ui/answer/Answer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "base/NumberText.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// The digits of a number from the first that is not 0.
int DigitsOf(const std::string& text) {
    int digits = 0;
    for (const char c : text) {
        if (c == 'E' || c == 'e') break;
        if (c >= '1' && c <= '9') ++digits;
        if (c == '0' && digits > 0) ++digits;
    }
    return digits;
}

}  // namespace

const AnswerValue* Answer::Find(const std::string& symbol) const {
    const auto found = std::ranges::find(Values, symbol, &AnswerValue::Symbol);
    return found == Values.end() ? nullptr : &*found;
}

std::string FineText(const AnswerValue& value) {
    constexpr int kFewest = 2, kFine = 4;
    if (value.Number == 0 || !std::isfinite(value.Number) || DigitsOf(value.Text) >= kFewest) return {};
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value.Number, std::chars_format::general, kFine);
    std::string fine(text.data(), end.ptr);
    std::ranges::replace(fine, '.', SharedServices().DecimalSign);
    return fine;
}

std::string DifferenceText(const AnswerValue& value, const AnswerValue& kept) {
    if (value.Number == kept.Number) return FormatNumber(0, "0.0", SharedServices().DecimalSign) + " %";
    const double change = (value.Number - kept.Number) / std::fabs(kept.Number) * 100;
    constexpr double kMost = 9999;
    if (!std::isfinite(change) || std::fabs(change) > kMost) return "-";
    const std::string text = FormatNumber(change, "0.0", SharedServices().DecimalSign);
    const bool rises = change > 0 && text.find_first_not_of("0.,") != std::string::npos;
    return (rises ? "+" : "") + text + " %";
}

}  // namespace lithmark
