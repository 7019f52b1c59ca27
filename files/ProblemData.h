// The problem data files: one text file for each problem family, a value a line, read and written by one row table.
//
// Both routines move data between Session and the file of Session.ProblemType under WorkDir and WorkName; no value is
// checked beyond being what its field can hold, and a table's count from 1 to 32767. A failure goes through FileError
// and leaves the fields that were read so far; Session.FileSaved stays false.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lithmark {

struct SessionRecord;

enum class ReadOutcome { Read, Missing, Failed };

// A missing file leaves the hourglass pointer and tells nobody.
ReadOutcome ReadProblemData();

// Sets Session.FileSaved when everything was written. The time-settlement problems write their project file first,
// since the method can change without the project dialog.
void WriteProblemData();

// The lines that WriteProblemData would write for a record of a problem.
std::vector<std::string> ProblemDataLines(const SessionRecord& record);

// The fields of a problem's data file in the file's order, each once.
std::vector<std::string_view> ProblemFieldNames(int problemType);

}  // namespace lithmark
