#include "services/TextTools.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <vector>

#include "base/Utf8.h"
#include "services/SharedServices.h"
#include "services/platform/Process.h"
#include "services/storage/FileNames.h"

namespace lithmark {

namespace {

using std::chrono::year_month_day;

constexpr int kFirstOfJanuary1970 = 25569;

// Sunday is the first day of the week.
constexpr std::array kWeekdays = {901020_text, 901021_text, 901022_text, 901023_text,
                                  901024_text, 901025_text, 901026_text};
constexpr std::array kMonths = {901030_text, 901031_text, 901032_text, 901033_text, 901034_text, 901035_text,
                                901036_text, 901037_text, 901038_text, 901039_text, 901040_text, 901041_text};

// The position of a name in a list of texts, in any language and in any case of ASCII letters.
template <std::size_t N>
std::optional<std::size_t> PositionOf(const std::string& word, const std::array<TextId, N>& names) {
    const std::string lower = LowerAscii(word);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const LanguageRow& row = *FindLanguageRow(names[i].Number);
        for (const char* name : {row.German, row.English, row.Arabic})
            if (lower == LowerAscii(name)) return i;
    }
    return std::nullopt;
}

// The words and numbers of a date's text; blanks, points, commas, hyphens and direction marks part them.
std::vector<std::string> DateWords(std::string_view text) {
    constexpr std::u32string_view kBetween = U" \t.,-\u060C\u00A0\u200E\u200F";
    std::vector<std::string> words(1);
    for (const char32_t c : CodePoints(text)) {
        if (kBetween.find(c) != std::u32string_view::npos)
            words.emplace_back();
        else if (c >= 0x0660 && c <= 0x0669)  // Arabic-Indic digits
            words.back() += static_cast<char>('0' + (c - 0x0660));
        else
            AppendCodePoint(words.back(), c);
    }
    std::erase(words, "");
    return words;
}

// A whole number of one to four digits.
std::optional<int> ShortNumber(const std::string& word) {
    if (word.empty() || word.size() > 4 || word.find_first_not_of("0123456789") != std::string::npos)
        return std::nullopt;
    return std::stoi(word);
}

}  // namespace

std::string TextToolsService::Blanks(int n) const {
    return std::string(static_cast<std::size_t>(std::max(0, n)), ' ');
}

std::optional<int> TextToolsService::DayNumber(int year, int month, int day) const {
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || day > 31) return std::nullopt;
    const year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                              std::chrono::day(static_cast<unsigned>(day))};
    if (!date.ok()) return std::nullopt;
    return static_cast<int>(std::chrono::sys_days(date).time_since_epoch().count()) + kFirstOfJanuary1970;
}

std::string TextToolsService::LongDate(int dayNumber) const {
    if (dayNumber < kFirstDay || dayNumber > kLastDay) Fail(FailureKind::Overflow);
    const std::chrono::sys_days day{std::chrono::days(dayNumber - kFirstOfJanuary1970)};
    const year_month_day date{day};
    return Text(901019_text, {{"|1", Text(kWeekdays[std::chrono::weekday(day).c_encoding()])},
                              {"|2", std::to_string(static_cast<unsigned>(date.day()))},
                              {"|3", Text(kMonths[static_cast<unsigned>(date.month()) - 1])},
                              {"|4", std::to_string(static_cast<int>(date.year()))}});
}

int TextToolsService::Today() const {
    const std::tm local = platform::LocalTime(std::time(nullptr));
    return DayNumber(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday).value();
}

std::optional<int> TextToolsService::ReadDate(std::string_view text) const {
    std::vector<std::string> words = DateWords(text);
    if (words.size() == 4 && PositionOf(words.front(), kWeekdays)) words.erase(words.begin());
    if (words.size() != 3) return std::nullopt;
    const auto first = ShortNumber(words[0]), second = ShortNumber(words[1]), third = ShortNumber(words[2]);
    if (!third) return std::nullopt;
    if (first && second) {
        const bool yearFirst = words[0].size() == 4;
        return yearFirst ? DayNumber(*first, *second, *third) : DayNumber(*third, *second, *first);
    }
    const auto day = first ? first : second;
    const auto month = PositionOf(first ? words[1] : words[0], kMonths);
    if (!day || !month) return std::nullopt;
    return DayNumber(*third, static_cast<int>(*month) + 1, *day);
}

bool TextToolsService::LoadPictureFile(Control& picture, const std::string& path) const {
    if (!PathExists(path)) return false;
    picture.Text = path;
    return true;
}

void TextToolsService::ShowError(const Failure& failure) const {
    SharedServices().ShowFileError(failure);
}

TextToolsService& TextTools() {
    static TextToolsService instance;
    return instance;
}

}  // namespace lithmark
