// Units and number output: the four unit groups in force, derived units, number formats.
#pragma once

#include <span>
#include <string>

#include "core/Session.h"
#include "services/storage/UnitsFile.h"

namespace lithmark {

// The factor (display units per base unit) and the bracketed label of a derived unit. Selectors: 0 pressure, 1 moment
// per length, 2 moment, 3 unit weight, 4 line load, 5 second moment of area, 6 area, 7 reinforcement per length,
// 8 modulus, 9 moment per angle, 10 area per time, 11 length per time. Any other gives 0 and "[]". Powers go through
// the general power function. DivisionByZero when a length factor of 0 stands under the line.
double UnitFactor(long selector);
std::string UnitLabel(long selector);

// What a quantity of the dialogs and reports is counted in.
enum class Unit {
    None,
    Length,
    Settlement,
    Force,
    Pressure,
    UnitWeight,
    AreaPerTime,
    LengthPerTime,
    Moment,
    LineLoad,
    Area,
    PerCent
};
// Display units per base unit, and the label with its brackets, at this moment.
// 1 and "[-]" for None, 1 and "[%]" for PerCent. DivisionByZero, as from UnitFactor, when a length factor of 0 stands
// under the line.
double FactorOf(Unit unit);
std::string LabelOf(Unit unit);

// A value by a number format. An empty format gives the plain text of the value as a Single. `format` is a pattern of
// FormatNumber, or kLongDate, which takes the value as a day number (services/TextTools.h). The decimal sign is the
// current one in both cases, so that a dialog can read back what it shows.
std::string FormatValue(double value, const std::string& format);

// The format that asks for a date's text.
inline const std::string kLongDate = "Long Date";

// The base units in force: m, cm, kN, MN and degrees Celsius, with labels of the current language and factors of 1.
void SetDefaultUnits();
// The units in force as a whole, and others put in force.
UnitSettings UnitsInForce();
void SetUnits(const UnitSettings& units);

// A row of the table of number formats: the field and its default. The rows stand in the order of the file "NOFORMAT".
struct NumberFormatRow {
    std::string SessionRecord::*Field;
    const char* Default;
};
std::span<const NumberFormatRow> NumberFormats();

// Appends "000" to a format that holds an "E" or a ".", or is one character long; others stay.
void AdjustFormat(std::string& format);
// The two derived formats, from FmtForce and FmtStress.
void DeriveNumberFormats();
// The eighteen number formats of the table, and the two derived ones, at their defaults.
void SetDefaultNumberFormats();

}  // namespace lithmark
