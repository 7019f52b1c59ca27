#include "cli/Output.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "base/Paths.h"
#include "base/Utf8.h"
#include "cli/Documents.h"
#include "cli/Failures.h"
#include "core/Session.h"
#include "services/SharedServices.h"
#include "services/storage/FileNames.h"
#include "services/storage/WrittenFile.h"

namespace lithmark {

void WriteOutput(const std::string& path, const std::string& bytes) {
    if (IsStandardOutput(path)) {
        const bool written = std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size();
        if (!written || std::fflush(stdout) != 0) throw CommandFailure(ExitStatus::FileTrouble, Text(902001_text));
        return;
    }
    RefuseProjectFile(path);
    try {
        WriteWholeFile(path, bytes, WrittenFile::Target::FileOrDevice);
    } catch (const Failure& failure) {
        SharedServices().SetCurrentFile(path);
        throw CommandFailure(ExitStatus::FileTrouble, SharedServices().FailureText(failure));
    }
}

void RequireFolderOf(const std::string& path) {
    namespace fs = std::filesystem;
    const fs::path folder = PathOf(path).parent_path();
    std::error_code error;
    if (folder.empty() || fs::exists(folder, error) || error) return;
    throw CommandFailure(ExitStatus::FileTrouble, path + ": " + Text(190008_text, {{"|1", folder.generic_string()}}));
}

void RefuseProjectFile(const std::string& output) {
    namespace fs = std::filesystem;
    if (IsStandardOutput(output) || Session.ProjectName.empty()) return;
    std::error_code error;
    // A project's file is found in either letter case.
    const fs::path named = fs::weakly_canonical(PathOf(MappedFileName(output)), error);
    for (const std::string_view extension : ProjectExtensions()) {
        const std::string file = MappedFileName(Session.DataDir + Session.ProjectName + "." + std::string(extension));
        if (fs::weakly_canonical(PathOf(file), error) == named || fs::equivalent(PathOf(file), PathOf(output), error))
            throw CommandFailure(ExitStatus::BadCommandLine, Text(909020_text, {{"|1", output}}));
    }
}

namespace {

std::string FormatAsked(const CommonOptions& options, const std::vector<std::string>& formats) {
    if (!options.Format.empty()) return options.Format;
    const std::string ending = LowerAscii(PathOf(options.Output).extension().string());
    if (ending.size() < 2) return formats.front();
    std::string format = ending.substr(1);
    if (std::find(formats.begin(), formats.end(), format) == formats.end()) FailFormat(format);
    return format;
}

}  // namespace

std::string FormatInForce(const CommonOptions& options, const std::vector<std::string>& formats) {
    std::string format = FormatAsked(options, formats);
    HandOver(format);
    return format;
}

void FailFormat(const std::string& format) {
    throw CommandFailure(ExitStatus::BadCommandLine, Text(902015_text, {{"|1", format}}));
}

}  // namespace lithmark
