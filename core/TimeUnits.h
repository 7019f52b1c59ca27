// The time units: words of the language in force.
#pragma once

#include <string>

#include "base/Single.h"

namespace lithmark {

// Seconds in a day, week, month or year, told by the word of the current language; 0 for any other word. Deliberate: a
// month is a twelfth of 365 days, and the year is rounded to 31540000 s, four figures being enough for Cv.
Single SecondsPerTimeUnit(const std::string& word);

// The word of the language in force for a time unit that is named in any of the languages; other words as they are. A
// file holds the word of the language that it was written under.
std::string TimeUnitInForce(const std::string& word);

// Where a run divides by the seconds of a word that has none: the failure that names the word.
[[noreturn]] void FailTimeUnit(const std::string& word);

}  // namespace lithmark
