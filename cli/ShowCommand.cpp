#include <string>

#include "base/Utf8.h"
#include "cli/Commands.h"
#include "cli/Output.h"
#include "core/Catalogue.h"
#include "core/SessionFields.h"
#include "files/ProblemData.h"
#include "services/SharedServices.h"

namespace lithmark {

// The project's heading data and every field of its data file, in base units, a line each: a table that a script can
// split at " = ".
ExitStatus ShowCommand(const CommonOptions& options, ConsoleHost&) {
    const bool hasData = ReadProject(options.Project);
    ApplySets(options.Sets);
    const ProblemRow* problem = FindProblem(Session.ProblemType);

    std::string text = PrintableText(Session.ProjectName) + "\n" + Text(problem->MenuText) + "\n\n";
    const auto line = [&](std::string_view name, const std::string& value) {
        text += std::string(name) + " = " + PrintableText(value) + "\n";
    };
    for (const char* name : {"ProblemType", "Auftr", "Datum", "Proj"})
        line(name, SessionFieldText(FindSessionField(name)->Ref));
    text += "\n";
    for (const std::string_view name : ProblemFieldNames(Session.ProblemType))
        line(name, SessionFieldText(FindSessionField(name)->Ref));
    if (!hasData) text += "\n" + Text(10018_text) + " " + problem->Extension + "\n";
    WriteOutput(options.Output, text);
    return ExitStatus::Done;
}

}  // namespace lithmark
