#include "core/CurveRequest.h"

#include "base/Failure.h"
#include "core/Session.h"
#include "core/Units.h"

namespace lithmark {

namespace {

CurveUnit UnitOf(const std::string& label) {
    return label == LabelOf(Unit::PerCent) ? CurveUnit::PerCent : CurveUnit::InForce;
}

std::string LabelFor(CurveUnit unit, Unit inForce) {
    return LabelOf(unit == CurveUnit::PerCent ? Unit::PerCent : inForce);
}

}  // namespace

std::string CurveSetName(CurveSet set) {
    return "Tab" + std::to_string(static_cast<int>(set) + 1);
}

std::optional<CurveSet> CurveSetNamed(const std::string& name) {
    for (int i = 0; i < kCurveSets; ++i)
        if (const auto set = static_cast<CurveSet>(i); name == CurveSetName(set)) return set;
    return std::nullopt;
}

void RequestCurve(const CurveRequest& request) {
    Session.CurveChoice = CurveSetName(request.Set);
    Session.CurveLoadUnit = LabelFor(request.LoadUnit, Unit::Force);
    Session.CurveSettlementUnit = LabelFor(request.SettlementUnit, Unit::Settlement);
}

CurveRequest RequestedCurve() {
    const std::optional<CurveSet> set = CurveSetNamed(Session.CurveChoice);
    if (!set) Fail(FailureKind::InvalidArgument);
    return {*set, UnitOf(Session.CurveLoadUnit), UnitOf(Session.CurveSettlementUnit)};
}

void RequestContours(CurveSet result) {
    Session.ContourResult = CurveSetName(result);
}

bool PressureContoursRequested() {
    return CurveSetNamed(Session.ContourResult) == CurveSet::ContactPressure;
}

}  // namespace lithmark
