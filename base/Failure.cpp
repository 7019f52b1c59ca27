#include "base/Failure.h"

#include <cerrno>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "base/SystemErrors.h"

namespace lithmark {

namespace {

FailureKind KindOf(int error, FailureKind otherwise) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return FailureKind::FileMissing;
        case EISDIR:
            return FailureKind::NotAFile;
        case EACCES:
        case EPERM:
        case EROFS:
            return FailureKind::PermissionDenied;
        case ENOSPC:
            return FailureKind::DiskFull;
        case ENOMEM:
            return FailureKind::OutOfMemory;
        default:
            return IsQuotaError(error) ? FailureKind::DiskFull : otherwise;
    }
}

std::string ShortName(int error) {
    const std::string name = NameOfError(error);
    return name.empty() ? std::to_string(error) : name;
}

// The usual number of an error, where the system has others of its own.
int NumberOf(const std::error_code& code) {
    const std::error_condition usual = code.default_error_condition();
    return usual.category() == std::generic_category() ? usual.value() : code.value();
}

Failure FromSystemError(int error, FailureKind otherwise, std::string file) {
    const FailureKind kind = KindOf(error, otherwise);
    return Failure(kind, kind == otherwise ? ShortName(error) : std::string()).InFile(std::move(file));
}

}  // namespace

void Fail(FailureKind kind) {
    throw Failure(kind);
}

void Fail(FailureKind kind, std::string detail, long line) {
    throw Failure(kind, std::move(detail), line);
}

void FailInFile(FailureKind kind, std::string file, std::string detail) {
    throw Failure(kind, std::move(detail)).InFile(std::move(file));
}

void FailWithSystemError(int error, FailureKind otherwise, std::string file) {
    throw FromSystemError(error, otherwise, std::move(file));
}

Failure FailureFrom(const std::exception& error) {
    if (const auto* failure = dynamic_cast<const Failure*>(&error)) return *failure;
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) return Failure(FailureKind::OutOfMemory);
    if (dynamic_cast<const std::length_error*>(&error) != nullptr) return Failure(FailureKind::OutOfMemory);
    if (const auto* file = dynamic_cast<const std::filesystem::filesystem_error*>(&error))
        return FromSystemError(NumberOf(file->code()), FailureKind::ReadError, file->path1().generic_string());
    if (const auto* system = dynamic_cast<const std::system_error*>(&error))
        return FromSystemError(NumberOf(system->code()), FailureKind::Other, {});
    return Failure(FailureKind::Other);
}

}  // namespace lithmark
