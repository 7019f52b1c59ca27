// The time units: words of the language in force.
#pragma once

#include <string>

#include "base/Single.h"

namespace lithmark {

// Seconds in a day, week, month or year, told by the word of the current language; 0 for any other word. A month is a
// twelfth of 365 days, the year is rounded to 31540000 s; kept: existing projects rely on both.
Single SecondsPerTimeUnit(const std::string& word);

// The division by zero that a word without seconds leads to, with a sentence that names the word: a file written under
// one language holds a word that another does not know.
[[noreturn]] void FailTimeUnit(const std::string& word);

}  // namespace lithmark
