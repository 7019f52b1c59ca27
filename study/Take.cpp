#include "study/Take.h"

#include <algorithm>
#include <cmath>

#include "base/NumberText.h"
#include "core/Session.h"

namespace lithmark {

namespace {

// The 71 values of the time-settlement curves are the only lists whose length no run changes.
bool CanHold(const RunResult& result, double index) {
    constexpr double kMostNodes = 32767;
    if (index != std::floor(index) || index < result.Lower) return false;
    const bool curve = !result.List().empty() && FindResult(Session.ProblemType, "LoadCurve") != nullptr;
    return index <= (curve ? result.Lower + static_cast<double>(result.List().size()) - 1 : kMostNodes);
}

}  // namespace

std::optional<Take> ParseTake(int problemType, const std::string& text) {
    const auto open = text.find('(');
    if (open == std::string::npos || text.back() != ')') {
        const RunResult* result = FindResult(problemType, text);
        if (!result) return std::nullopt;
        return Take{std::string(result->Name), result->IsList() ? Take::Kind::List : Take::Kind::Number,
                    std::string(result->Name)};
    }
    const std::string before = text.substr(0, open), inside = text.substr(open + 1, text.size() - open - 2);
    const bool greatest = before == "max", least = before == "min";
    const RunResult* result = FindResult(problemType, greatest || least ? inside : before);
    if (!result || !result->IsList()) return std::nullopt;
    const std::string name(result->Name);
    Take take{before + "(" + name + ")", Take::Kind::Element, name};
    if (greatest || least) {
        take.What = greatest ? Take::Kind::Greatest : Take::Kind::Least;
        return take;
    }
    const auto index = ParseNumber(inside);
    if (!index || !CanHold(*result, *index)) return std::nullopt;
    take.Index = static_cast<int>(*index);
    take.Name = name + "(" + NumberToText(take.Index) + ")";
    return take;
}

std::vector<Take> SingleNumbers(int problemType) {
    std::vector<Take> takes;
    for (const RunResult& result : ResultsOf(problemType))
        if (!result.IsList()) takes.push_back({std::string(result.Name), Take::Kind::Number, std::string(result.Name)});
    return takes;
}

std::optional<double> TakenNumber(const Take& take) {
    const RunResult* result = FindResult(Session.ProblemType, take.Result);
    if (!result || result->IsList() == (take.What == Take::Kind::Number)) return std::nullopt;
    if (take.What == Take::Kind::Number) return result->Number();
    const auto list = result->List();
    if (list.empty()) return std::nullopt;
    switch (take.What) {
        case Take::Kind::Greatest:
            return *std::ranges::max_element(list);
        case Take::Kind::Least:
            return *std::ranges::min_element(list);
        case Take::Kind::Element: {
            const auto at = static_cast<std::size_t>(take.Index - result->Lower);
            if (at < list.size()) return list[at];
            return std::nullopt;
        }
        case Take::Kind::Number:
        case Take::Kind::List:
            break;
    }
    return std::nullopt;
}

std::vector<float> TakenList(const Take& take) {
    const RunResult* result = FindResult(Session.ProblemType, take.Result);
    if (!result || !result->IsList()) return {};
    std::vector<float> values;
    for (const Single value : result->List()) values.push_back(value.Stored());
    return values;
}

}  // namespace lithmark
