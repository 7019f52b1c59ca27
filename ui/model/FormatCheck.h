// Number formats as a user types them: which ones print numbers, and what a unit system makes of a few quantities.
#pragma once

#include <optional>
#include <string>

#include "services/storage/UnitsFile.h"

namespace lithmark {

// Why a format must not be used, nothing for one that may. What it prints of a number must read as that number again,
// rounded to its last digit: "1.00" prints 5 as 15.00, "0,000" parts thousands, which no box reads back. An empty
// format, the plain text of a number, is good.
std::optional<std::string> FormatFault(const std::string& format);

// A depth, a settlement, a load, a pressure and a unit weight as these units show them, in one line; the units in force
// stay as they are.
std::string UnitsInUse(const UnitSettings& units);

}  // namespace lithmark
