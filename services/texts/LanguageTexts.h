// LanguageTexts: a text by its number in the current language.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/TextId.h"
#include "texts/LanguageTable.h"

namespace lithmark {

// How a text is wanted, by the number of the style; numbers that are not named in Styles give the plain text.
struct Style {
    int Number = 0;

    constexpr bool operator==(const Style&) const = default;
};

namespace Styles {
inline constexpr Style Plain{0};         // as it stands, without the mnemonic mark "&"
inline constexpr Style Button{1};        // the caption of a button or menu entry, with its mnemonic mark
inline constexpr Style DialogButton{3};  // the same for one that opens a file dialog, ended by "..."
// A heading, without the mark, ended by a colon where the text itself brings none. The labels of the heading lines (11
// order, 12 date, 95 project, 107 file) end in ": ", because their value follows at once.
inline constexpr Style Heading{4};
inline constexpr Style ColumnTitle{16};  // a table column's title with its line feeds
inline constexpr Style Component{32};    // a quantity's name with its axes put in; as it stands
}  // namespace Styles

// Pairs of a place-holder ("|1") and what takes its place.
using Replacements = std::vector<std::pair<std::string, std::string>>;

enum class Axis { X, Y, Z };

class LanguageTextsService {
  public:
    Language Current() const noexcept { return current_; }
    void SetCurrent(Language language) noexcept { current_ = language; }
    // True for Arabic.
    bool RightToLeft() const noexcept { return current_ == Language::Arabic; }

    // The text of a number, its place-holders replaced. An unknown number is a failure of the program and gives
    // "?<number>?". In Ids every text reads "T<number>" or "T<number>(r1,r2)", whatever the style, but for the few that
    // the program takes apart or compares.
    std::string Text(TextId id, Style style = {}, const Replacements& replacements = {}) const;
    std::string Text(TextId id, const Replacements& replacements) const {
        return Text(id, Styles::Plain, replacements);
    }

    // The names of the coordinate axes; Arabic has letters of its own.
    std::string AxisName(Axis axis) const;
    // The version text of the report heading, and the line of the program's authors.
    std::string VersionText() const;
    std::string AuthorsText() const;

  private:
    Language current_ = Language::English;
};

// The one instance of the process.
LanguageTextsService& LanguageTexts();

// Short for LanguageTexts().Text(...).
inline std::string Text(TextId id, Style style = {}, const Replacements& replacements = {}) {
    return LanguageTexts().Text(id, style, replacements);
}
inline std::string Text(TextId id, const Replacements& replacements) {
    return LanguageTexts().Text(id, Styles::Plain, replacements);
}

}  // namespace lithmark
