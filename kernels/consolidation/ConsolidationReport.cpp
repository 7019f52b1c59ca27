// The report of problem 4.
#include "core/Session.h"
#include "core/Units.h"
#include "kernels/consolidation/ConsolidationInput.h"
#include "report/LoadRows.h"
#include "report/ToolLib.h"

namespace lithmark {

namespace {

void AddTitleRow(int loadType) {
    switch (loadType) {
        case 1:
            AddParameter(400180_text);
            break;
        case 2:
            AddParameter(400181_text);
            break;
        case 3:
            AddParameter(400182_text);
            break;
        default:
            break;
    }
}

void AddSoilRows(const ConsolidationInput& in) {
    const auto addStress = [](const Label& label, const char* symbol, Single value, const std::string& format) {
        AddParameter(label, symbol, UnitLabel(0), value * UnitFactor(0), format);
    };
    if (in.SoilPropertyType == 1) addStress(90029_text, "Es", in.Es, Session.FmtModulus);
    if (in.SoilPropertyType == 2) {
        AddParameter(300004_text, "Cc", "[-]", in.Cc, Session.FmtRatio);
        AddParameter(10175_text, "eo", "[-]", in.eo, Session.FmtRatio);
        addStress(120001_text, "po", in.Po, Session.FmtStress);
        // In kN/m3 whatever the units are: the label changes, the number does not. Kept: existing projects rely on it.
        AddParameter(10244_text, "Gamma_c", UnitLabel(3), in.Gamma, Session.FmtUnitWeight);
        // The overburden once more, under a second symbol. Kept: existing reports have it.
        addStress(120001_text, "Gamma*z", in.Po, Session.FmtStress);
    }
}

}  // namespace

void WriteConsolidationReport(const ConsolidationInput& in) {
    ReportHeading();
    AddTitleRow(in.LoadType);
    AddParameter(Ruler());
    ReportParameters();

    AddSection(140095_text);
    AddLoadRows(in.LoadType, in.Q, in.P, in.A, in.B);
    AddSection(140162_text);
    AddSoilRows(in);
    AddSection(400128_text);
    AddCoordinateRows(in.x, in.y, in.z, LengthFactor::Twice);
    AddParameter(40052_text, "h", Session.Len1Label, ReportLength(in.h, LengthFactor::Twice), Session.FmtLength);
    AddSection(140096_text);
    AddParameter(140186_text, "s", Session.Len2Label, Session.s * Session.Len2Factor, Session.FmtSettlement);
    ReportParameters();
}

}  // namespace lithmark
