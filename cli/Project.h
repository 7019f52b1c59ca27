// A project as a command works with it: opened as the desktop does, run with its kernel.
#pragma once

#include <string>
#include <vector>

#include "services/host/ConsoleHost.h"

namespace lithmark {

// What every command takes.
struct CommonOptions {
    std::string Project;            // path of the project file
    std::string Lang;               // de, en, ar, ids; empty: the stored language
    std::string Settings;           // program directory; empty: as the desktop finds it
    std::vector<std::string> Sets;  // FIELD=VALUE
    std::string Format, Output;
    bool NoExport = false;  // a raft run writes no files beside the project
};

// Language, settings, units, formats and preferences put in force; the host is the console's.
void StartCommand(const CommonOptions& options, ConsoleHost& host);

// Opens the project: its number, its heading data, its data file over the defaults, then --set and what a dialog would
// set beside the file's fields. Throws CommandFailure when a file is missing or damaged, or a --set does not fit.
void OpenProjectForRun(const CommonOptions& options);

// Reads a project's files into Session, without --set. True when its data file exists.
bool ReadProject(const std::string& path);

// Packs the project again that ReadProject found packed: a command leaves a project as it found it. False after a
// failure, which has been told.
bool PackProjectAgain();

// Puts FIELD=VALUE pairs into Session.
void ApplySets(const std::vector<std::string>& sets);

// Prints the messages and the notices of a run that is done, a line each.
void TellNotices(ConsoleHost& host);

// The line for standard error of an aborted run: the project, and the last message that the run gave.
std::string AbortedLine(const ConsoleHost& host);

}  // namespace lithmark
