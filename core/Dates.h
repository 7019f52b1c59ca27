// Dates as day numbers and as texts: day 25569 is 1 January 1970, counted on in whole days of the Gregorian calendar.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lithmark {

// The format that asks FormatValue for a date's text.
inline const std::string kLongDate = "Long Date";

// The day number of a date; nothing when the calendar does not have it.
std::optional<int> DayNumber(int year, int month, int day);

// A day number as a long date of the current language: "21 November 2026", "21. November 2026" in German. A fraction,
// the time of day, is cut. Overflow outside the years 100 to 9999.
std::string LongDate(double dayNumber);

// The day number that a text holds: a long date in any of the languages, or year-month-day, day.month.year or
// day/month/year in digits. Nothing when the text is no date.
std::optional<int> ReadDate(std::string_view text);

// Today, by the machine's clock and time zone.
int Today();

}  // namespace lithmark
