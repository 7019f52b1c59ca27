#include "services/FileDialogs.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "base/Paths.h"
#include "base/Utf8.h"
#include "services/host/Host.h"
#include "services/storage/FileNames.h"
#include "services/storage/UserFolders.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr std::string_view kProjectExtension = "PO3";
constexpr int kProjectFile = 6;

bool HasExtension(const std::string& path, std::string_view extension) {
    return UpperAscii(ExtensionOf(path)) == UpperAscii(extension);
}

// A project as a whole and the data of one problem have dialogs of different titles.
std::string Title(const std::string& pattern, TextId forProject, TextId forData) {
    return Text(HasExtension("." + pattern, kProjectExtension) ? forProject : forData);
}

// The folder of projects is made with the first of them; until then one looks where it is going to be.
std::string FolderThatIs(const std::string& dir) {
    std::error_code error;
    const bool later = dir == UserProjectsDir() && !std::filesystem::is_directory(PathOf(dir), error);
    return later ? UserDocumentsDir() : dir;
}

}  // namespace

bool FileDialogsService::OpenFileDialog(std::string& file, const std::string& startDir, std::string& outDir,
                                        std::string& outName, const std::string& pattern, const std::string& title) {
    const auto chosen = CurrentHost().ChooseFileToOpen(title.empty() ? Title(pattern, 124_text, 10016_text) : title,
                                                       FolderThatIs(startDir), pattern);
    if (!chosen) return false;
    file = MappedFileName(*chosen);
    SplitProjectPath(file, outDir, outName);
    return true;
}

bool FileDialogsService::SaveFileDialog(std::string& file, const std::string& startDir, std::string& outDir,
                                        std::string& outName, const std::string& extension, const std::string& title) {
    MakeProjectsDir(startDir);
    const auto chosen = CurrentHost().ChooseFileToSave(title.empty() ? Title(extension, 10339_text, 9_text) : title,
                                                       startDir, outName, extension);
    if (!chosen) return false;
    const std::string path = HasExtension(*chosen, extension) ? *chosen : *chosen + "." + extension;
    std::string dir, name;
    SplitProjectPath(path, dir, name);
    if (name.empty()) return false;  // a folder is no name for a file
    file = MappedFileName(path);
    outDir = dir;
    outName = name;
    return true;
}

void FileDialogsService::SplitProjectPath(const std::string& file, std::string& dir, std::string& name) const {
    std::error_code error;
    const std::filesystem::path mapped = PathOf(MappedFileName(file));
    const auto absolute = std::filesystem::absolute(mapped, error);
    const std::filesystem::path path = (error ? mapped : absolute).lexically_normal();
    std::string stem = path.filename().string();
    const std::string extension = UpperAscii(ExtensionOf(stem));
    const auto known = ProjectExtensions();
    if (std::find(known.begin(), known.end(), extension) != known.end())
        stem.resize(stem.size() - extension.size() - 1);
    dir = WithSeparator(path.parent_path().generic_string());
    name = stem;
}

bool FileDialogsService::ResolveProjectPath(const std::string& path, std::string& file, std::string& dir,
                                            std::string& name, const std::string& extension, int kind) const {
    const std::string wanted = extension.empty() && kind == kProjectFile ? std::string(kProjectExtension) : extension;
    const std::string found = MappedFileName(HasExtension(path, wanted) ? path : path + "." + wanted);
    std::error_code error;
    if (!std::filesystem::is_regular_file(PathOf(found), error)) return false;
    SplitProjectPath(found, dir, name);
    file = dir + PathOf(found).filename().string();
    return true;
}

FileDialogsService& FileDialogs() {
    static FileDialogsService instance;
    return instance;
}

}  // namespace lithmark
