// Which results are wanted as a curve or as contours. Session holds the choice as texts ("Tab1" to "Tab6", labels of
// units); the program works with these values.
#pragma once

#include <optional>
#include <string>

namespace lithmark {

enum class CurveSet { Load, SuddenLoad, Building, Corrected, ContactPressure, RaftSettlement };
inline constexpr int kCurveSets = 6;

// "Tab1" for the first, and so on; nothing for a text that names none.
std::string CurveSetName(CurveSet set);
std::optional<CurveSet> CurveSetNamed(const std::string& name);
// That of a raft's middle row, which takes the units in force; the others belong to the time-settlement problems.
constexpr bool IsRaftCurve(CurveSet set) {
    return set == CurveSet::ContactPressure || set == CurveSet::RaftSettlement;
}

// Per cent of the total load or of the final settlement, or the unit in force.
enum class CurveUnit { PerCent, InForce };

struct CurveRequest {
    CurveSet Set = CurveSet::Load;
    CurveUnit LoadUnit = CurveUnit::InForce, SettlementUnit = CurveUnit::InForce;
};

// To and from Session.CurveChoice, CurveLoadUnit and CurveSettlementUnit. InvalidArgument for a choice that names none.
void RequestCurve(const CurveRequest& request);
CurveRequest RequestedCurve();

// The same for Session.ContourResult: contact pressures, or settlements.
void RequestContours(CurveSet result);
bool PressureContoursRequested();

}  // namespace lithmark
