// The answer to --tornado.
#include <algorithm>

#include "cli/Documents.h"
#include "cli/Output.h"
#include "cli/StudyAnswers.h"
#include "core/Session.h"
#include "services/SharedServices.h"
#include "study/StudyTakes.h"
#include "study/Tornado.h"

namespace lithmark {

namespace {

TextTable TableOf(const std::vector<Tornado>& tornados, const StudyPlan& plan) {
    TextTable table;
    if (!plan.Cases().empty()) table.Columns.emplace_back("Case");
    for (const char* column : {"Result", "Field", "low", "high", "at_low", "at_high", "swing"})
        table.Columns.emplace_back(column);
    for (const Tornado& tornado : tornados)
        for (const Influence& influence : tornado.Influences) {
            std::vector<TableCell> cells;
            if (!plan.Cases().empty()) cells.push_back(TableCell::OfText(tornado.Case));
            for (const std::string& text : {tornado.Result, influence.Field}) cells.push_back(TableCell::OfText(text));
            for (const std::string& value : {influence.Low, influence.High})
                cells.push_back(TableCell::OfValue(value, true));
            for (const float number : {influence.AtLow, influence.AtHigh, influence.Swing()})
                cells.push_back(TableCell::OfNumber(static_cast<double>(number)));
            table.Rows.push_back(std::move(cells));
        }
    return table;
}

}  // namespace

ExitStatus AnswerTornado(const CommonOptions& options, const StudyOptions& study, const StudyPlan& plan,
                         ConsoleHost& host) {
    const std::string format = FormatOf(options, {"csv", "json", "svg", "png", "pdf"});
    const bool picture = format != "csv" && format != "json";
    const std::vector<Take> takes = TakesOf(study.Request);
    if (picture && !Documents()) FailFormat(format);
    if (picture && (takes.size() > 1 || plan.Cases().size() > 1))
        throw CommandFailure(ExitStatus::BadCommandLine, Text(908306_text));
    for (const Variation& variation : plan.Variations()) variation.Least();  // a number, or told before anything runs
    host.PrintMessages();
    const std::size_t cases = std::max<std::size_t>(1, plan.Cases().size());
    const std::size_t movers = plan.Variations().size() + (plan.Samples() ? plan.Samples()->Fields().size() : 0);
    StudyTally tally;
    QuestionRows rows(takes, JobsOf(study), [] { return CurrentHost().Progress(0); });
    const std::vector<Tornado> tornados = WorkTornados(plan, takes, rows, tally);
    tally.Missing = cases * (2 * movers + 1) - tally.Rows;
    if (tally.Missing > 0) return StatusOf(tally, options.Project);
    if (picture) {
        WriteOutput(PathOf(options), Documents()->TornadoOf(format, tornados.front()));
    } else {
        WriteTable(PathOf(options), format, TableOf(tornados, plan));
    }
    return StatusOf(tally, options.Project);
}

}  // namespace lithmark
