// The problems by name, and the values of the choices that a problem's data hold. They are the numbers of the data
// files.
#pragma once

namespace lithmark {

// Session.ProblemType.
namespace Problem {
inline constexpr int SoilStress = 1, SoilStrain = 2, SoilDisplacement = 3;
inline constexpr int Consolidation = 4;
inline constexpr int ConsolidationRate = 5;  // degree of consolidation of one or two clay layers
// The time-settlement curve by its method: relative settlements entered directly, from one oedometer load stage, after
// Terzaghi and Fröhlich.
inline constexpr int TimeDirect = 6, TimeOedometer = 7, TimeTheory = 8;
inline constexpr int RaftDisplacement = 9, RaftConsolidation = 10;  // rigid raft on an elastic layer, on clay
inline constexpr int LayerTable = 11;                               // data only
}  // namespace Problem

constexpr bool IsSoilStress(int problemType) {
    return problemType >= Problem::SoilStress && problemType <= Problem::SoilDisplacement;
}
constexpr bool IsTimeSettlement(int problemType) {
    return problemType >= Problem::TimeDirect && problemType <= Problem::TimeTheory;
}
constexpr bool IsRaft(int problemType) {
    return problemType == Problem::RaftDisplacement || problemType == Problem::RaftConsolidation;
}

// Session.LoadType: the load, or the raft, and its shape.
namespace LoadShape {
inline constexpr int Point = 1, Rectangle = 2, Circle = 3;
}

// Session.SoilPropertyType: the soil by Es, or by Cc, eo and Po.
namespace SoilDefinition {
inline constexpr int ByModulus = 1, ByCompressionIndex = 2;
}

// Session.AnalysisType of a raft.
namespace Analysis {
inline constexpr bool Analytical = true, Numerical = false;
}

// Session.SettlementAt of an analytical circular raft.
namespace SettlementPlace {
inline constexpr bool CentreAndEdge = true, AllNodes = false;
}

// Session.DrainageCondition: how the bottom of the last layer drains.
namespace Drainage {
inline constexpr int BottomDrained = 1, BottomImpermeable = 2;
}

// Session.DrainageFaces.
namespace Faces {
inline constexpr int OneSided = 1, Both = 2;
}

// Session.CvChoice: the coefficient of consolidation from the soil data, or as given.
namespace CvFrom {
inline constexpr int SoilData = 1, Input = 3;
}

}  // namespace lithmark
