// The units that the program knows, and the file "Units" that says which of them are in force.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "base/TextId.h"

namespace lithmark {

// A unit: its long name, its label (with brackets), the label's form in the file, which no language changes, and the
// factor to one metre or one kilonewton.
struct UnitRow {
    TextId Name, UnitLabel;
    const char* InFiles;
    double Factor;
};
std::span<const UnitRow> LengthUnits();
std::span<const UnitRow> ForceUnits();
std::span<const UnitRow> TemperatureUnits();

// The units in force: labels in the current language, factors in display units per base unit (m, cm, kN, MN).
struct UnitSettings {
    std::string Len1Label, Len2Label, Force1Label, Force2Label, TempLabel;
    double Len1Factor = 1, Len2Factor = 1, Force1Factor = 1, Force2Factor = 1;
};
// The base units: m, cm, kN, MN and degrees Celsius, each with factor 1.
UnitSettings BaseUnits();

// The five lines of the file, open under a number: label and factor of each group, the temperature's label alone. A
// label that no row has is written as it stands; read, it is a BadWord. BadNumber for a factor that is not above 0.
UnitSettings ReadUnitLines(int fileNumber);
void WriteUnitLines(int fileNumber, const UnitSettings& units);
std::vector<std::string> UnitLines(const UnitSettings& units);

}  // namespace lithmark
