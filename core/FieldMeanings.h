// What the fields of a problem's data mean: symbol, unit and wording, one table for listings and for naming fields.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/TextId.h"

namespace lithmark {

// What a stored value is counted in, whatever units are shown.
enum class BaseUnit {
    None,
    Metre,
    Centimetre,
    Kilonewton,
    Pressure,       // kN/m2
    UnitWeight,     // kN/m3
    AreaPerTime,    // m2/s
    LengthPerTime,  // m/s
    PerCent,
    Minute,
    TimeUnit,      // the project's own, Session.TimeUnit
    OedometerUnit  // Session.OedUnit
};

struct FieldMeaning {
    std::string_view Name;    // "Es", or an element such as "hLayer(2)"
    std::string_view Symbol;  // what the problem's report prints for it; empty where it prints none
    TextId Text;
    BaseUnit Unit = BaseUnit::None;
};

// A row for each field of a problem's data file, and where the report has more symbols for a field a row for each of
// them; fields with symbols first. Empty for a problem that is none.
std::span<const FieldMeaning> MeaningsOf(int problemType);

// The row of a field or element, the first of several; null where the problem has no such field.
const FieldMeaning* FindMeaning(int problemType, std::string_view name);

// The words of a row in the language in force, without the mark and the colon that they may have on a form; coordinates
// with the name of their axis.
std::string MeaningText(const FieldMeaning& meaning);

// "m", "kN/m2", "min"; the time units as the project has them; empty where there is none.
std::string BaseUnitText(BaseUnit unit);

}  // namespace lithmark
