// TextTools: blanks, dates as texts, pictures, the display of an error.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Failure.h"
#include "services/host/Form.h"

namespace lithmark {

// The days that the calendar has: 1 January 100 and 31 December 9999.
inline constexpr int kFirstDay = -657434, kLastDay = 2958465;

class TextToolsService {
  public:
    // n blanks; none for a negative count, which tables rely on where a cell is wider than its column.
    std::string Blanks(int n) const;

    // Dates are day numbers: day 25569 is 1 January 1970, counted in whole days of the Gregorian calendar.

    // The day number of a date; nothing when the calendar does not have it.
    std::optional<int> DayNumber(int year, int month, int day) const;
    // A day as a long date of the current language: "Samstag, 21. November 2026", "Saturday, November 21, 2026",
    // "السبت، 21 نوفمبر 2026". Overflow outside the years 100 to 9999.
    std::string LongDate(int dayNumber) const;
    // Today by the machine's clock and time zone.
    int Today() const;
    std::string LongDateOfToday() const { return LongDate(Today()); }
    // The day of a long date in any of the languages, with or without the day of the week, whatever that says; also of
    // year-month-day and day.month.year in digits. Nothing when the text is no date.
    std::optional<int> ReadDate(std::string_view text) const;

    // Shows a picture file in a picture control, by putting its path there; false when there is no such file.
    bool LoadPictureFile(Control& picture, const std::string& path) const;
    // A message box with the text of a failure.
    void ShowError(const Failure& failure) const;
};

TextToolsService& TextTools();

}  // namespace lithmark
