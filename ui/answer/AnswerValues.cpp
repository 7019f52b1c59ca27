// The values of an answer, in the units, formats and words of the report.
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "core/Problems.h"
#include "core/TimeUnits.h"
#include "core/Units.h"
#include "kernels/consolidation/ConsolidationRateRun.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "ui/answer/AnswerRun.h"
#include "ui/answer/RaftPlane.h"

namespace lithmark {

namespace {

class Values {
  public:
    explicit Values(const CommandOutput& report) : report_(report) {}

    // A number of 32 bits, as results are.
    std::optional<Single> Result(const std::string& name) const {
        const auto found = report_.Numbers.find(name);
        if (found == report_.Numbers.end()) return std::nullopt;
        return Single(found->second);
    }
    const std::vector<double>& List(const std::string& name) const {
        static const std::vector<double> none;
        const auto found = report_.Lists.find(name);
        return found == report_.Lists.end() ? none : found->second;
    }
    void Add(const std::string& symbol, const std::string& label, double number, const std::string& unit,
             const std::string& format) {
        all_.push_back({symbol, label, FormatValue(number, format), unit, number, main_});
    }
    // A result under its own symbol; none where the run has none.
    void AddResult(const std::string& name, const std::string& label, double factor, const std::string& unit,
                   const std::string& format) {
        if (const auto value = Result(name)) Add(name, label, *value * factor, unit, format);
    }
    // What follows is shown on request.
    void EndMain() { main_ = false; }
    std::vector<AnswerValue> Taken() { return std::move(all_); }

  private:
    const CommandOutput& report_;
    std::vector<AnswerValue> all_;
    bool main_ = true;
};

struct Component {
    const char* Symbol;
    Axis First;
    std::optional<Axis> Second;
};

std::string WithAxes(TextId id, const Component& component) {
    Replacements axes = {{"|1", LanguageTexts().AxisName(component.First)}};
    if (component.Second) axes.emplace_back("|2", LanguageTexts().AxisName(*component.Second));
    return Text(id, Styles::Component, axes);
}

// The vertical one first, as it is the one that is looked for.
constexpr std::array kNormal = {Component{"_z", Axis::Z, {}}, Component{"_x", Axis::X, {}},
                                Component{"_y", Axis::Y, {}}};
constexpr std::array kShear = {Component{"_xy", Axis::X, Axis::Y}, Component{"_xz", Axis::X, Axis::Z},
                               Component{"_yz", Axis::Y, Axis::Z}};

struct Quantity {
    const char* Name;
    TextId Label;
};

struct Tensor {
    const char *Normal, *Shear;
    TextId NormalLabel, ShearLabel;
    std::array<Quantity, 5> Principal;
};

void AddTensor(Values& values, const Tensor& tensor, double factor, const std::string& unit,
               const std::string& format) {
    for (const Component& component : kNormal)
        values.AddResult(std::string(tensor.Normal) + component.Symbol, WithAxes(tensor.NormalLabel, component), factor,
                         unit, format);
    for (const Component& component : kShear)
        values.AddResult(std::string(tensor.Shear) + component.Symbol, WithAxes(tensor.ShearLabel, component), factor,
                         unit, format);
    values.EndMain();
    for (const Quantity& quantity : tensor.Principal)
        values.AddResult(quantity.Name, Text(quantity.Label), factor, unit, format);
}

void AddStresses(Values& values) {
    static const Tensor stresses = {"Sigma",
                                    "Tau",
                                    140179_text,
                                    140180_text,
                                    {{{"max_Tau", 80008_text},
                                      {"max_Sigma", 80009_text},
                                      {"min_Sigma", 80010_text},
                                      {"p", 80012_text},
                                      {"q", 80011_text}}}};
    AddTensor(values, stresses, FactorOf(Unit::Pressure), LabelOf(Unit::Pressure), Session.FmtStress);
}

void AddStrains(Values& values) {
    static const Tensor strains = {"Varepsilon",
                                   "Gamma",
                                   140181_text,
                                   140182_text,
                                   {{{"max_Gamma", 80013_text},
                                     {"max_Epsilon", 80014_text},
                                     {"min_Epsilon", 80015_text},
                                     {"Epsilon_p", 80017_text},
                                     {"Epsilon_q", 80016_text}}}};
    AddTensor(values, strains, 1, "[-]", Session.FmtStrain);
}

void AddDisplacements(Values& values) {
    // Deliberate: in cm whatever the small length unit is, as in the report.
    values.AddResult("s", Text(40081_text), 1, Session.Len2Label, Session.FmtSettlement);
    for (const Component& component :
         {Component{"u", Axis::X, {}}, Component{"v", Axis::Y, {}}, Component{"w", Axis::Z, {}}})
        values.AddResult(component.Symbol, WithAxes(140178_text, component), 1, Session.Len2Label,
                         Session.FmtSettlement);
}

void AddConsolidation(Values& values) {
    values.AddResult("s", Text(140186_text), Session.Len2Factor, Session.Len2Label, Session.FmtSettlement);
    values.AddResult("Sigma_z", Text(913040_text), FactorOf(Unit::Pressure), LabelOf(Unit::Pressure),
                     Session.FmtStress);
}

void AddRate(Values& values, const SessionRecord& draft) {
    values.AddResult("Uc", Text(140187_text), 1, "[%]", Session.FmtPercent);
    const Single factor = TimeFactorOfLayer1(draft.DrainageCondition, draft.hLayer(1), draft.CvLayer(1), draft.T,
                                             SecondsPerTimeUnit(draft.TimeUnit));
    values.Add("Tv", Text(400126_text), factor, "[-]", Session.FmtRatio);
}

void AddTimeSettlement(Values& values, const SessionRecord& draft) {
    const std::vector<double>& settlement = values.List("SettlementSum");
    const std::size_t end = static_cast<std::size_t>(static_cast<int>(draft.TimePeriod)) + 1;
    if (end < settlement.size())
        values.Add(
            "Zse",
            Text(913041_text, {{"|1", NumberToText(static_cast<int>(draft.TimePeriod))}, {"|2", draft.TimeUnit}}),
            Single(settlement[end]) * Session.Len2Factor, Session.Len2Label, Session.FmtSettlement);
    if (const auto factor = values.Result("MeasureFactor"); factor && *factor != 0) {
        values.Add("f", Text(300059_text), *factor, "[-]", Session.FmtRatio);
        // Deliberate: without the factor of the small length unit, as in the report.
        values.Add("Sr", Text(300055_text), draft.Sc * *factor, Session.Len2Label, Session.FmtSettlement);
    }
    if (const auto last = values.Result("ConsolidationEnd"))
        values.Add("Tb", Text(300062_text), *last, draft.TimeUnit, Session.FmtTime);
}

void AddLeastAndGreatest(Values& values, const std::string& list, const std::string& letter, TextId least,
                         TextId greatest, double factor, const std::string& unit, const std::string& format) {
    const std::vector<double>& all = values.List(list);
    if (all.empty()) return;
    const auto [low, high] = std::ranges::minmax(all);
    values.Add("min_" + letter, Text(least), Single(low) * factor, unit, format);
    values.Add("max_" + letter, Text(greatest), Single(high) * factor, unit, format);
}

void AddRaft(Values& values) {
    const double pressure = FactorOf(Unit::Pressure);
    const std::string unit = LabelOf(Unit::Pressure);
    if (const auto mean = values.Result("RaftMeanPressure"))
        values.Add("qm", Text(913042_text), *mean * pressure, unit, Session.FmtStress);
    AddLeastAndGreatest(values, "NodePressure", "q", 913043_text, 913044_text, pressure, unit, Session.FmtStress);
    AddLeastAndGreatest(values, "NodeSettlement", "s", 913045_text, 913046_text, Session.Len2Factor, Session.Len2Label,
                        Session.FmtSettlement);
    if (const auto tilt = TiltOf(values.List("NodeX"), values.List("NodeY"), values.List("NodeSettlement")))
        values.Add("Alpha", Text(913047_text), *tilt, "[-]", Session.FmtStrain);
}

}  // namespace

std::vector<AnswerValue> AnswerValues(const SessionRecord& draft, const CommandOutput& report) {
    Values values(report);
    switch (draft.ProblemType) {
        case Problem::SoilStress:
            AddStresses(values);
            break;
        case Problem::SoilStrain:
            AddStrains(values);
            break;
        case Problem::SoilDisplacement:
            AddDisplacements(values);
            break;
        case Problem::Consolidation:
            AddConsolidation(values);
            break;
        case Problem::ConsolidationRate:
            AddRate(values, draft);
            break;
        case Problem::TimeDirect:
        case Problem::TimeOedometer:
        case Problem::TimeTheory:
            AddTimeSettlement(values, draft);
            break;
        default:
            AddRaft(values);
            break;
    }
    return values.Taken();
}

}  // namespace lithmark
