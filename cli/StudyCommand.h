// The command study.
#pragma once

#include <string>
#include <vector>

#include "cli/Failures.h"
#include "cli/Project.h"
#include "study/StudyRequest.h"

namespace CLI {
class App;
}

namespace lithmark {

// Of rows and tables; --tornado alone has the pictures.
inline const std::vector<std::string> kStudyFormats = {"csv", "json", "jsonl", "xlsx", "svg", "png", "pdf"};

struct StudyOptions {
    StudyRequest Request;
    std::string Design;
    std::string Shard;              // K/N; empty: all rows
    std::vector<std::string> Join;  // parts to be put together
    std::string Resume;             // rows that need not be worked again
    bool RetryAborted = false;
    int Jobs = 0;         // 0: all cores
    std::string Summary;  // a file; "-" is standard output; empty: none
    bool Tornado = false;
    std::string Find;   // FIELD=FROM:TO; empty: rows
    std::string Share;  // of samples that may be beyond the limit
};

// Gives the command its options.
void AddStudyOptions(CLI::App& command, StudyOptions& study);

ExitStatus StudyCommand(const CommonOptions& options, const StudyOptions& study, ConsoleHost& host);

}  // namespace lithmark
