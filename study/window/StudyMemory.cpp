#include "study/window/StudyMemory.h"

#include <algorithm>

#include "base/NumberText.h"
#include "base/Utf8.h"

namespace lithmark {

namespace {

// "first=even;21", "second=Es;list;7", "draw=s", "take=s": names that no field or result has a sign of.
std::string StepsText(const VaryLine& line) {
    constexpr const char* kNames[] = {"even", "factors", "list"};
    return std::string(kNames[static_cast<int>(line.Steps)]) + ";" + Trim(line.Count);
}

void RecallSteps(VaryLine& line, const std::string& steps, const std::string& count) {
    line.Steps = steps == "factors" ? StepKind::Factors : steps == "list" ? StepKind::List : StepKind::Even;
    if (const auto number = ParseNumber(count); number && *number >= 2) line.Count = count;
}

int PlaceOfField(const StudyQuestion& question, const std::string& name) {
    const auto found = std::ranges::find(question.Fields(), name, &FieldChoice::Name);
    return found == question.Fields().end() ? kNoField : static_cast<int>(found - question.Fields().begin());
}

int PlaceOfResult(const StudyQuestion& question, const std::string& take) {
    const auto found = std::ranges::find(question.Results(), take, &ResultChoice::Take);
    return found == question.Results().end() ? -1 : static_cast<int>(found - question.Results().begin());
}

}  // namespace

std::string MemoryOf(const StudyQuestion& question) {
    std::string memory = "first=" + StepsText(question.Vary[0]);
    if (const FieldChoice* second = question.Varied(1))
        memory += "|second=" + second->Name + ";" + StepsText(question.Vary[1]);
    if (question.ContourAsked()) memory += "|as=contour";
    memory += "|draw=" + question.Drawn().Take;
    for (std::size_t i = 0; i < question.Taken.size(); ++i)
        if (question.Taken[i]) memory += "|take=" + question.Results()[i].Take;
    return memory;
}

void Recall(StudyQuestion& question, const std::string& memory) {
    if (memory.empty()) return;
    question.Taken.assign(question.Taken.size(), false);
    question.DrawContour(memory.find("|as=contour") != std::string::npos);
    for (const std::string& part : Split(memory, '|')) {
        const std::size_t equals = std::min(part.find('='), part.size());
        const std::string what = part.substr(0, equals), value = part.substr(std::min(equals + 1, part.size()));
        const std::vector<std::string> items = Split(value, ';');
        const int result = PlaceOfResult(question, value);
        if (what == "first" && items.size() == 2) RecallSteps(question.Vary[0], items[0], items[1]);
        if (what == "second" && items.size() == 3) {
            const int field = PlaceOfField(question, items[0]);
            if (field == question.Vary[0].Field) continue;
            question.ChooseVaried(1, field);
            RecallSteps(question.Vary[1], items[1], items[2]);
        }
        if (what == "draw" && result >= 0) question.Result = result;
        if (what == "take" && result >= 0) question.Taken[static_cast<std::size_t>(result)] = true;
    }
}

}  // namespace lithmark
