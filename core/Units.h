// Units and number output: the four unit groups in force, derived units, number formats.
#pragma once

#include <span>
#include <string>

#include "base/TextId.h"

namespace lithmark {

// The factor (display units per base unit) and the bracketed label of a derived unit. Selectors: 0 pressure, 1 moment
// per length, 2 moment, 3 unit weight, 4 line load, 5 second moment of area, 6 area, 7 reinforcement per length,
// 8 modulus, 9 moment per angle, 10 area per time, 11 length per time. Any other gives 0 and "[]".
double UnitFactor(long selector);
std::string UnitLabel(long selector);

// A value by a number format. An empty format gives the plain text of the value as a Single. `format` is a pattern of
// FormatNumber; the decimal sign is the current one.
std::string FormatValue(double value, const std::string& format);

// A row of the unit tables: the long name, the label (with brackets), and the factor to one metre or one kilonewton.
struct UnitRow {
    TextId Name, UnitLabel;
    const char* InFiles;
    double Factor;
};
std::span<const UnitRow> LengthUnits();
std::span<const UnitRow> ForceUnits();
std::span<const UnitRow> TemperatureUnits();

// Appends "000" to a format that is one character long, or holds an "E" or a "."; others stay.
void AdjustFormat(std::string& format);
// The eighteen number formats of the table, and the two derived ones, at their defaults.
void SetDefaultNumberFormats();

}  // namespace lithmark
