// The linker keeps the walls too: each target links what its folder includes, and no more.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "architecture/Source.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

namespace fs = std::filesystem;

struct Target {
    std::string Folder;
    std::vector<std::string> Links;  // as they are named in its own lines
};

// Which includes a library of others is linked for.
const std::map<std::string, std::string> kLibraries = {
    {"ws2_32", "winsock2\\.h"},
    {"ole32", "shlobj\\.h"},
    {"shell32", "shlobj\\.h"},
    {"uuid", "shlobj\\.h"},
    {"Threads::Threads", "thread|mutex|condition_variable|future"},
    {"nlohmann_json::nlohmann_json", "nlohmann/.*"},
    {"PkgConfig::LIBZIP", "zip\\.h"},
    {"CLI11::CLI11", "CLI/.*"},
    {"Eigen3::Eigen", "Eigen/.*"},
    {"Qt6::Widgets", "Q[A-Z]\\w*"},
    {"Qt6::PrintSupport", "QPrint\\w*|qcustomplot\\.h"},
    {"Qt6::Svg", "QSvg\\w*"},
    {"Qt6::DBus", "QDBus\\w*"},
    {"QCustomPlotQt6::QCustomPlotQt6", "qcustomplot\\.h"},
    {"PkgConfig::XLSXWRITER", "xlsxwriter\\.h"},
};

std::vector<std::string> Words(const std::string& text) {
    std::istringstream in(text);
    return {std::istream_iterator<std::string>(in), {}};
}

// The targets of the floors by name, as their CMakeLists.txt tell them.
std::map<std::string, Target> Targets() {
    static const std::regex comment("#[^\n]*"),
        call(R"((lithmark_floor|add_library|add_executable|target_link_libraries)\s*\(([^()]*)\))");
    static const std::set<std::string> keywords = {"PUBLIC", "PRIVATE", "INTERFACE", "lithmark_flags"};
    std::map<std::string, Target> targets;
    for (const auto& [floor, level] : Floors()) {
        for (const auto& entry : fs::recursive_directory_iterator(SourceDir() / floor)) {
            if (entry.path().filename() != "CMakeLists.txt") continue;
            const fs::path folder = fs::relative(entry.path().parent_path(), SourceDir());
            const std::string text =
                std::regex_replace(TextOf(fs::relative(entry.path(), SourceDir()).string()), comment, "");
            for (std::sregex_iterator it(text.begin(), text.end(), call), end; it != end; ++it) {
                const std::string command = (*it)[1];
                const std::vector<std::string> words = Words((*it)[2]);
                Target& target = targets[words.at(0)];
                if (command == "lithmark_floor")
                    target.Folder = words.at(1) == "." ? folder.string() : (folder / words.at(1)).string();
                else if (command != "target_link_libraries")
                    target.Folder = folder.string();
                if (command == "add_library" || command == "add_executable") continue;
                for (std::size_t i = command == "lithmark_floor" ? 2 : 1; i < words.size(); ++i)
                    if (!keywords.contains(words[i])) target.Links.push_back(words[i]);
            }
        }
    }
    return targets;
}

// What a target reaches through its links, their links and so on; itself too.
std::set<std::string> Reach(const std::map<std::string, Target>& targets, const std::string& name) {
    std::set<std::string> reached;
    std::vector<std::string> open = {name};
    while (!open.empty()) {
        const std::string next = open.back();
        open.pop_back();
        if (!reached.insert(next).second || !targets.contains(next)) continue;
        const auto& links = targets.at(next).Links;
        open.insert(open.end(), links.begin(), links.end());
    }
    return reached;
}

// The folder whose target a file belongs to: its own, or the nearest above that has one.
std::string FolderOf(const std::set<std::string>& folders, std::string folder) {
    while (!folders.contains(folder) && folder.find('/') != std::string::npos) folder.resize(folder.rfind('/'));
    return folder;
}

class LinkedTargets : public testing::Test {
  protected:
    LinkedTargets() {
        for (const auto& [name, target] : targets) folders.insert(target.Folder);
        for (const auto& file : Sources()) {
            const std::string folder = FolderOf(folders, file.Folder);
            for (const auto& name : Includes(file.Text)) {
                if (const std::size_t slash = name.rfind('/'); slash != std::string::npos)
                    included[folder].insert(FolderOf(folders, name.substr(0, slash)));
                headers[folder].insert(name);
            }
        }
    }

    bool IncludesFor(const std::string& folder, const std::string& library) const {
        const std::regex pattern(kLibraries.at(library));
        const auto found = headers.find(folder);
        return found != headers.end() && std::any_of(found->second.begin(), found->second.end(),
                                                     [&](const auto& name) { return std::regex_match(name, pattern); });
    }

    const std::map<std::string, Target> targets = Targets();
    std::set<std::string> folders;                          // that have a target
    std::map<std::string, std::set<std::string>> included;  // folders by folder
    std::map<std::string, std::set<std::string>> headers;   // what a folder includes, as it is written
};

TEST_F(LinkedTargets, EveryFolderHasATarget) {
    EXPECT_GT(targets.size(), 20u);
    for (const auto& file : Sources()) {
        if (file.Path.ends_with(".cpp")) {
            EXPECT_TRUE(folders.contains(FolderOf(folders, file.Folder))) << file.Path;
        }
    }
}

TEST_F(LinkedTargets, ATargetReachesWhatItsFolderIncludes) {
    for (const auto& [name, target] : targets) {
        std::set<std::string> reached;
        for (const auto& other : Reach(targets, name)) {
            reached.insert(other);
            if (targets.contains(other)) reached.insert(targets.at(other).Folder);
        }
        const auto found = included.find(target.Folder);
        if (found == included.end()) continue;
        for (const auto& folder : found->second)
            if (folders.contains(folder)) {
                EXPECT_TRUE(reached.contains(folder)) << name << " includes from " << folder << " and does not link it";
            }
        for (const auto& [library, pattern] : kLibraries)
            if (IncludesFor(target.Folder, library)) {
                EXPECT_TRUE(reached.contains(library)) << name << " uses " << library << " and does not link it";
            }
    }
}

TEST_F(LinkedTargets, ATargetLinksNothingThatItsFolderDoesNotInclude) {
    for (const auto& [name, target] : targets) {
        for (const auto& link : target.Links) {
            if (const auto other = targets.find(link); other != targets.end()) {
                const bool own = other->second.Folder == target.Folder;
                EXPECT_TRUE(own || included[target.Folder].contains(other->second.Folder))
                    << name << " links " << link << " and includes nothing of it";
            } else {
                ASSERT_TRUE(kLibraries.contains(link)) << name << " links the unknown " << link;
                EXPECT_TRUE(IncludesFor(target.Folder, link)) << name << " links " << link << " and does not use it";
            }
        }
    }
}

}  // namespace
}  // namespace lithmark::tests
