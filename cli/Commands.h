// The commands of lithmark-cli. Each returns its exit status or throws CommandFailure.
#pragma once

#include <string>
#include <vector>

#include "cli/Failures.h"
#include "cli/Json.h"
#include "cli/Project.h"

namespace lithmark {

ExitStatus NewCommand(const CommonOptions& options, int problem, ConsoleHost& host);
ExitStatus ShowCommand(const CommonOptions& options, ConsoleHost& host);
ExitStatus ReportCommand(const CommonOptions& options, ConsoleHost& host);

// The results of the run by the names of their fields, for the problem that was run.
Json ResultsJson();
// The messages of a run, in order.
Json MessagesJson(const ConsoleHost& host);

}  // namespace lithmark
