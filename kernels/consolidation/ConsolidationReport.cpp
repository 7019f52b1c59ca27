// The report of problem 4.
#include "core/Problems.h"
#include "core/Session.h"
#include "core/Units.h"
#include "kernels/consolidation/ConsolidationInput.h"
#include "report/LoadRows.h"
#include "report/ToolLib.h"

namespace lithmark {

namespace {

void AddSoilRows(const ConsolidationInput& in) {
    const auto addStress = [](const Label& label, const char* symbol, Single value, const std::string& format) {
        AddParameter(label, symbol, LabelOf(Unit::Pressure), value * FactorOf(Unit::Pressure), format);
    };
    if (in.SoilPropertyType == SoilDefinition::ByModulus) addStress(90029_text, "Es", in.Es, Session.FmtModulus);
    if (in.SoilPropertyType == SoilDefinition::ByCompressionIndex) {
        AddParameter(300004_text, "Cc", "[-]", in.Cc, Session.FmtRatio);
        AddParameter(10175_text, "eo", "[-]", in.eo, Session.FmtRatio);
        addStress(120001_text, "po", in.Po, Session.FmtStress);
        // Deliberate: in kN/m3 whatever the units are; the label changes, the number does not.
        AddParameter(10244_text, "Gamma_c", LabelOf(Unit::UnitWeight), in.Gamma, Session.FmtUnitWeight);
        // Deliberate: the overburden once more, under its second symbol.
        addStress(120001_text, "Gamma*z", in.Po, Session.FmtStress);
    }
}

}  // namespace

void WriteConsolidationReport(const ConsolidationInput& in) {
    ReportHeading();
    AddLoadTitle(in.LoadType, {400180_text, 400181_text, 400182_text});
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
