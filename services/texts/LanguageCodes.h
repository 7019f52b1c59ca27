// The codes of the languages: the values of --lang, and what documents and libraries call them.
#pragma once

#include <array>
#include <string_view>

#include "texts/LanguageTable.h"

namespace lithmark {

struct LanguageCodeRow {
    Language Which;
    const char* Code;
};

inline constexpr std::array kLanguageCodes = {
    LanguageCodeRow{Language::German, "de"},
    LanguageCodeRow{Language::English, "en"},
    LanguageCodeRow{Language::Arabic, "ar"},
    LanguageCodeRow{Language::Ids, "ids"},
};

constexpr const char* LanguageCode(Language language) {
    for (const LanguageCodeRow& row : kLanguageCodes)
        if (row.Which == language) return row.Code;
    return "en";
}

// Nobody else knows "ids": its words are the English ones.
constexpr const char* PublicLanguageCode(Language language) {
    return LanguageCode(language == Language::Ids ? Language::English : language);
}

// English where the code is none.
constexpr Language LanguageOfCode(std::string_view code) {
    for (const LanguageCodeRow& row : kLanguageCodes)
        if (row.Code == code) return row.Which;
    return Language::English;
}

}  // namespace lithmark
