#include "services/storage/UnitsFile.h"

#include <algorithm>
#include <array>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Utf8.h"
#include "services/storage/DataFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr std::array kLengthUnits = {
    UnitRow{34_text, 28_text, "[m]", 1},
    UnitRow{35_text, 36_text, "[ft]", 3.28083989501312},
    UnitRow{37_text, 38_text, "[in]", 39.3700787401575},
    UnitRow{39_text, 40_text, "[cm]", 100},
    UnitRow{41_text, 42_text, "[mm]", 1000},
    UnitRow{43_text, 44_text, "[yd]", 1.09361329833771},
};

// Deliberate: "[kg]" and "[ton]" count 10 m/s2, unlike "[kgf]", as is usual on building sites.
constexpr std::array kForceUnits = {
    UnitRow{45_text, 29_text, "[kN]", 1},
    UnitRow{46_text, 47_text, "[N]", 1000},
    UnitRow{48_text, 49_text, "[kgf]", 101.971621297793},
    UnitRow{50_text, 51_text, "[kip]", 0.224808923655339},
    UnitRow{52_text, 53_text, "[lbf]", 224.808923655339},
    UnitRow{54_text, 55_text, "[tonf]", 0.112404474462434},
    UnitRow{56_text, 57_text, "[kg]", 100},
    UnitRow{58_text, 59_text, "[ton]", 0.1},
    UnitRow{60_text, 61_text, "[MN]", 0.001},
};

// Temperatures have no factor: nothing in the program converts them.
constexpr std::array kTemperatureUnits = {
    UnitRow{63_text, 33_text, "[°C]", 1},
    UnitRow{64_text, 30_text, "[°K]", 1},
    UnitRow{65_text, 31_text, "[°F]", 1},
    UnitRow{66_text, 32_text, "[°R]", 1},
};

// A unit group: its table, and where its label and factor lie. The temperature has no factor.
struct UnitGroup {
    std::span<const UnitRow> Units;
    std::string UnitSettings::*Label;
    double UnitSettings::*Factor;
};
// In the order of the file's lines.
const std::array kGroups = {
    UnitGroup{kLengthUnits, &UnitSettings::Len1Label, &UnitSettings::Len1Factor},
    UnitGroup{kLengthUnits, &UnitSettings::Len2Label, &UnitSettings::Len2Factor},
    UnitGroup{kForceUnits, &UnitSettings::Force1Label, &UnitSettings::Force1Factor},
    UnitGroup{kForceUnits, &UnitSettings::Force2Label, &UnitSettings::Force2Factor},
    UnitGroup{kTemperatureUnits, &UnitSettings::TempLabel, nullptr},
};

std::string LabelFromFile(std::span<const UnitRow> units, const std::string& inFile, long line) {
    for (const UnitRow& unit : units)
        if (inFile == unit.InFiles) return Text(unit.UnitLabel);
    Fail(FailureKind::BadWord, Excerpt(inFile), line);
}

std::string LabelForFile(std::span<const UnitRow> units, const std::string& label) {
    for (const UnitRow& unit : units)
        if (Text(unit.UnitLabel) == label) return unit.InFiles;
    return label;
}

}  // namespace

std::span<const UnitRow> LengthUnits() {
    return kLengthUnits;
}

std::span<const UnitRow> ForceUnits() {
    return kForceUnits;
}

std::span<const UnitRow> TemperatureUnits() {
    return kTemperatureUnits;
}

UnitSettings BaseUnits() {
    return {Text(28_text), Text(40_text), Text(29_text), Text(61_text), Text(33_text)};
}

UnitSettings ReadUnitLines(int fileNumber) {
    UnitSettings units;
    for (const UnitGroup& group : kGroups) {
        const long line = LineToRead(fileNumber);
        units.*group.Label = LabelFromFile(group.Units, ReadListItem(fileNumber), line);
        if (group.Factor == nullptr) continue;
        const double factor = ReadDouble(fileNumber);
        if (!(factor > 0)) Fail(FailureKind::BadNumber, NumberToText(factor), line);
        units.*group.Factor = factor;
    }
    return units;
}

std::vector<std::string> UnitLines(const UnitSettings& units) {
    std::vector<std::string> lines;
    for (const UnitGroup& group : kGroups) {
        const std::string label = LabelForFile(group.Units, units.*group.Label);
        lines.push_back(group.Factor == nullptr ? ListLine({label}) : ListLine({label, units.*group.Factor}));
    }
    return lines;
}

void WriteUnitLines(int fileNumber, const UnitSettings& units) {
    for (const std::string& line : UnitLines(units)) WriteRawLine(fileNumber, line);
}

}  // namespace lithmark
