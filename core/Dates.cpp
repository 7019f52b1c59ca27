#include "core/Dates.h"

#include <array>
#include <chrono>
#include <cmath>
#include <ctime>
#include <vector>

#include "base/Failure.h"
#include "base/Utf8.h"
#include "services/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kFirstOfJanuary1970 = 25569;

constexpr std::array kMonths = {900101_text, 900102_text, 900103_text, 900104_text, 900105_text, 900106_text,
                                900107_text, 900108_text, 900109_text, 900110_text, 900111_text, 900112_text};

// 1 to 12 for a month's name in any language, in any ASCII letter case; 0 for anything else.
int MonthOfName(const std::string& word) {
    const std::string lower = LowerAscii(word);
    for (std::size_t i = 0; i < kMonths.size(); ++i) {
        const LanguageRow* row = FindLanguageRow(kMonths[i].Number);
        if (!row) continue;
        for (const char* name : {row->German, row->English, row->Arabic})
            if (lower == LowerAscii(name)) return static_cast<int>(i) + 1;
    }
    return 0;
}

// The text's runs of digits and of other characters that are no separators.
std::vector<std::string> Words(std::string_view text) {
    std::vector<std::string> words;
    std::string word;
    const auto end = [&] {
        if (!word.empty()) words.push_back(std::move(word));
        word.clear();
    };
    for (const char c : text) {
        if (std::string_view(" \t.,/-").find(c) != std::string_view::npos)
            end();
        else
            word += c;
    }
    end();
    return words;
}

// A whole number of one to four digits; nothing for anything else.
std::optional<int> ShortNumber(const std::string& word) {
    if (word.empty() || word.size() > 4 || word.find_first_not_of("0123456789") != std::string::npos)
        return std::nullopt;
    return std::stoi(word);
}

}  // namespace

std::optional<int> DayNumber(int year, int month, int day) {
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || day > 31) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    if (!date.ok()) return std::nullopt;
    return static_cast<int>(std::chrono::sys_days(date).time_since_epoch().count()) + kFirstOfJanuary1970;
}

std::string LongDate(double dayNumber) {
    const double whole = std::floor(dayNumber);
    if (!(whole >= DayNumber(100, 1, 1).value() && whole <= DayNumber(9999, 12, 31).value()))
        Fail(FailureKind::Overflow);
    const std::chrono::year_month_day date{
        std::chrono::sys_days(std::chrono::days(static_cast<int>(whole) - kFirstOfJanuary1970))};
    return Text(900100_text, {{"|1", std::to_string(static_cast<unsigned>(date.day()))},
                              {"|2", Text(kMonths[static_cast<unsigned>(date.month()) - 1])},
                              {"|3", std::to_string(static_cast<int>(date.year()))}});
}

std::optional<int> ReadDate(std::string_view text) {
    const std::vector<std::string> words = Words(text);
    if (words.size() != 3) return std::nullopt;
    const auto first = ShortNumber(words[0]), second = ShortNumber(words[1]), third = ShortNumber(words[2]);
    if (const int month = MonthOfName(words[1]); month > 0 && first && third) return DayNumber(*third, month, *first);
    if (const int month = MonthOfName(words[0]); month > 0 && second && third) return DayNumber(*third, month, *second);
    if (!first || !second || !third) return std::nullopt;
    return words[0].size() == 4 ? DayNumber(*first, *second, *third) : DayNumber(*third, *second, *first);
}

int Today() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return DayNumber(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday).value();
}

}  // namespace lithmark
