#include "study/StudyTakes.h"

#include <algorithm>

#include "base/NumberText.h"
#include "core/FieldNames.h"
#include "core/Session.h"
#include "files/ProblemData.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

Take FindTake(const std::string& text) {
    const auto take = ParseTake(Session.ProblemType, text);
    if (take && take->What != Take::Kind::List) return *take;
    std::vector<std::string_view> known;
    for (const RunResult& result : ResultsOf(Session.ProblemType)) known.push_back(result.Name);
    const std::string_view word(text);
    const auto open = word.find('('), start = word.starts_with("max(") || word.starts_with("min(") ? open + 1 : 0;
    const std::string nearest(NearestWord(word.substr(start, word.find_first_of("()", start) - start), known));
    const TextId trouble = take ? 908031_text : 908032_text;
    throw StudyFailure(StudyFailure::Cause::Request, Text(trouble, {{"|1", text}, {"|2", nearest}}));
}

void AddOnce(std::vector<Take>& takes, const Take& take) {
    if (std::ranges::find(takes, take.Name, &Take::Name) == takes.end()) takes.push_back(take);
}

}  // namespace

std::vector<Take> TakesOf(const StudyRequest& request) {
    std::vector<Take> takes;
    for (const std::string& text : request.Take) AddOnce(takes, FindTake(text));
    if (takes.empty()) takes = SingleNumbers(Session.ProblemType);
    for (const std::string& text : request.Limit) AddOnce(takes, FindTake(text.substr(0, text.rfind('='))));
    return takes;
}

std::vector<ResultLimit> LimitsOf(const StudyRequest& request) {
    std::vector<ResultLimit> limits;
    for (const std::string& text : request.Limit) {
        const auto equals = text.rfind('=');
        const auto value = equals == std::string::npos ? std::nullopt : ParseNumber(text.substr(equals + 1));
        if (!value) FailRequest(908033_text, text);
        const std::string result = FindTake(text.substr(0, equals)).Name;
        if (std::ranges::find(limits, result, &ResultLimit::Result) != limits.end()) FailRequest(908033_text, text);
        limits.push_back({result, static_cast<float>(*value)});
    }
    return limits;
}

bool IsFieldOfProblem(std::string_view name) {
    const std::string_view field = name.substr(0, name.find('('));
    if (field.starts_with("Pref") || field == "ProblemType") return true;
    const auto fields = ProblemFieldNames(Session.ProblemType);
    return std::ranges::find(fields, field) != fields.end();
}

}  // namespace lithmark
