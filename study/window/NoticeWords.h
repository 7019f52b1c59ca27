// Notices of a study's rows in words.
#pragma once

#include <string>

namespace lithmark {

// What notices are about, in the language in force and parted by semicolons: "a layer thinner than an element". `ids`
// are parted by blanks, as a study's table has them; one without words stays as it is.
std::string NoticeWords(const std::string& ids);

}  // namespace lithmark
