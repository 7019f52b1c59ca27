#include "services/texts/LanguageTexts.h"

#include <algorithm>
#include <iterator>

namespace lithmark {

namespace {

// Texts with a value right behind them in the heading of a report: order, date, project, file.
constexpr TextId kHeadingLines[] = {11_text, 12_text, 95_text, 107_text};

// Texts that the program compares or takes apart, and that must therefore be real ones in every language.
constexpr TextId kSameInIds[] = {28_text, 29_text, 30_text,  31_text,     32_text,     33_text,    36_text,
                                 38_text, 40_text, 42_text,  44_text,     47_text,     49_text,    51_text,
                                 53_text, 55_text, 57_text,  59_text,     61_text,     75_text,    76_text,
                                 77_text, 78_text, 123_text, 140156_text, 160017_text, 160020_text};

template <std::size_t N>
bool Contains(const TextId (&list)[N], TextId id) {
    return std::find(std::begin(list), std::end(list), id) != std::end(list);
}

// The text without its mnemonic marks: "S&peichern" gives "Speichern", "&&" stands for one "&".
std::string WithoutMnemonic(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && ++i == text.size()) break;
        result += text[i];
    }
    return result;
}

// All replacements in one pass, so that a place-holder inside a replacement stays what it is.
std::string Replaced(std::string_view text, const Replacements& replacements) {
    if (replacements.empty()) return std::string(text);
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        const auto fits = std::find_if(replacements.begin(), replacements.end(), [&](const auto& replacement) {
            return !replacement.first.empty() && text.substr(i).starts_with(replacement.first);
        });
        if (fits == replacements.end()) {
            result += text[i++];
        } else {
            result += fits->second;
            i += fits->first.size();
        }
    }
    return result;
}

std::string IdsText(TextId id, const Replacements& replacements) {
    std::string result = "T<" + std::to_string(id.Number) + ">";
    for (std::size_t i = 0; i < replacements.size(); ++i) result += (i == 0 ? "(" : ",") + replacements[i].second;
    if (!replacements.empty()) result += ")";
    return result;
}

}  // namespace

std::string LanguageTextsService::Text(TextId id, Style style, const Replacements& replacements) const {
    const LanguageRow* row = FindLanguageRow(id.Number);
    if (row == nullptr) return "?" + std::to_string(id.Number) + "?";
    if (current_ == Language::Ids)
        return Contains(kSameInIds, id) ? Replaced(row->English, replacements) : IdsText(id, replacements);

    if (style == Styles::ColumnTitle)
        if (const LanguageRow* title = FindColumnTitle(id.Number)) row = title;

    // The mark goes before the replacements come in: a "&" in a path is no mark.
    const std::string_view stored = TextIn(*row, current_);
    const bool keepsMnemonic = style == Styles::Button || style == Styles::DialogButton;
    std::string text = Replaced(keepsMnemonic ? std::string(stored) : WithoutMnemonic(stored), replacements);
    if (style == Styles::DialogButton) text += "...";
    if (style == Styles::Heading) {
        if (!text.ends_with(':')) text += ':';
        if (Contains(kHeadingLines, id)) text += ' ';
    }
    return text;
}

std::string LanguageTextsService::AxisName(Axis axis) const {
    static constexpr const char* kLatin[] = {"x", "y", "z"};
    static constexpr const char* kArabic[] = {"س", "ص", "ع"};
    return (current_ == Language::Arabic ? kArabic : kLatin)[static_cast<int>(axis)];
}

std::string LanguageTextsService::VersionText() const {
    return LITHMARK_VERSION;
}

std::string LanguageTextsService::AuthorsText() const {
    return "The Lithmark Authors";
}

LanguageTextsService& LanguageTexts() {
    static LanguageTextsService instance;
    return instance;
}

}  // namespace lithmark
