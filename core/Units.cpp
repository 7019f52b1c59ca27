#include "core/Units.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/NumberText.h"
#include "base/Single.h"
#include "base/Utf8.h"
#include "core/Session.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"

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

constexpr std::array kNumberFormats = {
    NumberFormatRow{&SessionRecord::FmtForce, "0.0"},
    NumberFormatRow{&SessionRecord::FmtSettlement, "0.00"},
    NumberFormatRow{&SessionRecord::FmtStress, "0.0"},
    NumberFormatRow{&SessionRecord::FmtReserve1, "0.0"},
    NumberFormatRow{&SessionRecord::FmtReserve2, "0.0"},
    NumberFormatRow{&SessionRecord::FmtReserve3, "0.0"},
    NumberFormatRow{&SessionRecord::FmtModulus, "0.0"},
    NumberFormatRow{&SessionRecord::FmtReserve4, "0.00"},
    NumberFormatRow{&SessionRecord::FmtLength, "0.00"},
    NumberFormatRow{&SessionRecord::FmtStrain, "0.0000"},
    NumberFormatRow{&SessionRecord::FmtPermeability, "0.0000000"},
    NumberFormatRow{&SessionRecord::FmtCv, "0.0000"},
    NumberFormatRow{&SessionRecord::FmtRatio, "0.00"},
    NumberFormatRow{&SessionRecord::FmtTime, "0.00"},
    NumberFormatRow{&SessionRecord::FmtPercent, "0.00"},
    NumberFormatRow{&SessionRecord::FmtUnitWeight, "0.0"},
    NumberFormatRow{&SessionRecord::FmtReserve5, "0.000"},
    NumberFormatRow{&SessionRecord::FmtDialogModulus, "0"},
};

// Selectors of UnitFactor and UnitLabel.
constexpr long kPressure = 0, kUnitWeight = 3, kAreaPerTime = 10, kLengthPerTime = 11;

// What a unit is made of: a unit group of its own, or a derived unit.
struct UnitSource {
    std::string SessionRecord::*Label = nullptr;
    double SessionRecord::*Factor = nullptr;
    long Selector = -1;
};
UnitSource SourceOf(Unit unit) {
    switch (unit) {
        case Unit::Length:
            return {&SessionRecord::Len1Label, &SessionRecord::Len1Factor};
        case Unit::Settlement:
            return {&SessionRecord::Len2Label, &SessionRecord::Len2Factor};
        case Unit::Force:
            return {&SessionRecord::Force1Label, &SessionRecord::Force1Factor};
        case Unit::Pressure:
            return {.Selector = kPressure};
        case Unit::UnitWeight:
            return {.Selector = kUnitWeight};
        case Unit::AreaPerTime:
            return {.Selector = kAreaPerTime};
        case Unit::LengthPerTime:
            return {.Selector = kLengthPerTime};
        case Unit::None:
            break;
    }
    return {};
}

// A label without its first and last character, the brackets.
std::string CutBrackets(const std::string& label) {
    const std::size_t count = CharacterCount(label);
    if (count < 2) return {};
    const std::size_t first = FirstCharacters(label, 1).size();
    return label.substr(first, FirstCharacters(label, count - 1).size() - first);
}

std::string DerivedUnit(long selector) {
    const std::string length1 = CutBrackets(Session.Len1Label), length2 = CutBrackets(Session.Len2Label);
    const std::string force1 = CutBrackets(Session.Force1Label), force2 = CutBrackets(Session.Force2Label);
    const std::string squared = Text(77_text), cubed = Text(78_text);
    switch (selector) {
        case 0:
            return force1 + "/" + length1 + squared;
        case 1:
            return force1 + "." + length1 + "/" + length1;
        case 2:
            return force1 + "." + length1;
        case 3:
            return force1 + "/" + length1 + cubed;
        case 4:
            return force1 + "/" + length1;
        case 5:
            return length1 + "4";
        case 6:
            return length1 + squared;
        case 7:
            return length2 + squared + "/" + length1;
        case 8:
            return force2 + "/" + length1 + squared;
        case 9:
            return force1 + "." + length1 + "/" + CutBrackets(Text(75_text));
        case 10:
            return length1 + squared + "/" + CutBrackets(Text(76_text));
        case 11:
            return length1 + "/" + CutBrackets(Text(76_text));
        default:
            return {};
    }
}

}  // namespace

double UnitFactor(long selector) {
    const double L1 = Session.Len1Factor, L2 = Session.Len2Factor;
    const double F1 = Session.Force1Factor, F2 = Session.Force2Factor;
    switch (selector) {
        case 0:
            return Quotient(F1, Power(L1, 2));
        case 1:
            return F1;
        case 2:
            return L1 * F1;
        case 3:
            return Quotient(F1, Power(L1, 3));
        case 4:
            return Quotient(F1, L1);
        case 5:
            return Power(L1, 4);
        case 6:
            return Power(L1, 2);
        case 7:
            return Quotient(Power(L2, 2), L1);
        case 8:
            return Quotient(F2, Power(L1, 2));
        case 9:
            return L1 * F1;
        case 10:
            return Power(L1, 2);
        case 11:
            return L1;
        default:
            return 0;
    }
}

std::string UnitLabel(long selector) {
    return "[" + DerivedUnit(selector) + "]";
}

double FactorOf(Unit unit) {
    const UnitSource source = SourceOf(unit);
    if (source.Factor) return Session.*source.Factor;
    return source.Selector < 0 ? 1 : UnitFactor(source.Selector);
}

std::string LabelOf(Unit unit) {
    const UnitSource source = SourceOf(unit);
    if (source.Label) return Session.*source.Label;
    return source.Selector < 0 ? "[-]" : UnitLabel(source.Selector);
}

std::string FormatValue(double value, const std::string& format) {
    if (format == kLongDate) return TextTools().LongDate(static_cast<int>(std::floor(std::clamp(value, -1e9, 1e9))));
    const char decimalSign = SharedServices().DecimalSign;
    if (!format.empty()) return FormatNumber(value, format, decimalSign);
    std::string text = NumberToText(Single(value));
    for (char& c : text)
        if (c == '.') c = decimalSign;
    return text;
}

std::span<const UnitRow> LengthUnits() {
    return kLengthUnits;
}

std::span<const UnitRow> ForceUnits() {
    return kForceUnits;
}

std::span<const UnitRow> TemperatureUnits() {
    return kTemperatureUnits;
}

void SetDefaultUnits() {
    Session.Len1Label = Text(28_text);
    Session.Len2Label = Text(40_text);
    Session.Force1Label = Text(29_text);
    Session.Force2Label = Text(61_text);
    Session.TempLabel = Text(33_text);
    Session.Len1Factor = Session.Len2Factor = Session.Force1Factor = Session.Force2Factor = 1;
}

std::span<const NumberFormatRow> NumberFormats() {
    return kNumberFormats;
}

void AdjustFormat(std::string& format) {
    if (format.find('E') != std::string::npos || format.find('.') != std::string::npos || CharacterCount(format) == 1)
        format += "000";
}

void DeriveNumberFormats() {
    Session.FmtForceFine = Session.FmtForce;
    AdjustFormat(Session.FmtForceFine);
    Session.FmtStressFine = Session.FmtStress;
    AdjustFormat(Session.FmtStressFine);
}

void SetDefaultNumberFormats() {
    for (const NumberFormatRow& row : kNumberFormats) Session.*row.Field = row.Default;
    DeriveNumberFormats();
}

}  // namespace lithmark
