#include "services/storage/ProjectArchive.h"

#include <zip.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "base/Failure.h"
#include "base/Utf8.h"
#include "services/storage/FileNames.h"
#include "services/storage/ReadFile.h"

namespace lithmark {

namespace {

constexpr std::string_view kArchiveStart = "PK\x03\x04";
constexpr std::size_t kUnpackedAtOnce = 1 << 16;

struct Discard {
    void operator()(zip_t* archive) const { zip_discard(archive); }
    void operator()(zip_source_t* source) const { zip_source_free(source); }
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};
using Archive = std::unique_ptr<zip_t, Discard>;
using Source = std::unique_ptr<zip_source_t, Discard>;
using Entry = std::unique_ptr<zip_file_t, Discard>;

// An archive over a source; the archive holds a reference of its own to it.
Archive OpenArchive(zip_source_t* source, int flags) {
    zip_source_keep(source);
    zip_t* archive = zip_open_from_source(source, flags, nullptr);
    if (archive == nullptr) zip_source_free(source);
    return Archive(archive);
}

Source MemorySource(std::string_view bytes) {
    return Source(zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr));
}

[[noreturn]] void FailDamaged(std::string_view what) {
    Fail(FailureKind::DamagedArchive, Excerpt(what));
}

// The extension of an entry that may come out.
std::string CheckedExtension(const std::string& name) {
    std::string extension = UpperAscii(ExtensionOf(name));
    const auto known = ProjectExtensions();
    const bool leavesFolder = name.find_first_of(std::string_view("/\\\0", 3)) != std::string::npos;
    if (leavesFolder || std::find(known.begin(), known.end(), extension) == known.end()) FailDamaged(name);
    return extension;
}

// The content of an entry, piece by piece. `left` is what may still come out of the archive.
std::string EntryBytes(zip_t* archive, zip_uint64_t index, const zip_stat_t& status, std::uint64_t mostBytes,
                       std::uint64_t& left) {
    const std::string name = status.name;
    const Entry entry(zip_fopen_index(archive, index, 0));
    if (!entry) FailDamaged(name);
    std::string bytes;
    std::vector<char> piece(kUnpackedAtOnce);
    // The checksum is compared where the entry ends.
    while (const zip_int64_t count = zip_fread(entry.get(), piece.data(), piece.size())) {
        if (count < 0) FailDamaged(name);
        const auto length = static_cast<std::uint64_t>(count);
        if (length > left) Fail(FailureKind::ArchiveTooLarge, std::to_string(mostBytes >> 20));
        left -= length;
        bytes.append(piece.data(), static_cast<std::size_t>(length));
    }
    if (bytes.size() != status.size) FailDamaged(name);
    return bytes;
}

}  // namespace

bool IsArchiveFile(const std::string& path) {
    return BeginsWith(path, kArchiveStart);
}

std::string BuildArchive(const std::string& name, const ProjectFiles& files) {
    const Source whole = MemorySource({});
    if (!whole) Fail(FailureKind::OutOfMemory);
    Archive archive = OpenArchive(whole.get(), ZIP_TRUNCATE);
    if (!archive) Fail(FailureKind::WriteError);
    const std::string stem = IsUtf8(name) ? name : "project";
    for (const auto& [extension, bytes] : files) {
        zip_source_t* content = zip_source_buffer(archive.get(), bytes.data(), bytes.size(), 0);
        if (content == nullptr) Fail(FailureKind::OutOfMemory);
        const std::string entry = std::string(stem).append(".").append(extension);
        if (zip_file_add(archive.get(), entry.c_str(), content, ZIP_FL_ENC_UTF_8) < 0) {
            zip_source_free(content);
            Fail(FailureKind::WriteError);
        }
    }
    if (zip_close(archive.get()) != 0) Fail(FailureKind::WriteError);
    static_cast<void>(archive.release());  // closed, and with that gone

    zip_stat_t status;
    if (zip_source_stat(whole.get(), &status) != 0 || zip_source_open(whole.get()) != 0) Fail(FailureKind::WriteError);
    std::string bytes(static_cast<std::size_t>(status.size), '\0');
    const bool complete =
        zip_source_read(whole.get(), bytes.data(), bytes.size()) == static_cast<zip_int64_t>(bytes.size());
    zip_source_close(whole.get());
    if (!complete) Fail(FailureKind::WriteError);
    return bytes;
}

ProjectFiles ReadArchive(std::string_view archive, std::uint64_t mostBytes) {
    const Source whole = MemorySource(archive);
    if (!whole) Fail(FailureKind::OutOfMemory);
    const Archive opened = OpenArchive(whole.get(), ZIP_RDONLY | ZIP_CHECKCONS);
    if (!opened) FailDamaged({});
    ProjectFiles files;
    std::uint64_t left = mostBytes;
    const zip_int64_t count = zip_get_num_entries(opened.get(), 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        const auto index = static_cast<zip_uint64_t>(i);
        zip_stat_t status;
        constexpr zip_uint64_t kNeeded = ZIP_STAT_NAME | ZIP_STAT_SIZE;
        if (zip_stat_index(opened.get(), index, 0, &status) != 0 || (status.valid & kNeeded) != kNeeded)
            FailDamaged({});
        const std::string name = status.name;
        const std::string extension = CheckedExtension(name);
        std::string bytes = EntryBytes(opened.get(), index, status, mostBytes, left);
        if (!files.emplace(extension, std::move(bytes)).second) FailDamaged(name);
    }
    if (!files.contains("PO3")) FailDamaged({});
    return files;
}

}  // namespace lithmark
