// The table of all language texts: number, German, English, Arabic. UTF-8.
#pragma once

#include <span>

namespace lithmark {

enum class Language { German, English, Arabic, Ids };

struct LanguageRow {
    int Number;
    const char* German;
    const char* English;
    const char* Arabic;
};

// All texts, ascending by number.
std::span<const LanguageRow> LanguageTable();

// The forms that some texts take as the title of a table column, broken by line feeds so that tables stay narrow.
// Ascending by number; a text without a row here is used as it stands.
std::span<const LanguageRow> ColumnTitleTable();

// The row of a number, or null.
const LanguageRow* FindLanguageRow(int number);
const LanguageRow* FindColumnTitle(int number);

// The row's text in a language; Ids has none and gives the English one.
const char* TextIn(const LanguageRow& row, Language language);

}  // namespace lithmark
