// The walls of the house: which floor may include which, and what must stand nowhere.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "support/Places.h"

namespace {

namespace fs = std::filesystem;

// Floors from the lowest up; cli and desktop share the top.
const std::map<std::string, int> kFloors = {{"base", 0},    {"texts", 1},   {"services", 2}, {"core", 3}, {"files", 4},
                                            {"report", 5},  {"kernels", 6}, {"contour", 7},  {"ui", 8},   {"study", 9},
                                            {"render", 10}, {"cli", 11},    {"desktop", 11}};

struct SourceFile {
    std::string Path;   // relative to the root
    std::string Floor;  // its first folder
    std::string Text;
};

std::vector<SourceFile> Sources() {
    std::vector<SourceFile> files;
    const fs::path root(lithmark::tests::SourceDir());
    for (const auto& [floor, level] : kFloors) {
        if (!fs::exists(root / floor)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / floor)) {
            const auto extension = entry.path().extension();
            if (extension != ".h" && extension != ".cpp" && extension != ".inc") continue;
            std::ifstream in(entry.path());
            std::stringstream text;
            text << in.rdbuf();
            files.push_back({fs::relative(entry.path(), root).string(), floor, text.str()});
        }
    }
    return files;
}

std::vector<std::string> Includes(const std::string& text) {
    static const std::regex pattern(R"(^[ \t]*#[ \t]*include[ \t]*[<"]([^>"]+)[>"])", std::regex::multiline);
    std::vector<std::string> names;
    for (std::sregex_iterator it(text.begin(), text.end(), pattern), end; it != end; ++it) names.push_back((*it)[1]);
    return names;
}

TEST(Walls, AFileIncludesOnlyFromItsOwnFloorOrFloorsBelow) {
    const auto sources = Sources();
    ASSERT_GT(sources.size(), 20u);
    for (const auto& file : sources) {
        for (const auto& name : Includes(file.Text)) {
            const auto floor = kFloors.find(name.substr(0, name.find('/')));
            if (floor == kFloors.end() || floor->first == file.Floor) continue;
            EXPECT_LT(floor->second, kFloors.at(file.Floor)) << file.Path << " includes " << name;
        }
    }
}

TEST(Walls, NothingBelowRenderIncludesAToolkitHeader) {
    static const std::regex toolkit(R"(^(Q[A-Z]\w*|Qt\w+/.*|qcustomplot\.h|xlsxwriter\.h)$)");
    for (const auto& file : Sources()) {
        if (kFloors.at(file.Floor) >= kFloors.at("render")) continue;
        for (const auto& name : Includes(file.Text))
            EXPECT_FALSE(std::regex_match(name, toolkit)) << file.Path << " includes " << name;
    }
}

TEST(Walls, OnlyTheNamedServicesUseALibraryBeyondTheStandardOne) {
    static const std::regex library(R"(^(Eigen/.*|zip\.h|nlohmann/.*|CLI/.*|gtest/.*|gmock/.*)$)");
    static const std::regex ofStudies(R"(^(boost/.*|Random123/.*)$)");
    for (const auto& file : Sources()) {
        if (kFloors.at(file.Floor) >= kFloors.at("render")) continue;
        for (const auto& name : Includes(file.Text)) {
            if (std::regex_match(name, library)) {
                EXPECT_EQ(file.Floor, "services") << file.Path << " includes " << name;
            }
            if (std::regex_match(name, ofStudies)) {
                EXPECT_EQ(file.Floor, "study") << file.Path << " includes " << name;
            }
        }
    }
}

TEST(Walls, ServicesNeverReadTheStateRecord) {
    static const std::regex state(R"(\bSession\s*\.|core/Session\.h)");
    for (const auto& file : Sources())
        if (file.Floor == "services") {
            EXPECT_FALSE(std::regex_search(file.Text, state)) << file.Path;
        }
}

// The frame shows the dialogs; a dialog that looked back would tie every form to the whole program.
TEST(Walls, DialogsDoNotKnowTheFrame) {
    static const std::regex dialog(R"(^ui/(model/)?\w+\.(h|cpp)$)");
    int dialogs = 0;
    for (const auto& file : Sources()) {
        if (!std::regex_match(file.Path, dialog)) continue;
        ++dialogs;
        for (const auto& name : Includes(file.Text)) EXPECT_FALSE(name.starts_with("ui/frame/")) << file.Path;
    }
    EXPECT_GT(dialogs, 20);
}

// Windows show what a model says. A cast to the class of one form is a behaviour that the model does not tell.
TEST(Walls, WindowsCastToNoForm) {
    static const std::regex cast(R"(_cast<\s*(const\s+)?(frm\w+|\w*Form)\b\s*[*&])");
    for (const auto& file : Sources())
        if (file.Floor == "desktop") {
            EXPECT_FALSE(std::regex_search(file.Text, cast)) << file.Path;
        }
}

TEST(Walls, NoFlagLoosensTheArithmetic) {
    for (const auto& entry : fs::recursive_directory_iterator(lithmark::tests::SourceDir())) {
        const auto path = entry.path().string();
        if (path.find("/build/") != std::string::npos || path.find("/.git") != std::string::npos) continue;
        const auto name = entry.path().filename().string();
        if (name != "CMakeLists.txt" && entry.path().extension() != ".cmake" && name != "CMakePresets.json") continue;
        std::ifstream in(entry.path());
        for (std::string line; std::getline(in, line);) {
            if (line.find('#') != std::string::npos) line.resize(line.find('#'));
            EXPECT_EQ(line.find("-ffast-math"), std::string::npos) << path;
            EXPECT_EQ(line.find("-Ofast"), std::string::npos) << path;
            EXPECT_EQ(line.find("-march=native"), std::string::npos) << path;
        }
    }
}

}  // namespace
