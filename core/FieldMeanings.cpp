#include "core/FieldMeanings.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "core/Problems.h"
#include "core/Session.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

using enum BaseUnit;
using Row = FieldMeaning;

// Rows that several problems have.
constexpr std::array kCoordinates = {
    Row{"x", "x", 90001_text, Metre},
    Row{"y", "y", 90001_text, Metre},
    Row{"z", "z", 90001_text, Metre},
};
constexpr std::array kForce = {Row{"Q", "Q", 400186_text, Kilonewton}};
constexpr std::array kUniformLoad = {Row{"P", "p", 400170_text, Pressure}};
constexpr std::array kPlan = {Row{"A", "a", 911220_text, Metre}, Row{"B", "b", 101_text, Metre}};
constexpr std::array kLoadType = {Row{"LoadType", "", 911222_text}};
constexpr std::array kLayer = {Row{"h", "h", 40052_text, Metre}};
constexpr std::array kPoisson = {Row{"Nue", "Nue_s", 90004_text}};
constexpr std::array kModulus = {Row{"Es", "Es", 90029_text, Pressure}};
constexpr std::array kClay = {
    Row{"eo", "eo", 10175_text},
    Row{"Po", "Gamma*z", 120001_text, Pressure},
    Row{"Gamma", "Gamma_c", 10244_text, UnitWeight},
    Row{"Cc", "Cc", 300004_text},
};
constexpr std::array kSoilPropertyType = {Row{"SoilPropertyType", "", 911223_text}};
constexpr std::array kTimeUnit = {Row{"TimeUnit", "", 300037_text}};

// The rows of a problem, from the rows of its parts.
template <typename... Parts>
constexpr auto Joined(const Parts&... parts) {
    return std::apply([](auto... rows) { return std::array{rows...}; }, std::tuple_cat(parts...));
}

constexpr auto kLoad = Joined(kForce, kUniformLoad, kPlan);
constexpr auto kPoint = Joined(kCoordinates, kLoad, kPoisson, kModulus, kLoadType);

// The report prints the initial stress by two symbols.
constexpr auto kConsolidation = Joined(kCoordinates, kLoad, kLayer, std::array{Row{"Po", "po", 120001_text, Pressure}},
                                       kClay, kModulus, kLoadType, kSoilPropertyType);

constexpr auto kRate = Joined(kCoordinates, kLoad,
                              std::array{
                                  Row{"U", "uo", 300008_text, Pressure},
                                  Row{"T", "Tc", 300007_text, BaseUnit::TimeUnit},
                                  Row{"hLayer(1)", "h1", 40052_text, Metre},
                                  Row{"hLayer(2)", "h2", 40052_text, Metre},
                                  Row{"CvLayer(1)", "Cv1", 10243_text, AreaPerTime},
                                  Row{"CvLayer(2)", "Cv2", 10243_text, AreaPerTime},
                                  Row{"KLayer(1)", "k1", 10242_text, LengthPerTime},
                                  Row{"KLayer(2)", "k2", 10242_text, LengthPerTime},
                                  Row{"NumLayers", "", 911224_text},
                                  Row{"DrainageCondition", "", 911225_text},
                                  Row{"Pressure", "", 911226_text},
                              },
                              kLoadType, kTimeUnit);

constexpr auto kTimeSettlement = Joined(
    std::array{
        Row{"CvTS", "Cv", 10243_text, AreaPerTime},
        Row{"kf", "k", 10242_text, LengthPerTime},
        Row{"EsTS", "Es", 90152_text, Pressure},
        Row{"Ws", "Ws", 90153_text, Pressure},
        Row{"qv", "qv", 300023_text, Pressure},
        Row{"qe", "qe", 300024_text, Pressure},
        Row{"Hm", "Hm", 300035_text, Metre},
        Row{"h", "Hb", 300025_text, Metre},
        Row{"Sc", "Sc", 400124_text, Centimetre},
        Row{"Pt", "Pt", 300026_text, Kilonewton},
        Row{"Sm", "Sm", 300029_text, Centimetre},
        Row{"DrainageFaces", "", 911227_text},
        Row{"CvChoice", "", 911228_text},
        Row{"TimePeriod", "", 300071_text, BaseUnit::TimeUnit},
        Row{"StartDate", "", 300027_text},
        Row{"Ms", "", 300046_text},
        Row{"DesignCode", "", 300028_text, BaseUnit::TimeUnit},
        Row{"NLoad", "", 911229_text},
        Row{"LoadValue", "", 911230_text, PerCent},
        Row{"LoadTime", "", 911231_text, BaseUnit::TimeUnit},
        Row{"NSts", "", 911232_text},
        Row{"StsValue", "", 911233_text, PerCent},
        Row{"StsTime", "", 911234_text, BaseUnit::TimeUnit},
        Row{"OedUnit", "", 300041_text},
        Row{"NOed", "", 911235_text},
        Row{"OedSettlement", "", 911236_text, OedometerUnit},
        Row{"OedTime", "", 911237_text, Minute},
    },
    kTimeUnit);

// The depth and the properties of clay are those of the raft on clay alone.
constexpr auto kRaft = Joined(kForce, kPlan, kLayer, kPoisson, kModulus,
                              std::array{
                                  Row{"Exz_x", "e", 911239_text, Metre},
                                  Row{"z", "z", 911263_text, Metre},
                              },
                              kClay,
                              std::array{
                                  Row{"Exz_y", "", 911260_text, Metre},
                                  Row{"LoadType", "", 911238_text},
                                  Row{"AnalysisType", "", 911261_text},
                                  Row{"SettlementAt", "", 911262_text},
                              },
                              kSoilPropertyType);

}  // namespace

std::span<const FieldMeaning> MeaningsOf(int problemType) {
    if (IsSoilStress(problemType)) return kPoint;
    if (IsTimeSettlement(problemType)) return kTimeSettlement;
    if (IsRaft(problemType)) return kRaft;
    if (problemType == Problem::Consolidation) return kConsolidation;
    if (problemType == Problem::ConsolidationRate) return kRate;
    return {};
}

const FieldMeaning* FindMeaning(int problemType, std::string_view name) {
    const auto rows = MeaningsOf(problemType);
    const auto found = std::ranges::find(rows, name, &FieldMeaning::Name);
    return found == rows.end() ? nullptr : &*found;
}

std::string MeaningText(const FieldMeaning& meaning) {
    Replacements axis;
    if (meaning.Name == "x") axis = {{"|1", LanguageTexts().AxisName(Axis::X)}};
    if (meaning.Name == "y") axis = {{"|1", LanguageTexts().AxisName(Axis::Y)}};
    if (meaning.Name == "z") axis = {{"|1", LanguageTexts().AxisName(Axis::Z)}};
    std::string text = Text(meaning.Text, axis);
    if (text.ends_with(':')) text.pop_back();
    return text;
}

std::string BaseUnitText(BaseUnit unit) {
    const auto plain = [](const std::string& label) {
        return label.starts_with('[') && label.ends_with(']') ? label.substr(1, label.size() - 2) : label;
    };
    switch (unit) {
        case None:
            return {};
        case Metre:
            return plain(Text(28_text));
        case Centimetre:
            return plain(Text(40_text));
        case Kilonewton:
            return plain(Text(29_text));
        case Pressure:
            return "kN/m2";
        case UnitWeight:
            return "kN/m3";
        case AreaPerTime:
            return "m2/s";
        case LengthPerTime:
            return "m/s";
        case PerCent:
            return "%";
        case Minute:
            return plain(Text(122_text));
        case BaseUnit::TimeUnit:
            return Session.TimeUnit;
        case OedometerUnit:
            return plain(Session.OedUnit);
    }
    return {};
}

}  // namespace lithmark
