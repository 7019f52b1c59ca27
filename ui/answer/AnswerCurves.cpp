// The curves of an answer, in the units of the windows.
#include <cmath>
#include <limits>

#include "base/NumberText.h"
#include "core/Problems.h"
#include "core/Units.h"
#include "services/texts/LanguageTexts.h"
#include "ui/answer/AnswerRun.h"

namespace lithmark {

namespace {

std::vector<double> Times(const std::vector<double>& values, double factor) {
    std::vector<double> all;
    all.reserve(values.size());
    for (const double value : values) all.push_back(value * factor);
    return all;
}

const std::vector<double>& ListOf(const CommandOutput& report, const std::string& name) {
    static const std::vector<double> none;
    const auto found = report.Lists.find(name);
    return found == report.Lists.end() ? none : found->second;
}

struct DepthQuantity {
    const char* Name;
    double Factor;
    std::string Unit;
};

DepthQuantity DepthQuantityOf(int problem) {
    switch (problem) {
        case Problem::SoilStress:
            return {"Sigma_z", FactorOf(Unit::Pressure), LabelOf(Unit::Pressure)};
        case Problem::SoilStrain:
            return {"Varepsilon_z", 1, "[-]"};
        default:
            return {"w", 1, Session.Len2Label};
    }
}

// The rows of the study and, among them, the point itself. A row without a value is a gap.
AnswerCurve OverDepth(const SessionRecord& draft, const CommandOutput& report, const CommandOutput& study) {
    const DepthQuantity quantity = DepthQuantityOf(draft.ProblemType);
    AnswerCurve::Line line;
    AnswerCurve curve;
    const double depth = draft.z;
    const auto here = report.Numbers.find(quantity.Name);
    bool pointDone = here == report.Numbers.end();
    const auto add = [&](double z, double value) {
        line.X.push_back(value * quantity.Factor);
        line.Y.push_back(z * Session.Len1Factor);
    };
    for (const auto& row : study.Rows) {
        const auto z = row.find("z"), value = row.find(quantity.Name);
        if (z == row.end()) continue;
        if (!pointDone && z->second >= depth) {
            if (z->second > depth) add(depth, here->second);
            pointDone = true;
        }
        add(z->second, value == row.end() ? std::numeric_limits<double>::quiet_NaN() : value->second);
    }
    curve.Title = Text(913020_text);
    curve.XSymbol = quantity.Name;
    curve.XUnit = quantity.Unit;
    curve.YSymbol = "z";
    curve.YUnit = Session.Len1Label;
    curve.Lines.push_back(std::move(line));
    if (here != report.Numbers.end())
        curve.Points.push_back({{}, here->second * quantity.Factor, depth * Session.Len1Factor});
    return curve;
}

// The stress and each sublayer's share of the settlement, at the middles of the sublayers.
std::vector<AnswerCurve> OverClay(const CommandOutput& report) {
    std::vector<AnswerCurve> curves;
    for (const AnswerTable& table : report.Tables) {
        const auto z = table.find("z"), stress = table.find("Sigma_z"), settlement = table.find("ds");
        if (z == table.end() || stress == table.end() || settlement == table.end()) continue;
        double sum = 0;
        for (const double value : settlement->second) sum += value;
        AnswerCurve curve;
        curve.Beside = true;
        curve.YSymbol = "z";
        curve.YUnit = Session.Len1Label;
        curve.Title = Text(913021_text);
        curve.XSymbol = "Sigma_z";
        curve.XUnit = LabelOf(Unit::Pressure);
        curve.Lines = {{{}, stress->second, z->second}};
        curves.push_back(curve);
        if (sum == 0) continue;
        curve.Title = Text(913022_text);
        curve.XSymbol = "s";
        curve.XUnit = "[%]";
        curve.Lines = {{{}, Times(settlement->second, 100 / sum), z->second}};
        curves.push_back(curve);
    }
    return curves;
}

// At the start, at a quarter and a half of the time, and at its end.
AnswerCurve Isochrones(const SessionRecord& draft, const std::vector<CommandOutput>& outputs) {
    AnswerCurve curve;
    curve.Title = Text(913023_text);
    curve.XSymbol = "u";
    curve.XUnit = LabelOf(Unit::Pressure);
    curve.YSymbol = "z";
    curve.YUnit = Session.Len1Label;
    const double factor = FactorOf(Unit::Pressure);
    const auto add = [&](const CommandOutput& output, const char* list, double part) {
        std::vector<double> u = Times(ListOf(output, list), factor);
        std::vector<double> z = Times(ListOf(output, "IsoZ"), Session.Len1Factor);
        if (u.empty() || u.size() != z.size()) return;
        curve.Lines.push_back({FormatValue(draft.T * part, Session.FmtTime) + " " + draft.TimeUnit, u, z});
    };
    add(outputs[0], "IsoU0", 0);
    constexpr double kParts[] = {1, 0.25, 0.5};  // in the order of the commands
    for (const std::size_t i : {1, 2, 0})
        if (i < outputs.size()) add(outputs[i], "IsoUf", kParts[i]);
    return curve;
}

// Row t of the report's table stands at index t + 1.
AnswerCurve OverTime(const SessionRecord& draft, const CommandOutput& report) {
    AnswerCurve curve;
    curve.Title = Text(913024_text);
    curve.XSymbol = "t";
    curve.XUnit = "[" + draft.TimeUnit + "]";
    curve.YSymbol = "s";
    curve.YUnit = Session.Len2Label;
    curve.WholeX = true;
    const std::vector<double>& settlement = ListOf(report, "SettlementSum");
    AnswerCurve::Line computed{Text(913025_text), {}, {}};
    for (int t = 0; t <= draft.TimePeriod && static_cast<std::size_t>(t) + 1 < settlement.size(); ++t) {
        computed.X.push_back(t);
        computed.Y.push_back(settlement[static_cast<std::size_t>(t) + 1] * Session.Len2Factor);
    }
    const auto factor = report.Numbers.find("MeasureFactor");
    curve.Lines.push_back(std::move(computed));
    if (factor == report.Numbers.end() || factor->second == 0) return curve;
    const AnswerCurve::Line& of = curve.Lines.front();
    AnswerCurve::Line corrected{Text(913026_text), of.X, Times(of.Y, factor->second)};
    curve.Lines.push_back(std::move(corrected));
    curve.Points.push_back(
        {Text(913027_text), static_cast<double>(static_cast<int>(draft.DesignCode)), draft.Sm * Session.Len2Factor});
    return curve;
}

// Pressures and settlements of the middle row under a rigid raft, and under the same load on none.
std::vector<AnswerCurve> OverRaft(const CommandOutput& report) {
    const std::vector<double> x = Times(ListOf(report, "RaftMidX"), Session.Len1Factor);
    const auto mean = report.Numbers.find("RaftMeanPressure");
    const auto curveOf = [&](TextId title, const char* symbol, const std::string& unit) {
        AnswerCurve curve;
        curve.Title = Text(title);
        curve.XSymbol = "x";
        curve.XUnit = Session.Len1Label;
        curve.YSymbol = symbol;
        curve.YUnit = unit;
        return curve;
    };
    const auto add = [&](AnswerCurve& curve, TextId name, const std::vector<double>& y) {
        if (!x.empty() && y.size() == x.size()) curve.Lines.push_back({Text(name), x, y});
    };
    const double pressure = FactorOf(Unit::Pressure), settlement = Session.Len2Factor;
    std::vector<AnswerCurve> curves = {curveOf(913028_text, "q", LabelOf(Unit::Pressure)),
                                       curveOf(913029_text, "s", Session.Len2Label)};
    add(curves[0], 913030_text, Times(ListOf(report, "RaftMidPressure"), pressure));
    if (mean != report.Numbers.end())
        add(curves[0], 913031_text, std::vector<double>(x.size(), mean->second * pressure));
    add(curves[1], 913030_text, Times(ListOf(report, "RaftMidSettlement"), settlement));
    add(curves[1], 913031_text, Times(ListOf(report, "RaftMidFlexible"), settlement));
    return curves;
}

}  // namespace

std::vector<AnswerCurve> AnswerCurves(const SessionRecord& draft, const std::vector<CommandOutput>& outputs) {
    const CommandOutput& report = outputs.front();
    if (IsSoilStress(draft.ProblemType)) {
        if (outputs.size() < 2) return {};
        return {OverDepth(draft, report, outputs[1])};
    }
    if (draft.ProblemType == Problem::Consolidation) return OverClay(report);
    if (draft.ProblemType == Problem::ConsolidationRate) return {Isochrones(draft, outputs)};
    if (IsTimeSettlement(draft.ProblemType)) return {OverTime(draft, report)};
    return OverRaft(report);
}

}  // namespace lithmark
