// The three wrappers through which all file work of the program passes.
#pragma once

#include <string>

#include "base/Failure.h"
#include "services/storage/DataFile.h"

namespace lithmark {

// Opens a file under a number: 0 when open, -1 when refused because a file to read does not exist. Shows the reading or
// writing notice. Anything else that goes wrong is thrown.
int OpenDataFile(const std::string& name, FileMode mode, int fileNumber);

// Closes a file, which puts a written one in its place, and clears the notice.
void CloseDataFile(int fileNumber);

// Puts the files of a set in place, as NumberedFileSet says. A failure is told for the file that it concerns.
void CommitDataFiles(NumberedFileSet& files);

// The common step after a failure, for kernels and file routines alike: tells it for the file last opened, drops the
// open file under number 1, clears the notice. `more` are sentences that stand behind what went wrong.
void FileError(const Failure& failure, const std::string& more = {});

// `dir` & `name` & "." & `extension` as the file is really called.
std::string DataFileName(const std::string& dir, const std::string& name, const std::string& extension);

}  // namespace lithmark
