#include "services/storage/FileNames.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "base/Paths.h"
#include "base/Utf8.h"

namespace lithmark {

namespace {

constexpr std::array<std::string_view, 20> kProjectExtensions = {"PO3", "AUF", "SSD", "CON", "RAT", "TST", "RDE",
                                                                 "RCO", "SC1", "TO1", "PO1", "PL4", "PL6", "PL8",
                                                                 "PC1", "P21", "BAU", "PH1", "PH2", "PW1"};

// The file in the same folder whose name differs from `path` in the extension's letter case alone; of several the first
// by name, so that the answer does not depend on the file system. Empty when there is none.
std::string InOtherLetterCase(const std::string& path, std::size_t extensionLength) {
    namespace fs = std::filesystem;
    const auto slash = path.rfind(kSeparator);
    const std::string folder = slash == std::string::npos ? "" : path.substr(0, slash + 1);
    const std::string name = path.substr(folder.size());
    const std::string stem = name.substr(0, name.size() - extensionLength);
    std::string found;
    std::error_code error;
    for (fs::directory_iterator it(PathOf(folder.empty() ? "." : folder), error), end; !error && it != end;
         it.increment(error)) {
        const std::string other = it->path().filename().string();
        if (other.size() != name.size() || !other.starts_with(stem) || UpperAscii(other) != UpperAscii(name)) continue;
        if (found.empty() || other < found) found = other;
    }
    return found.empty() ? found : folder + found;
}

}  // namespace

std::span<const std::string_view> ProjectExtensions() {
    return kProjectExtensions;
}

std::string_view ExtensionOf(std::string_view path) {
    const auto component = path.find_last_of("/\\");
    const auto point = path.rfind('.');
    if (point == std::string_view::npos || (component != std::string_view::npos && point < component)) return {};
    return path.substr(point + 1);
}

std::string MappedFileName(std::string_view name) {
    std::string path = ReplaceAll(name, "\\", std::string(1, kSeparator));
    const std::string extension(ExtensionOf(path));
    if (extension.empty()) return path;
    const std::string upper = UpperAscii(extension);
    if (std::find(kProjectExtensions.begin(), kProjectExtensions.end(), upper) != kProjectExtensions.end())
        path.replace(path.size() - upper.size(), upper.size(), upper);
    if (PathExists(path)) return path;
    const std::string other = InOtherLetterCase(path, extension.size());
    return other.empty() ? path : other;
}

bool PathExists(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::status(PathOf(path), error);
    return status.type() != std::filesystem::file_type::not_found;
}

std::string WithSeparator(std::string dir) {
    if (!dir.empty() && dir.back() != kSeparator) dir += kSeparator;
    return dir;
}

}  // namespace lithmark
