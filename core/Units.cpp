#include "core/Units.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "base/NumberText.h"
#include "base/Single.h"
#include "base/Utf8.h"
#include "core/Session.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"

namespace lithmark {

namespace {

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
constexpr long kPressure = 0, kMoment = 2, kUnitWeight = 3, kLineLoad = 4, kArea = 6, kAreaPerTime = 10,
               kLengthPerTime = 11;

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
        case Unit::Moment:
            return {.Selector = kMoment};
        case Unit::LineLoad:
            return {.Selector = kLineLoad};
        case Unit::Area:
            return {.Selector = kArea};
        case Unit::None:
        case Unit::PerCent:
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

// The factors of the unit groups, by the letters of the formulas.
struct GroupFactors {
    double L1 = Session.Len1Factor, L2 = Session.Len2Factor, F1 = Session.Force1Factor, F2 = Session.Force2Factor;
};

// A derived unit: its factor, and its label with F and L for force and length 1, G and M for force and length 2, 2 and
// 3 for the raised figures, a and s for the angle and the second.
struct DerivedUnit {
    double (*Factor)(const GroupFactors& g);
    const char* Label;
};
// By selector.
constexpr DerivedUnit kDerivedUnits[] = {
    {[](const GroupFactors& g) { return Quotient(g.F1, Power(g.L1, 2)); }, "F/L2"},
    {[](const GroupFactors& g) { return g.F1; }, "F.L/L"},
    {[](const GroupFactors& g) { return g.L1 * g.F1; }, "F.L"},
    {[](const GroupFactors& g) { return Quotient(g.F1, Power(g.L1, 3)); }, "F/L3"},
    {[](const GroupFactors& g) { return Quotient(g.F1, g.L1); }, "F/L"},
    {[](const GroupFactors& g) { return Power(g.L1, 4); }, "L4"},
    {[](const GroupFactors& g) { return Power(g.L1, 2); }, "L2"},
    {[](const GroupFactors& g) { return Quotient(Power(g.L2, 2), g.L1); }, "M2/L"},
    {[](const GroupFactors& g) { return Quotient(g.F2, Power(g.L1, 2)); }, "G/L2"},
    {[](const GroupFactors& g) { return g.L1 * g.F1; }, "F.L/a"},
    {[](const GroupFactors& g) { return Power(g.L1, 2); }, "L2/s"},
    {[](const GroupFactors& g) { return g.L1; }, "L/s"},
};

const DerivedUnit* FindDerivedUnit(long selector) {
    return selector < 0 || selector >= static_cast<long>(std::size(kDerivedUnits)) ? nullptr : &kDerivedUnits[selector];
}

// What a letter of a derived unit's label stands for; another character stands for itself.
std::string LabelPart(char letter) {
    switch (letter) {
        case 'F':
            return CutBrackets(Session.Force1Label);
        case 'G':
            return CutBrackets(Session.Force2Label);
        case 'L':
            return CutBrackets(Session.Len1Label);
        case 'M':
            return CutBrackets(Session.Len2Label);
        case '2':
            return Text(77_text);
        case '3':
            return Text(78_text);
        case 'a':
            return CutBrackets(Text(75_text));
        case 's':
            return CutBrackets(Text(76_text));
        default:
            return {letter};
    }
}

}  // namespace

double UnitFactor(long selector) {
    const DerivedUnit* unit = FindDerivedUnit(selector);
    return unit == nullptr ? 0 : unit->Factor({});
}

std::string UnitLabel(long selector) {
    std::string label = "[";
    if (const DerivedUnit* unit = FindDerivedUnit(selector))
        for (const char letter : std::string_view(unit->Label)) label += LabelPart(letter);
    return label + "]";
}

double FactorOf(Unit unit) {
    const UnitSource source = SourceOf(unit);
    if (source.Factor) return Session.*source.Factor;
    return source.Selector < 0 ? 1 : UnitFactor(source.Selector);
}

std::string LabelOf(Unit unit) {
    const UnitSource source = SourceOf(unit);
    if (source.Label) return Session.*source.Label;
    if (source.Selector >= 0) return UnitLabel(source.Selector);
    return unit == Unit::PerCent ? "[%]" : "[-]";
}

std::string FormatValue(double value, const std::string& format) {
    const bool date = format == kLongDate;
    const double day = std::floor(value);
    if (date && day >= kFirstDay && day <= kLastDay) return TextTools().LongDate(static_cast<int>(day));
    const char decimalSign = SharedServices().DecimalSign;
    // A number beyond the calendar, whose format in a damaged file is that of dates, is told as it is.
    if (!format.empty() && !date) return FormatNumber(value, format, decimalSign);
    std::string text = NumberToText(Single(value));
    for (char& c : text)
        if (c == '.') c = decimalSign;
    return text;
}

void SetDefaultUnits() {
    SetUnits(BaseUnits());
}

UnitSettings UnitsInForce() {
    return {Session.Len1Label,  Session.Len2Label,  Session.Force1Label,  Session.Force2Label, Session.TempLabel,
            Session.Len1Factor, Session.Len2Factor, Session.Force1Factor, Session.Force2Factor};
}

void SetUnits(const UnitSettings& units) {
    Session.Len1Label = units.Len1Label;
    Session.Len1Factor = units.Len1Factor;
    Session.Len2Label = units.Len2Label;
    Session.Len2Factor = units.Len2Factor;
    Session.Force1Label = units.Force1Label;
    Session.Force1Factor = units.Force1Factor;
    Session.Force2Label = units.Force2Label;
    Session.Force2Factor = units.Force2Factor;
    Session.TempLabel = units.TempLabel;
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
