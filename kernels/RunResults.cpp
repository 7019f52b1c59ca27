#include "kernels/RunResults.h"

#include <algorithm>
#include <array>

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/stress/PrincipalValues.h"

namespace lithmark {

namespace {

template <auto Field>
std::optional<double> FieldValue() {
    return static_cast<double>(Session.*Field);
}

template <auto Field>
constexpr RunResult Number(std::string_view name, std::string_view symbol) {
    return {name, symbol, &FieldValue<Field>, nullptr};
}
template <auto Field>
constexpr RunResult Number(std::string_view name) {
    return Number<Field>(name, name);
}

template <auto Field>
constexpr RunResult Count(std::string_view name) {
    return {name, {}, &FieldValue<Field>, nullptr, 0, true};
}

template <auto Field>
std::span<const Single> FieldItems() {
    return (Session.*Field).Items();
}

// A list is named once for its table; the report has its elements in the rows.
template <auto Field>
constexpr RunResult List(std::string_view name, int lower) {
    return {name, {}, nullptr, &FieldItems<Field>, lower};
}

// Of an aborted run the principal values may not exist.
template <auto Part>
constexpr RunResult PrincipalStress(std::string_view name) {
    const auto value = []() -> std::optional<double> {
        if (Session.CalcAborted) return std::nullopt;
        return ComputePrincipalStresses(Session.Sigma_x, Session.Sigma_y, Session.Sigma_z, Session.Tau_xz).*Part;
    };
    return {name, name, value, nullptr};
}
template <auto Part>
constexpr RunResult PrincipalStrain(std::string_view name) {
    const auto value = []() -> std::optional<double> {
        if (Session.CalcAborted) return std::nullopt;
        return ComputePrincipalStrains(Session.Varepsilon_x, Session.Varepsilon_y, Session.Varepsilon_z,
                                       Session.Gamma_xz).*
               Part;
    };
    return {name, name, value, nullptr};
}

using S = SessionRecord;

constexpr std::array kPoint = {
    Number<&S::Sigma_x>("Sigma_x"),
    Number<&S::Sigma_y>("Sigma_y"),
    Number<&S::Sigma_z>("Sigma_z"),
    Number<&S::Tau_xy>("Tau_xy"),
    Number<&S::Tau_xz>("Tau_xz"),
    Number<&S::Tau_yz>("Tau_yz"),
    Number<&S::Varepsilon_x>("Varepsilon_x"),
    Number<&S::Varepsilon_y>("Varepsilon_y"),
    Number<&S::Varepsilon_z>("Varepsilon_z"),
    Number<&S::Gamma_xy>("Gamma_xy"),
    Number<&S::Gamma_xz>("Gamma_xz"),
    Number<&S::Gamma_yz>("Gamma_yz"),
    Number<&S::u>("u"),
    Number<&S::v>("v"),
    Number<&S::w>("w"),
    Number<&S::s>("s"),
};

constexpr std::array kPrincipalStresses = {
    PrincipalStress<&PrincipalStresses::max_Tau>("max_Tau"),
    PrincipalStress<&PrincipalStresses::max_Sigma>("max_Sigma"),
    PrincipalStress<&PrincipalStresses::min_Sigma>("min_Sigma"),
    PrincipalStress<&PrincipalStresses::p>("p"),
    PrincipalStress<&PrincipalStresses::q>("q"),
};

constexpr std::array kPrincipalStrains = {
    PrincipalStrain<&PrincipalStrains::max_Gamma>("max_Gamma"),
    PrincipalStrain<&PrincipalStrains::max_Epsilon>("max_Epsilon"),
    PrincipalStrain<&PrincipalStrains::min_Epsilon>("min_Epsilon"),
    PrincipalStrain<&PrincipalStrains::Epsilon_p>("Epsilon_p"),
    PrincipalStrain<&PrincipalStrains::Epsilon_q>("Epsilon_q"),
};

// One depth more than there are nodes is computed; it is never shown.
std::span<const Single> IsochroneDepths() {
    return Session.IsoZ.Items().first(std::min(Session.IsoZ.Size(), Session.IsoU0.Size()));
}

constexpr std::array kConsolidation = {Number<&S::Sigma_z>("Sigma_z"), Number<&S::s>("s")};

constexpr std::array kConsolidationRate = {
    Number<&S::Uc>("Uc"),        Count<&S::IsoLast>("IsoLast"), RunResult{"IsoZ", {}, nullptr, &IsochroneDepths, 0},
    List<&S::IsoU0>("IsoU0", 0), List<&S::IsoUf>("IsoUf", 0),   Number<&S::PrefDz>("PrefDz", {}),
};

std::optional<double> MeasureFactor() {
    if (!Session.Ms) return std::nullopt;
    return Session.MeasureFactor;
}

constexpr std::array kTimeSettlement = {
    List<&S::LoadCurve>("LoadCurve", 0),
    List<&S::SuddenPercent>("SuddenPercent", 0),
    List<&S::SuddenSettlement>("SuddenSettlement", 0),
    List<&S::SettlementSum>("SettlementSum", 0),
    List<&S::LoadChartTime>("LoadChartTime", 0),
    List<&S::LoadChartNew>("LoadChartNew", 0),
    List<&S::LoadChartPrev>("LoadChartPrev", 0),
    Number<&S::ConsolidationEnd>("ConsolidationEnd", "Tb"),
    RunResult{"MeasureFactor", "f", &MeasureFactor, nullptr},
};

constexpr std::array kTheory = {Number<&S::CvTS>("CvTS", "Cv")};

constexpr std::array kRaft = {
    List<&S::NodeX>("NodeX", 1),
    List<&S::NodeY>("NodeY", 1),
    List<&S::NodeArea>("NodeArea", 1),
    List<&S::NodeForce>("NodeForce", 1),
    List<&S::NodePressure>("NodePressure", 1),
    List<&S::NodeSettlement>("NodeSettlement", 1),
    List<&S::RaftMidX>("RaftMidX", 1),
    List<&S::RaftMidSettlement>("RaftMidSettlement", 1),
    List<&S::RaftMidPressure>("RaftMidPressure", 1),
    List<&S::RaftMidFlexible>("RaftMidFlexible", 1),
    Number<&S::RaftMeanPressure>("RaftMeanPressure", "qm"),
    Number<&S::z>("z"),
    Number<&S::h>("h"),
};

template <std::size_t N, std::size_t M>
constexpr std::array<RunResult, N + M> Joined(const std::array<RunResult, N>& first,
                                              const std::array<RunResult, M>& second) {
    std::array<RunResult, N + M> all{};
    std::copy(first.begin(), first.end(), all.begin());
    std::copy(second.begin(), second.end(), all.begin() + N);
    return all;
}
constexpr auto kStress = Joined(kPoint, kPrincipalStresses);
constexpr auto kStrain = Joined(kPoint, kPrincipalStrains);
constexpr auto kTimeTheory = Joined(kTimeSettlement, kTheory);

}  // namespace

std::span<const RunResult> ResultsOf(int problemType) {
    switch (problemType) {
        case Problem::SoilStress:
            return kStress;
        case Problem::SoilStrain:
            return kStrain;
        case Problem::SoilDisplacement:
            return kPoint;
        case Problem::Consolidation:
            return kConsolidation;
        case Problem::ConsolidationRate:
            return kConsolidationRate;
        case Problem::TimeDirect:
        case Problem::TimeOedometer:
            return kTimeSettlement;
        case Problem::TimeTheory:
            return kTimeTheory;
        case Problem::RaftDisplacement:
        case Problem::RaftConsolidation:
            return kRaft;
        default:
            return {};
    }
}

const RunResult* FindResult(int problemType, std::string_view name) {
    const auto results = ResultsOf(problemType);
    if (name.empty()) return nullptr;
    auto found = std::ranges::find(results, name, &RunResult::Name);
    if (found == results.end()) found = std::ranges::find(results, name, &RunResult::Symbol);
    return found == results.end() ? nullptr : &*found;
}

}  // namespace lithmark
