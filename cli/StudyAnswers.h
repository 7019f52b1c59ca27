// Questions of the command study that a table of rows does not answer: which field matters most, and where a result
// crosses its limit.
#pragma once

#include <string>
#include <vector>

#include "cli/Failures.h"
#include "cli/StudyCommand.h"
#include "study/StudyPlan.h"
#include "study/StudyRun.h"
#include "study/TextTable.h"

namespace lithmark {

// --tornado and --find: write their table or picture.
ExitStatus AnswerTornado(const CommonOptions& options, const StudyOptions& study, const StudyPlan& plan,
                         ConsoleHost& host);
ExitStatus AnswerFind(const CommonOptions& options, const StudyOptions& study, const StudyPlan& plan,
                      ConsoleHost& host);

// The exit status of rows: CommandFailure where some are missing or aborted.
ExitStatus StatusOf(const StudyTally& tally, const std::string& project);

// A table in one of kStudyFormats, to a file or to standard output.
void WriteTable(const std::string& path, const std::string& format, const TextTable& table);

// The format in force, one of `formats`.
std::string FormatOf(const CommonOptions& options, const std::vector<std::string>& formats);
// What --output stands for: empty for standard output.
std::string PathOf(const CommonOptions& options);

// What --jobs stands for.
int JobsOf(const StudyOptions& study);

}  // namespace lithmark
