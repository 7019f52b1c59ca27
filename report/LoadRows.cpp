#include "report/LoadRows.h"

#include <string>

#include "core/Problems.h"
#include "core/Units.h"
#include "report/ToolLib.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

void AddLengthRow(const Label& label, const std::string& symbol, double value) {
    AddParameter(label, symbol, Session.Len1Label, value, Session.FmtLength);
}

void AddPressureRow(TextId label, Single P) {
    AddParameter(label, "p", LabelOf(Unit::Pressure), P * FactorOf(Unit::Pressure), Session.FmtStress);
}

}  // namespace

double ReportLength(Single length, LengthFactor factor) {
    const double once = length * Session.Len1Factor;
    return factor == LengthFactor::Once ? once : once * Session.Len1Factor;
}

void AddLoadTitle(Integer loadType, const LoadTitles& titles) {
    if (loadType < LoadShape::Point || loadType > LoadShape::Circle) return;
    AddParameter(titles[static_cast<std::size_t>(loadType - LoadShape::Point)]);
}

void AddLoadRows(Integer loadType, Single Q, Single P, Single A, Single B, LengthFactor aFactor) {
    switch (loadType) {
        case LoadShape::Point:
            AddParameter(400186_text, "Q", Session.Force1Label, Q * Session.Force1Factor, Session.FmtForce);
            break;
        case LoadShape::Rectangle:
            AddPressureRow(300002_text, P);
            AddLengthRow(400001_text, "a", ReportLength(A, aFactor));
            AddLengthRow(101_text, "b", ReportLength(B));
            break;
        case LoadShape::Circle:
            AddPressureRow(400127_text, P);
            AddLengthRow(400120_text, "a", ReportLength(A));
            break;
        default:
            break;
    }
}

void AddCoordinateRows(Single x, Single y, Single z, LengthFactor factor) {
    const auto add = [&](Axis axis, const char* symbol, Single value) {
        AddLengthRow(Text(90001_text, {{"|1", LanguageTexts().AxisName(axis)}}), symbol, ReportLength(value, factor));
    };
    add(Axis::X, "x", x);
    add(Axis::Y, "y", y);
    add(Axis::Z, "z", z);
}

}  // namespace lithmark
