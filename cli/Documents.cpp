#include "cli/Documents.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "cli/Failures.h"
#include "services/SharedServices.h"
#include "services/platform/Process.h"
#include "services/storage/FileNames.h"

namespace lithmark {

namespace {

constexpr char kRenderProgram[] = "lithmark-render";
// The formats that are plain text.
constexpr std::array<std::string_view, 4> kPlain = {"txt", "json", "jsonl", "csv"};

const DocumentWriter* documents = nullptr;
char** commandLine = nullptr;

}  // namespace

const DocumentWriter* Documents() {
    return documents;
}

void UseDocuments(const DocumentWriter& writer) {
    documents = &writer;
}

void KeepCommandLine(char** argv) {
    commandLine = argv;
}

void HandOver(const std::string& format) {
    if (documents || std::ranges::find(kPlain, format) != kPlain.end()) return;
    const std::string program = SharedServices().ExecutableDir() + kRenderProgram;
    if (!PathExists(program))
        throw CommandFailure(ExitStatus::FileTrouble, Text(911203_text, {{"|1", format}, {"|2", program}}));
    platform::BecomeProgram(program, commandLine);
    throw CommandFailure(ExitStatus::FileTrouble, Text(911204_text, {{"|1", program}}));
}

}  // namespace lithmark
