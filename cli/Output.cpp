#include "cli/Output.h"

#include <cstdio>
#include <filesystem>

#include "base/Utf8.h"
#include "cli/Failures.h"
#include "services/SharedServices.h"
#include "services/WrittenFile.h"

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

std::string FormatInForce(const std::string& asked, const std::string& output, const std::string& fallback) {
    if (!asked.empty()) return asked;
    const std::string ending = LowerAscii(std::filesystem::path(output).extension().string());
    return ending.size() > 1 ? ending.substr(1) : fallback;
}

std::string CsvCell(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    return "\"" + ReplaceAll(text, "\"", "\"\"") + "\"";
}

}  // namespace lithmark
