#include "core/Catalogue.h"

#include <algorithm>
#include <array>

#include "core/Session.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

using CurveFamily::Isochrones, CurveFamily::MiddleRow, CurveFamily::TimeSettlement;
constexpr auto NoCurves = CurveFamily::None;

// The three methods of the time-settlement curve share one menu entry and one data file.
constexpr std::array kProblems = {
    ProblemRow{Problem::SoilStress, 1, 140185_text, 140185_text, "SSD", NoCurves, true, false},
    ProblemRow{Problem::SoilStrain, 2, 300100_text, 300100_text, "SSD", NoCurves, true, false},
    ProblemRow{Problem::SoilDisplacement, 3, 300001_text, 300001_text, "SSD", NoCurves, true, false},
    ProblemRow{Problem::Consolidation, 4, 140186_text, 140186_text, "CON", NoCurves, true, false},
    ProblemRow{Problem::ConsolidationRate, 5, 140187_text, 140187_text, "RAT", Isochrones, true, false},
    ProblemRow{Problem::TimeDirect, 6, 140188_text, 300047_text, "TST", TimeSettlement, true, false},
    ProblemRow{Problem::TimeOedometer, 6, 140188_text, 300048_text, "TST", TimeSettlement, true, false},
    ProblemRow{Problem::TimeTheory, 6, 140188_text, 300033_text, "TST", TimeSettlement, true, false},
    ProblemRow{Problem::RaftDisplacement, 7, 140189_text, 140189_text, "RDE", MiddleRow, true, true, 90046_text},
    ProblemRow{Problem::RaftConsolidation, 8, 140190_text, 140190_text, "RCO", MiddleRow, true, true, 140186_text},
    ProblemRow{Problem::LayerTable, 9, 400190_text, 400190_text, "SC1", TimeSettlement, false, true},
};

void SetSoilStressDefaults() {
    auto& s = Session;
    s.x = 1;
    s.y = 1;
    s.z = 0;
    s.Q = 7854;
    s.P = 100;
    s.A = 5;
    s.B = 5;
    s.Nue = 0.25;
    s.Es = 5000;
    s.LoadType = LoadShape::Rectangle;
}

void SetConsolidationDefaults() {
    auto& s = Session;
    s.x = 0;
    s.y = 0;
    s.z = 1;
    s.Q = 7854;
    s.P = 150;
    s.A = 2;
    s.B = 2;
    s.Es = 5000;
    s.Cc = 0.16;
    s.h = 5;
    s.eo = 0.85;
    s.Po = 51.82;
    s.Gamma = 8.69;
    s.LoadType = LoadShape::Rectangle;
    s.SoilPropertyType = SoilDefinition::ByCompressionIndex;
}

void SetConsolidationRateDefaults() {
    auto& s = Session;
    s.A = 2;
    s.B = 2;
    s.x = 0;
    s.y = 0;
    s.z = 1;
    s.Q = 7854;
    s.P = 150;
    s.LoadType = LoadShape::Rectangle;
    s.hLayer(1) = 4;
    s.hLayer(2) = 5;
    for (int i = 1; i <= 2; ++i) {
        s.CvLayer(i) = 0.0000015;
        s.KLayer(i) = 1;
    }
    s.T = 5;
    s.U = 100;
    s.NumLayers = 1;
    s.DrainageCondition = Drainage::BottomDrained;
    s.Pressure = true;
    s.TimeUnit = Text(10004_text);
}

void SetTimeSettlementDefaults() {
    auto& s = Session;
    s.DrainageFaces = Faces::Both;
    s.CvChoice = CvFrom::SoilData;
    s.CvTS = 0.0000015;
    s.kf = 0.00004;
    s.EsTS = 24000;
    s.Ws = 80000;
    s.qv = 36;
    s.qe = 130;
    s.h = 8;
    s.Hm = 0.019;
    s.Sc = 12.1;
    s.Pt = 6350;
    s.TimePeriod = 18;
    s.StartDate = s.Datum;
    s.TimeUnit = Text(10001_text);
    s.Ms = true;
    s.Sm = 4.61;

    s.NLoad = 5;
    s.LoadTime = Array<Integer>::Of({1, 2, 4, 7, 12});
    s.LoadValue = Array<Single>::Of({19, 42, 83, 94, 100});
    s.NSts = 5;
    s.StsTime = Array<Single>::Of({1, 2, 3, 4, 5});
    s.StsValue = Array<Single>::Of({49, 74, 89, 97, 100});
    s.NOed = 10;
    s.OedTime = Array<Single>::Of({0.25, 1, 2.25, 4, 9, 16, 25, 36, 49, 1440});
    s.OedSettlement = Array<Single>::Of({0.14, 0.282, 0.424, 0.564, 0.839, 1.019, 1.148, 1.231, 1.257, 1.309});
    s.OedUnit = Text(42_text);
    s.DesignCode = s.LoadTime(3);
}

// Deliberate: these carry the consolidation defaults that the problem's own dialog does not show, so that a raft on
// clay chosen afterwards finds them; it sets none of z, eo, Po, Cc and Gamma itself and takes what the record holds.
void SetRigidDisplacementDefaults() {
    auto& s = Session;
    s.z = 1;
    s.A = 5;
    s.B = 5;
    s.h = 5;
    s.Q = 7854;
    s.Nue = 0.25;
    s.Es = 5000;
    s.Cc = 0.16;
    s.eo = 0.85;
    s.Po = 51.82;
    s.LoadType = LoadShape::Rectangle;
    s.SoilPropertyType = SoilDefinition::ByCompressionIndex;
    s.Exz_x = 0;
    s.Exz_y = 0;
    s.Gamma = 8.69;
    s.AnalysisType = Analysis::Analytical;
    s.SettlementAt = SettlementPlace::CentreAndEdge;
}

void SetRigidConsolidationDefaults() {
    auto& s = Session;
    s.Q = 7854;
    s.A = 5;
    s.B = 5;
    s.h = 5;
    s.Es = 5000;
    s.LoadType = LoadShape::Rectangle;
    s.Exz_x = 0;
    s.Exz_y = 0;
    s.AnalysisType = Analysis::Analytical;
    s.SettlementAt = SettlementPlace::CentreAndEdge;
    s.SoilPropertyType = SoilDefinition::ByModulus;
}

void SetLayerTableDefaults() {
    auto& s = Session;
    s.ScLoad = 25;
    s.NScA = 1;
    s.ScA1 = Array<Single>::Of({1000});
    s.ScA2 = Array<Single>::Of({2});
    s.ScA3 = Array<Single>::Of({2});
    s.ScA4 = Array<Single>::Of({0.5});
    s.ScA5 = Array<Single>::Of({1.5});
    s.ScA6 = Array<Single>::Of({1});
    s.ScA7 = Array<Single>::Of({1});
    s.ScA8 = Array<Single>::Of({0});
    s.ScA9 = Array<Single>::Of({0});
    s.NScB = 1;
    s.ScB1 = Array<Single>::Of({50});
    s.ScB2 = Array<Single>::Of({50000});
    s.ScB3 = Array<Single>::Of({150000});
    s.ScB4 = Array<Single>::Of({0.5});
    s.ScB5 = Array<Single>::Of({18});
    s.ScValue1 = 0.5;
    s.ScValue2 = 0.2;
    s.ScFlag = true;
    s.ScValue3 = 1;
    s.ScValue4 = 2;
}

}  // namespace

std::span<const ProblemRow> ProblemCatalogue() {
    return kProblems;
}

const ProblemRow* FindProblem(int problemType) {
    const auto row = std::ranges::find(kProblems, problemType, &ProblemRow::ProblemType);
    return row == kProblems.end() ? nullptr : &*row;
}

const ProblemRow& ProblemInForce() {
    const ProblemRow* row = FindProblem(Session.ProblemType);
    if (row == nullptr) Fail(FailureKind::SubscriptRange);
    return *row;
}

const ProblemRow* FirstProblemOf(int menuEntry) {
    const auto row = std::ranges::find(kProblems, menuEntry, &ProblemRow::MenuEntry);
    return row == kProblems.end() ? nullptr : &*row;
}

void SetProblemDefaults() {
    switch (Session.ProblemType) {
        case Problem::SoilStress:
        case Problem::SoilStrain:
        case Problem::SoilDisplacement:
            return SetSoilStressDefaults();
        case Problem::Consolidation:
            return SetConsolidationDefaults();
        case Problem::ConsolidationRate:
            return SetConsolidationRateDefaults();
        case Problem::TimeDirect:
        case Problem::TimeOedometer:
        case Problem::TimeTheory:
            return SetTimeSettlementDefaults();
        case Problem::RaftDisplacement:
            return SetRigidDisplacementDefaults();
        case Problem::RaftConsolidation:
            return SetRigidConsolidationDefaults();
        case Problem::LayerTable:
            return SetLayerTableDefaults();
    }
}

}  // namespace lithmark
