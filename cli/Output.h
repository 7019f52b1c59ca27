// Results to a file or to standard output.
#pragma once

#include <string>
#include <vector>

#include "cli/Project.h"

namespace lithmark {

// Without an output, and for "-", a result goes to standard output.
inline bool IsStandardOutput(const std::string& output) {
    return output.empty() || output == "-";
}

// Writes bytes to `path`, whole or not at all, or to standard output. Throws CommandFailure.
void WriteOutput(const std::string& path, const std::string& bytes);

// Tells when the folder in which a file lies, or is to lie, does not exist.
void RequireFolderOf(const std::string& path);

// Refuses an output that is a file of the project which was read, under whatever name, as a wrong command line. To be
// asked before the run; WriteOutput asks it again.
void RefuseProjectFile(const std::string& output);

// The format in force: as asked, else told by the ending of the output, else the first of `formats`. An ending that is
// none of `formats` is a failure of the command line. A document or picture is handed over to lithmark-render.
std::string FormatInForce(const CommonOptions& options, const std::vector<std::string>& formats);

// A format that this command, or this build of the program, does not write.
[[noreturn]] void FailFormat(const std::string& format);

}  // namespace lithmark
