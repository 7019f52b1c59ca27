#include "services/ProjectStore.h"

#include <filesystem>
#include <memory>
#include <new>
#include <system_error>
#include <utility>
#include <vector>

#include "services/SharedServices.h"
#include "services/storage/FileNames.h"
#include "services/storage/ProjectArchive.h"
#include "services/storage/WrittenFile.h"

namespace lithmark {

namespace {

namespace fs = std::filesystem;

constexpr long kPackingOn = 1;  // the bit of the flags that asks for packing
const std::string kStandingExtension = "PO3";

std::string FileOf(const std::string& stem, std::string_view extension) {
    return MappedFileName(stem + "." + std::string(extension));
}

// A plain file that is no link: a link is the user's own arrangement and stays where it is.
bool IsPlainFile(const std::string& path) {
    std::error_code error;
    return fs::symlink_status(path, error).type() == fs::file_type::regular;
}

bool IsNewer(const std::string& path, const std::string& than) {
    std::error_code error;
    const auto time = fs::last_write_time(path, error);
    if (error) return false;
    const auto other = fs::last_write_time(than, error);
    return !error && time > other;
}

bool IsSameFile(const std::string& a, const std::string& b) {
    std::error_code error;
    return MappedFileName(a) == MappedFileName(b) || fs::equivalent(a, b, error);
}

// Runs a step of the store and tells its failure.
bool Told(const std::string& standing, auto&& step) {
    const auto tell = [&](const Failure& failure) {
        SharedServices().SetCurrentFile(standing);
        SharedServices().ShowFileError(failure);
        return false;
    };
    try {
        step();
        return true;
    } catch (const Failure& failure) {
        return tell(failure);
    } catch (const std::bad_alloc&) {
        return tell(Failure(FailureKind::OutOfMemory));
    }
}

}  // namespace

bool ProjectStoreService::PackProject(const std::string& oldPath, long flags, const std::string& newFile,
                                      const std::string& extension) {
    if ((flags & kPackingOn) == 0) return true;
    const std::string standing = MappedFileName(oldPath + extension);
    if (!IsPlainFile(standing) || IsArchiveFile(standing)) return true;
    if (!newFile.empty() && IsSameFile(newFile, standing)) return true;
    return Told(standing, [&] { Pack(standing.substr(0, standing.size() - extension.size()), standing); });
}

bool ProjectStoreService::UnpackProject(const std::string& path, const std::string& extension) {
    const std::string standing = MappedFileName(path + extension);
    if (!IsArchiveFile(standing)) return true;
    return Told(standing, [&] { Unpack(standing.substr(0, standing.size() - extension.size()), standing); });
}

// The archive takes the project file's place in one step, after it has been read back. Until then the plain files are
// all there, from then on the archive is.
void ProjectStoreService::Pack(const std::string& stem, const std::string& standing) {
    ProjectFiles files;
    std::vector<std::string> plain;
    for (const std::string_view extension : ProjectExtensions()) {
        const std::string file = extension == kStandingExtension ? standing : FileOf(stem, extension);
        if (!IsPlainFile(file)) continue;
        files.emplace(extension, ReadWholeFile(file));
        if (file != standing) plain.push_back(file);
    }
    if (plain.empty()) return;

    WrittenFile archive(standing);
    archive.Append(BuildArchive(fs::path(stem).filename().string(), files));
    archive.Sync();
    StepDone();
    if (ReadArchive(ReadWholeFile(archive.TemporaryName())) != files) Fail(FailureKind::WriteError);
    archive.Commit();
    StepDone();
    for (const std::string& file : plain) {
        std::error_code error;  // a file that stays does no harm: the archive is newer
        fs::remove(file, error);
        StepDone();
    }
}

// All content is on the disk before the first name changes, and the archive gives its name to the project file last.
void ProjectStoreService::Unpack(const std::string& stem, const std::string& standing) {
    const ProjectFiles files = ReadArchive(ReadWholeFile(standing));
    RemoveStaleTemporaries(fs::path(standing).parent_path().string());
    std::vector<std::unique_ptr<WrittenFile>> written;
    const auto write = [&](const std::string& path, const std::string& content) {
        written.push_back(std::make_unique<WrittenFile>(path));
        written.back()->Append(content);
        written.back()->Sync();
        StepDone();
    };
    for (const auto& [extension, content] : files) {
        const std::string file = FileOf(stem, extension);
        if (extension != kStandingExtension && !IsNewer(file, standing)) write(file, content);
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
