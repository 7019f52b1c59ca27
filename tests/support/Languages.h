// The languages, for what holds in each of them.
#pragma once

#include "texts/LanguageTable.h"

namespace lithmark::tests {

inline constexpr Language kLanguages[] = {Language::German, Language::English, Language::Arabic};

}  // namespace lithmark::tests
