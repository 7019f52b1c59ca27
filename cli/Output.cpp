#include "cli/Output.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "base/Utf8.h"
#include "cli/Failures.h"
#include "services/SharedServices.h"
#include "services/storage/WrittenFile.h"

namespace lithmark {

void WriteOutput(const std::string& path, const std::string& bytes) {
    if (path.empty()) {
        const bool written = std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size();
        if (!written || std::fflush(stdout) != 0) throw CommandFailure(ExitStatus::FileTrouble, Text(902001_text));
        return;
    }
    try {
        WriteWholeFile(path, bytes);
    } catch (const Failure& failure) {
        SharedServices().SetCurrentFile(path);
        throw CommandFailure(ExitStatus::FileTrouble, SharedServices().FailureText(failure));
    }
}

std::string FormatInForce(const CommonOptions& options, const std::vector<std::string>& formats) {
    if (!options.Format.empty()) return options.Format;
    const std::string ending = LowerAscii(std::filesystem::path(options.Output).extension().string());
    if (ending.size() < 2) return formats.front();
    std::string format = ending.substr(1);
    if (std::find(formats.begin(), formats.end(), format) == formats.end()) FailFormat(format);
    return format;
}

void FailFormat(const std::string& format) {
    throw CommandFailure(ExitStatus::BadCommandLine, Text(902015_text, {{"|1", format}}));
}

}  // namespace lithmark
