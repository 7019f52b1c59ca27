// Which commands an answer needs: the report of the draft, and for the curves what the report has not got.
#include <algorithm>

#include "base/NumberText.h"
#include "core/Problems.h"
#include "services/texts/LanguageTexts.h"
#include "ui/answer/AnswerRun.h"

namespace lithmark {

namespace {

constexpr int kDepths = 21;

// What is drawn over the depth.
const char* DepthResult(int problem) {
    switch (problem) {
        case Problem::SoilStress:
            return "Sigma_z";
        case Problem::SoilStrain:
            return "Varepsilon_z";
        default:
            return "w";
    }
}

// Not from the very surface, where the stress below a point load is infinite.
CommandWords DepthStudy(const SessionRecord& draft) {
    const double deepest = DeepestShown(draft);
    const std::string range =
        JsonNumber(Single(deepest / kDepths)) + ":" + JsonNumber(Single(deepest)) + ":*" + NumberToText(kDepths);
    return {"study",  "--vary", "z=" + range, "--take", DepthResult(draft.ProblemType),
            "--jobs", "1",      "--format",   "json"};
}

}  // namespace

// Down to where a load has spread, and farther than the point.
double DeepestShown(const SessionRecord& draft) {
    const double spread = draft.LoadType == LoadShape::Rectangle ? 2 * std::min<double>(draft.A, draft.B)
                          : draft.LoadType == LoadShape::Circle  ? 4 * static_cast<double>(draft.A)
                                                                 : 2 * static_cast<double>(draft.z);
    const double deepest = std::max(spread, 1.5 * draft.z);
    return deepest > 0 ? deepest : 1;
}

std::string WhyFailed(const CommandOutput& report) {
    if (report.Aborted && !report.Messages.empty()) return report.Messages.back();
    return report.Trouble.empty() ? Text(913013_text) : report.Trouble;
}

std::vector<CommandWords> AnswerCommands(const SessionRecord& draft) {
    CommandWords report = {"report", "--format", "json", "--no-export"};
    if (draft.ProblemType == Problem::Consolidation) report.emplace_back("--tables");
    std::vector<CommandWords> commands = {report};
    if (IsSoilStress(draft.ProblemType)) commands.push_back(DepthStudy(draft));
    if (draft.ProblemType == Problem::ConsolidationRate)
        for (const double part : {0.25, 0.5}) {
            commands.push_back(report);
            commands.back().insert(commands.back().end(), {"--set", "T=" + JsonNumber(Single(draft.T * part))});
        }
    return commands;
}

Answer AnswerOf(const SessionRecord& draft, const std::vector<CommandOutput>& outputs) {
    const CommandOutput& report = outputs.front();
    return {AnswerValues(draft, report), AnswerCurves(draft, outputs), report.Notices};
}

}  // namespace lithmark
