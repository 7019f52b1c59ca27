// What the commands behind an answer are, and what they gave: the results of the command line, read from its output.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/Session.h"
#include "ui/answer/Answer.h"

namespace lithmark {

// A table for a check by hand: columns by the symbols of their heads, in the units in force.
using AnswerTable = std::map<std::string, std::vector<double>>;

// What one command gave.
struct CommandOutput {
    int Status = 0;            // its exit status; -1 where the program did not start, or died
    std::string Trouble = {};  // the line that it told on standard error
    bool Aborted = false;
    std::vector<std::string> Messages = {};
    std::vector<AnswerNotice> Notices = {};
    std::map<std::string, double> Numbers = {};
    std::map<std::string, std::vector<double>> Lists = {};  // from their first element on
    std::vector<AnswerTable> Tables = {};
    std::vector<std::map<std::string, double>> Rows = {};  // of a study; without what a row lacks
};

// The words of a command without its project: "report", "--format", "json". The project goes behind the first.
using CommandWords = std::vector<std::string>;

// Works commands on a copy of a draft, one after the other, beside the windows.
class AnswerWorker {
  public:
    virtual ~AnswerWorker() = default;
    // Whoever `done` belongs to hears of it from the event loop, once, unless the work is cancelled before. Starting
    // other work cancels.
    using Done = std::function<void(const std::vector<CommandOutput>& outputs)>;
    virtual void Start(const SessionRecord& draft, std::vector<CommandWords> commands, Done done) = 0;
    virtual void Cancel() = 0;
};

// The commands that an answer to a draft needs: the report first, what its curves need behind it.
std::vector<CommandWords> AnswerCommands(const SessionRecord& draft);

// Of the stresses in soil: the depth that the curve reaches. [m]
double DeepestShown(const SessionRecord& draft);

// Why a report gave no results.
std::string WhyFailed(const CommandOutput& report);
// The answer that they gave. The report was not aborted.
Answer AnswerOf(const SessionRecord& draft, const std::vector<CommandOutput>& outputs);
// Its parts, without the notices.
std::vector<AnswerValue> AnswerValues(const SessionRecord& draft, const CommandOutput& report);
std::vector<AnswerCurve> AnswerCurves(const SessionRecord& draft, const std::vector<CommandOutput>& outputs);

}  // namespace lithmark
