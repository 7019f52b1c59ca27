// Worker processes: the program run again with other arguments, several at a time.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace lithmark {

struct WorkerResult {
    int ExitStatus = -1;  // -1 when the process could not be started or was killed
    std::string Output;   // its standard output
    std::string Errors;   // its standard error
};

// Runs this program once and waits for it.
WorkerResult RunWorker(const std::vector<std::string>& arguments);

// Runs `job` for 0 .. count - 1 on all cores. `finished`, called under a lock, tells how many are done; false ends the
// work early.
void RunOnAllCores(int count, const std::function<void(int)>& job, const std::function<bool(int)>& finished);

}  // namespace lithmark
