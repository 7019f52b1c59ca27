#include "kernels/stress/SoilStressReport.h"

#include <string>

#include "core/Problems.h"
#include "core/Session.h"
#include "core/Units.h"
#include "kernels/stress/PrincipalValues.h"
#include "report/LoadRows.h"
#include "report/ToolLib.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// The title rows of the loads in a problem.
LoadTitles TitlesOf(int problemType) {
    switch (problemType) {
        case Problem::SoilStress:
            return {400171_text, 400174_text, 400177_text};
        case Problem::SoilStrain:
            return {400173_text, 400176_text, 400179_text};
        default:
            return {400172_text, 400175_text, 400178_text};
    }
}

// A component's text with the names of its axes.
std::string ComponentText(TextId id, Style style, Axis first) {
    return Text(id, style, {{"|1", LanguageTexts().AxisName(first)}});
}

std::string ComponentText(TextId id, Axis first, Axis second) {
    return Text(id, Styles::Component,
                {{"|1", LanguageTexts().AxisName(first)}, {"|2", LanguageTexts().AxisName(second)}});
}

void AddStressRows() {
    const std::string unit = LabelOf(Unit::Pressure);
    const double factor = FactorOf(Unit::Pressure);
    const auto add = [&](const Label& label, const char* symbol, Single value) {
        AddParameter(label, symbol, unit, value * factor, Session.FmtStress);
    };
    add(ComponentText(140179_text, Styles::Plain, Axis::X), "Sigma_x", Session.Sigma_x);
    add(ComponentText(140179_text, Styles::Plain, Axis::Y), "Sigma_y", Session.Sigma_y);
    add(ComponentText(140179_text, Styles::Plain, Axis::Z), "Sigma_z", Session.Sigma_z);
    add(ComponentText(140180_text, Axis::X, Axis::Y), "Tau_xy", Session.Tau_xy);
    add(ComponentText(140180_text, Axis::X, Axis::Z), "Tau_xz", Session.Tau_xz);
    add(ComponentText(140180_text, Axis::Y, Axis::Z), "Tau_yz", Session.Tau_yz);
    const PrincipalStresses principal =
        ComputePrincipalStresses(Session.Sigma_x, Session.Sigma_y, Session.Sigma_z, Session.Tau_xz);
    add(80008_text, "max_Tau", principal.max_Tau);
    add(80009_text, "max_Sigma", principal.max_Sigma);
    add(80010_text, "min_Sigma", principal.min_Sigma);
    add(80012_text, "p", principal.p);
    add(80011_text, "q", principal.q);
}

void AddStrainRows() {
    const auto add = [](const Label& label, const char* symbol, Single value) {
        AddParameter(label, symbol, "[-]", value, Session.FmtStrain);
    };
    add(ComponentText(140181_text, Styles::Component, Axis::X), "Varepsilon_x", Session.Varepsilon_x);
    add(ComponentText(140181_text, Styles::Component, Axis::Y), "Varepsilon_y", Session.Varepsilon_y);
    add(ComponentText(140181_text, Styles::Component, Axis::Z), "Varepsilon_z", Session.Varepsilon_z);
    add(ComponentText(140182_text, Axis::X, Axis::Y), "Gamma_xy", Session.Gamma_xy);
    add(ComponentText(140182_text, Axis::X, Axis::Z), "Gamma_xz", Session.Gamma_xz);
    add(ComponentText(140182_text, Axis::Y, Axis::Z), "Gamma_yz", Session.Gamma_yz);
    const PrincipalStrains principal =
        ComputePrincipalStrains(Session.Varepsilon_x, Session.Varepsilon_y, Session.Varepsilon_z, Session.Gamma_xz);
    add(80013_text, "max_Gamma", principal.max_Gamma);
    add(80014_text, "max_Epsilon", principal.max_Epsilon);
    add(80015_text, "min_Epsilon", principal.min_Epsilon);
    add(80017_text, "Epsilon_p", principal.Epsilon_p);
    add(80016_text, "Epsilon_q", principal.Epsilon_q);
}

void AddDisplacementRows() {
    // Deliberate: in cm whatever the small length unit is; its label changes, the number does not.
    const auto add = [](const Label& label, const char* symbol, Single value) {
        AddParameter(label, symbol, Session.Len2Label, value, Session.FmtSettlement);
    };
    add(ComponentText(140178_text, Styles::Component, Axis::X), "u", Session.u);
    add(ComponentText(140178_text, Styles::Component, Axis::Y), "v", Session.v);
    add(ComponentText(140178_text, Styles::Component, Axis::Z), "w", Session.w);
    add(40081_text, "s", Session.s);
}

void AddSoilRows(const SoilStressInput& in) {
    if (Session.ProblemType != Problem::SoilStress)
        AddParameter(90029_text, "Es", LabelOf(Unit::Pressure), in.Es * FactorOf(Unit::Pressure), Session.FmtModulus);
    AddParameter(90004_text, "Nue_s", "[-]", in.Nue, Session.FmtRatio);
}

}  // namespace

void WriteSoilStressReport(const SoilStressInput& in) {
    ReportHeading();
    if (IsSoilStress(Session.ProblemType)) AddLoadTitle(in.LoadType, TitlesOf(Session.ProblemType));
    AddParameter(Ruler());
    ReportParameters();

    AddSection(140095_text);
    AddLoadRows(in.LoadType, in.Q, in.P, in.A, in.B);
    AddSection(140162_text);
    AddSoilRows(in);
    AddSection(400128_text);
    AddCoordinateRows(in.x, in.y, in.z);
    AddSection(140096_text);
    switch (Session.ProblemType) {
        case Problem::SoilStress:
            AddStressRows();
            break;
        case Problem::SoilStrain:
            AddStrainRows();
            break;
        case Problem::SoilDisplacement:
            AddDisplacementRows();
            break;
        default:
            break;
    }
    ReportParameters();
}

}  // namespace lithmark
