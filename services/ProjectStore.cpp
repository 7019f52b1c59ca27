#include "services/ProjectStore.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>
#include <vector>

#include "base/Paths.h"
#include "services/SharedServices.h"
#include "services/storage/FileNames.h"
#include "services/storage/ProjectArchive.h"
#include "services/storage/ReadFile.h"
#include "services/storage/TemporaryFile.h"
#include "services/storage/WrittenFile.h"

namespace lithmark {

namespace {

namespace fs = std::filesystem;

constexpr long kPackingOff = 0, kNoSetting = 2;
const std::string kStandingExtension = "PO3";

std::string FileOf(const std::string& stem, std::string_view extension) {
    return MappedFileName(stem + "." + std::string(extension));
}

std::string FolderOf(const std::string& path) {
    const std::string folder = PathOf(path).parent_path().generic_string();
    return folder.empty() ? "." : folder;
}

// A plain file that is no link: a link is the user's own arrangement and stays where it is.
bool IsPlainFile(const std::string& path) {
    std::error_code error;
    return fs::symlink_status(PathOf(path), error).type() == fs::file_type::regular;
}

// True when a plain file counts and not what the archive holds of it. A copy may have lost the fractions of its second,
// and a file that a crash left beside the archive is the same as in it: within a second the plain file goes first.
bool Outlives(const std::string& path, const std::string& archive) {
    const auto file = MarkOf(path), packed = MarkOf(archive);
    return file && packed && file->Seconds >= packed->Seconds;
}

bool IsSameFile(const std::string& a, const std::string& b) {
    std::error_code error;
    return MappedFileName(a) == MappedFileName(b) || fs::equivalent(PathOf(a), PathOf(b), error);
}

// Runs a step of the store and tells its failure, for the project's file where it names none of its own.
bool Told(const std::string& standing, auto&& step) {
    try {
        step();
        return true;
    } catch (const std::exception& error) {
        SharedServices().SetCurrentFile(standing);
        SharedServices().ShowFileError(FailureFrom(error));
        return false;
    }
}

// A project's path without the extension of the file that stands for it.
std::string StemOf(const std::string& standing) {
    return standing.substr(0, standing.size() - ExtensionOf(standing).size() - 1);
}

// A file as it was when it was read.
struct ReadFile {
    std::string Path;
    FileMark Mark;

    bool Unchanged() const { return MarkOf(Path) == Mark; }
};

}  // namespace

bool ProjectStoreService::PackProject(const std::string& oldPath, long flags, const std::string& newFile,
                                      const std::string& extension) {
    if (flags == kPackingOff || flags == kNoSetting) return true;
    const std::string standing = MappedFileName(oldPath + extension);
    if (!IsPlainFile(standing) || IsArchiveFile(standing)) return true;
    if (!newFile.empty() && IsSameFile(newFile, standing)) return true;
    return Told(standing, [&] {
        const auto lock = Lock(oldPath);
        // Another program's change while the files are packed makes it start over.
        constexpr int kTries = 3;
        for (int tries = 0; tries < kTries && !PackOnce(StemOf(standing), standing); ++tries) {
        }
    });
}

bool ProjectStoreService::UnpackProject(const std::string& path, const std::string& extension) {
    const std::string standing = MappedFileName(path + extension);
    RemoveLeftovers(FolderOf(standing));
    if (!IsArchiveFile(standing)) return true;
    return Told(standing, [&] {
        const auto lock = Lock(path);
        Unpack(StemOf(standing), standing);
    });
}

bool ProjectStoreService::TakeProject(const std::string& path) {
    return Told(path, [&] {
        if (auto lock = Lock(path)) taken_ = std::move(lock);
    });
}

std::unique_ptr<ProjectLock> ProjectStoreService::BeginSave(const std::string& path) {
    auto lock = Lock(path);
    const std::string standing = FileOf(path, kStandingExtension);
    if (IsArchiveFile(standing)) {
        SharedServices().SetCurrentFile(standing);
        Unpack(StemOf(standing), standing);
    }
    return lock;
}

std::unique_ptr<ProjectLock> ProjectStoreService::Lock(const std::string& path) const {
    if (taken_ && taken_->Project() == path) return nullptr;
    return std::make_unique<ProjectLock>(path);
}

// The archive takes the project file's place in one step, after it has been read back. Until then the plain files are
// all there, from then on the archive is. What another program changed since it was read is neither replaced nor
// removed. False when that came first; then nothing is changed.
bool ProjectStoreService::PackOnce(const std::string& stem, const std::string& standing) {
    ProjectFiles files;
    std::vector<ReadFile> read;
    std::uint64_t total = 0;
    for (const std::string_view extension : ProjectExtensions()) {
        const std::string file = extension == kStandingExtension ? standing : FileOf(stem, extension);
        const auto mark = MarkOf(file);
        if (!mark || !IsPlainFile(file)) continue;
        if ((total += mark->Size) > kMostArchivedBytes) return true;
        files.emplace(extension, ReadWholeFile(file, kMostArchivedBytes));
        read.push_back({file, *mark});
    }
    if (read.size() < 2) return true;

    WrittenFile archive(standing);
    archive.Append(BuildArchive(PathOf(stem).filename().string(), files));
    archive.Sync();
    StepDone();
    if (ReadArchive(ReadWholeFile(archive.TemporaryName(), kMostArchiveFile)) != files)
        FailInFile(FailureKind::WriteError, standing);
    if (!std::ranges::all_of(read, &ReadFile::Unchanged)) return false;
    archive.Commit();
    StepDone();
    for (const ReadFile& file : read) {
        if (file.Path == standing || !file.Unchanged()) continue;
        std::error_code error;  // a file that stays does no harm: it holds what the archive does
        fs::remove(PathOf(file.Path), error);
        StepDone();
    }
    return true;
}

// All content is on the disk before the first name changes, and the archive gives its name to the project file last.
void ProjectStoreService::Unpack(const std::string& stem, const std::string& standing) {
    const ProjectFiles files = ReadArchive(ReadWholeFile(standing, kMostArchiveFile));
    std::vector<std::unique_ptr<WrittenFile>> written;
    const auto write = [&](const std::string& path, const std::string& content) {
        written.push_back(std::make_unique<WrittenFile>(path));
        written.back()->Append(content);
        written.back()->Sync();
        StepDone();
    };
    for (const auto& [extension, content] : files) {
        const std::string file = FileOf(stem, extension);
        if (extension != kStandingExtension && !Outlives(file, standing)) write(file, content);
    }
    write(standing, files.at(kStandingExtension));
    for (const auto& file : written) {
        file->Commit();
        StepDone();
    }
}

ProjectStoreService& ProjectStore() {
    static ProjectStoreService instance;
    return instance;
}

}  // namespace lithmark
