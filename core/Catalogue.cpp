#include "core/Catalogue.h"

#include <algorithm>
#include <array>

#include "core/Session.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// The three methods of the time-settlement curve share one menu entry and one data file.
constexpr std::array kProblems = {
    ProblemRow{1, 1, 140185_text, "SSD"},   // stresses in soil
    ProblemRow{2, 2, 300100_text, "SSD"},   // strains in soil
    ProblemRow{3, 3, 300001_text, "SSD"},   // displacements in soil
    ProblemRow{4, 4, 140186_text, "CON"},   // consolidation settlement
    ProblemRow{5, 5, 140187_text, "RAT"},   // degree of consolidation for two clay layers
    ProblemRow{6, 6, 140188_text, "TST"},   // time-settlement curve, relative settlement entered directly
    ProblemRow{7, 6, 140188_text, "TST"},   // the same from one oedometer load stage
    ProblemRow{8, 6, 140188_text, "TST"},   // the same after Terzaghi/Fröhlich
    ProblemRow{9, 7, 140189_text, "RDE"},   // rigid raft, displacement
    ProblemRow{10, 8, 140190_text, "RCO"},  // rigid raft, consolidation
    ProblemRow{11, 9, 400190_text, "SC1"},  // data only
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
    s.LoadType = 2;
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
    s.LoadType = 2;
    s.SoilPropertyType = 2;
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
    s.LoadType = 2;
    s.hLayer(1) = 4;
    s.hLayer(2) = 5;
    for (int i = 1; i <= 2; ++i) {
        s.CvLayer(i) = 0.0000015;
        s.KLayer(i) = 1;
    }
    s.T = 5;
    s.U = 100;
    s.NumLayers = 1;
    s.DrainageCondition = 1;
    s.Pressure = true;
    s.TimeUnit = Text(10004_text);
}

void SetTimeSettlementDefaults() {
    auto& s = Session;
    s.DrainageFaces = 2;
    s.CvChoice = 1;
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

// These carry the consolidation defaults that the problem's own dialog does not show, while problem 10, which
// calculates with them, gets none of z, eo, Po, Cc and Gamma. Kept: existing projects rely on it.
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
    s.LoadType = 2;
    s.SoilPropertyType = 2;
    s.Exz_x = 0;
    s.Exz_y = 0;
    s.Gamma = 8.69;
    s.AnalysisType = true;
    s.SettlementAt = true;
}

void SetRigidConsolidationDefaults() {
    auto& s = Session;
    s.Q = 7854;
    s.A = 5;
    s.B = 5;
    s.h = 5;
    s.Es = 5000;
    s.LoadType = 2;
    s.Exz_x = 0;
    s.Exz_y = 0;
    s.AnalysisType = true;
    s.SettlementAt = true;
    s.SoilPropertyType = 1;
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
    const auto row = std::find_if(kProblems.begin(), kProblems.end(),
                                  [&](const ProblemRow& problem) { return problem.ProblemType == problemType; });
    return row == kProblems.end() ? nullptr : &*row;
}

void SetProblemDefaults() {
    switch (Session.ProblemType) {
        case 1:
        case 2:
        case 3:
            return SetSoilStressDefaults();
        case 4:
            return SetConsolidationDefaults();
        case 5:
            return SetConsolidationRateDefaults();
        case 6:
        case 7:
        case 8:
            return SetTimeSettlementDefaults();
        case 9:
            return SetRigidDisplacementDefaults();
        case 10:
            return SetRigidConsolidationDefaults();
        case 11:
            return SetLayerTableDefaults();
    }
}

}  // namespace lithmark
