#include "files/ExampleProjects.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>

#include "base/Failure.h"
#include "base/Utf8.h"
#include "services/SharedServices.h"
#include "services/storage/ProjectArchive.h"
#include "services/storage/ReadFile.h"
#include "services/storage/WrittenFile.h"

namespace lithmark {

namespace {

namespace fs = std::filesystem;

fs::path ExamplesDir() {
    return fs::path(SharedServices().ResourceDir()) / "examples";
}

bool IsProjectFile(const fs::path& file) {
    return UpperAscii(file.extension().string()) == ".PO3";
}

// The files of a folder, its project file last: a copy that can be opened is whole.
std::vector<fs::path> FilesOf(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error))
        if (entry.is_regular_file(error)) files.push_back(entry.path());
    std::ranges::sort(files, {}, [](const fs::path& file) { return std::pair(IsProjectFile(file), file); });
    return files;
}

// A new folder for a copy.
fs::path NewFolder(const std::string& name) {
    const fs::path all = fs::path(SharedServices().GetDirectories().DataDir) / "Lithmark";
    std::error_code error;
    fs::create_directories(all, error);
    fs::path folder = all / name;
    for (int number = 2; fs::exists(folder, error); ++number) folder = all / (name + "-" + std::to_string(number));
    if (!fs::create_directory(folder, error)) FailInFile(FailureKind::WriteError, folder.string());
    return folder;
}

}  // namespace

std::vector<std::string> ExampleNames() {
    std::vector<std::string> names;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(ExamplesDir(), error)) {
        const std::vector<fs::path> files = FilesOf(entry.path());
        if (!files.empty() && IsProjectFile(files.back())) names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
}

std::string CopyExample(const std::string& name) {
    const std::vector<fs::path> sources = FilesOf(ExamplesDir() / name);
    if (sources.empty()) FailInFile(FailureKind::FileMissing, (ExamplesDir() / name).string());
    const fs::path folder = NewFolder(name);
    std::vector<std::unique_ptr<WrittenFile>> files;
    for (const fs::path& source : sources) {
        const std::string content = ReadWholeFile(source.string(), kMostArchivedBytes);
        files.push_back(std::make_unique<WrittenFile>((folder / source.filename()).string()));
        files.back()->Append(content);
    }
    WrittenFile::CommitTogether(files, [](std::size_t) {});
    return (folder / sources.back().filename()).string();
}

}  // namespace lithmark
