#include "study/window/ResultChoices.h"

#include <initializer_list>

#include "core/Catalogue.h"
#include "core/Units.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

using Choices = std::vector<ResultChoice>;

// In what a result is shown, and how.
struct Quantity {
    std::string Unit;
    double Factor;
    std::string Format;
};

std::string WithoutBrackets(const std::string& label) {
    const bool bracketed = label.starts_with('[') && label.ends_with(']');
    return bracketed ? label.substr(1, label.size() - 2) : label;
}

Quantity Stress() {
    return {WithoutBrackets(LabelOf(Unit::Pressure)), FactorOf(Unit::Pressure), Session.FmtStress};
}
Quantity Settlement() {
    return {WithoutBrackets(Session.Len2Label), Session.Len2Factor, Session.FmtSettlement};
}
// Deliberate: as in the report, in cm whatever the small length unit is; its label changes, the number does not.
Quantity Displacement() {
    return {WithoutBrackets(Session.Len2Label), 1, Session.FmtSettlement};
}
Quantity Strain() {
    return {"", 1, Session.FmtStrain};
}
Quantity Ratio() {
    return {"", 1, Session.FmtRatio};
}
Quantity Time(const SessionRecord& draft) {
    return {draft.TimeUnit, 1, Session.FmtTime};
}

ResultChoice Of(const std::string& take, const std::string& symbol, const std::string& label, const Quantity& in) {
    return {take, symbol, label, in.Unit, in.Factor, in.Format, {}};
}

std::string Along(TextId text, Axis axis) {
    return Text(text, {{"|1", LanguageTexts().AxisName(axis)}});
}
std::string InPlane(TextId text, Axis first, Axis second) {
    return Text(text, {{"|1", LanguageTexts().AxisName(first)}, {"|2", LanguageTexts().AxisName(second)}});
}

void AddComponents(Choices& choices, const std::string& normal, TextId normalText, const std::string& shear,
                   TextId shearText, const Quantity& in) {
    choices.push_back(Of(normal + "_z", normal + "_z", Along(normalText, Axis::Z), in));
    choices.push_back(Of(normal + "_x", normal + "_x", Along(normalText, Axis::X), in));
    choices.push_back(Of(normal + "_y", normal + "_y", Along(normalText, Axis::Y), in));
    choices.push_back(Of(shear + "_xy", shear + "_xy", InPlane(shearText, Axis::X, Axis::Y), in));
    choices.push_back(Of(shear + "_xz", shear + "_xz", InPlane(shearText, Axis::X, Axis::Z), in));
    choices.push_back(Of(shear + "_yz", shear + "_yz", InPlane(shearText, Axis::Y, Axis::Z), in));
}

struct Named {
    const char* Name;
    TextId Label;
};

void AddNamed(Choices& choices, std::initializer_list<Named> all, const Quantity& in) {
    for (const auto& [name, label] : all) choices.push_back(Of(name, name, Text(label), in));
}

void AddStresses(Choices& choices) {
    AddComponents(choices, "Sigma", 140179_text, "Tau", 140180_text, Stress());
    AddNamed(choices,
             {{"max_Tau", 80008_text},
              {"max_Sigma", 80009_text},
              {"min_Sigma", 80010_text},
              {"p", 80012_text},
              {"q", 80011_text}},
             Stress());
}

void AddStrains(Choices& choices) {
    AddComponents(choices, "Varepsilon", 140181_text, "Gamma", 140182_text, Strain());
    AddNamed(choices,
             {{"max_Gamma", 80013_text},
              {"max_Epsilon", 80014_text},
              {"min_Epsilon", 80015_text},
              {"Epsilon_p", 80017_text},
              {"Epsilon_q", 80016_text}},
             Strain());
}

void AddDisplacements(Choices& choices) {
    choices.push_back(Of("s", "s", Text(40081_text), Displacement()));
    choices.push_back(Of("u", "u", Along(140178_text, Axis::X), Displacement()));
    choices.push_back(Of("v", "v", Along(140178_text, Axis::Y), Displacement()));
    choices.push_back(Of("w", "w", Along(140178_text, Axis::Z), Displacement()));
}

// The curve has a slot for each time; the last one holds what comes in the end.
void AddTimeSettlement(Choices& choices, const SessionRecord& draft) {
    choices.push_back(Of("max(SettlementSum)", "max s", Text(913320_text), Settlement()));
    choices.push_back(Of("ConsolidationEnd", "Tb", Text(300062_text), Time(draft)));
    if (draft.Ms) choices.push_back(Of("MeasureFactor", "f", Text(300059_text), Ratio()));
}

void AddRaft(Choices& choices, const SessionRecord& draft) {
    const std::string settlement = Text(FindProblem(draft.ProblemType)->RaftSettlement);
    const auto greatest = [](const std::string& of) { return Text(913321_text, {{"|1", of}}); };
    const auto least = [](const std::string& of) { return Text(913322_text, {{"|1", of}}); };
    choices.push_back(Of("max(NodeSettlement)", "max s", greatest(settlement), Settlement()));
    choices.push_back(Of("min(NodeSettlement)", "min s", least(settlement), Settlement()));
    choices.push_back(Of("max(NodePressure)", "max q", greatest(Text(90098_text)), Stress()));
    choices.push_back(Of("min(NodePressure)", "min q", least(Text(90098_text)), Stress()));
    choices.push_back(Of("RaftMeanPressure", "qm", Text(913323_text), Stress()));
}

}  // namespace

std::string ResultChoice::Shown(double number) const {
    return FormatValue(number * Factor, Format);
}

std::vector<ResultChoice> ResultChoicesOf(const SessionRecord& draft) {
    Choices choices;
    switch (draft.ProblemType) {
        case Problem::SoilStress:
            AddStresses(choices);
            break;
        case Problem::SoilStrain:
            AddStrains(choices);
            break;
        case Problem::SoilDisplacement:
            AddDisplacements(choices);
            break;
        case Problem::Consolidation:
            choices.push_back(Of("s", "s", Text(140186_text), Settlement()));
            choices.push_back(Of("Sigma_z", "Sigma_z", Along(140179_text, Axis::Z), Stress()));
            break;
        case Problem::ConsolidationRate:
            choices.push_back(Of("Uc", "Uc", Text(140187_text), {"%", 1, Session.FmtPercent}));
            break;
        case Problem::RaftDisplacement:
        case Problem::RaftConsolidation:
            AddRaft(choices, draft);
            break;
        default:
            if (IsTimeSettlement(draft.ProblemType)) AddTimeSettlement(choices, draft);
    }
    return choices;
}

}  // namespace lithmark
