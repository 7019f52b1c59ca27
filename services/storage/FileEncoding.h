// The encodings in which text files reach the program.
#pragma once

#include <string>
#include <string_view>

#include "texts/LanguageTable.h"

namespace lithmark {

// The text of a file's bytes as UTF-8, without a byte order mark. Bytes that are not UTF-8 are taken as the code page
// of the older systems: Windows-1256 for Arabic, Windows-1252 for all other languages. Bytes that a code page leaves
// open keep their number, so nothing is lost and nothing fails.
std::string DecodeFileText(std::string_view bytes, Language language);

}  // namespace lithmark
