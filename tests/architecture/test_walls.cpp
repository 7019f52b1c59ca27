// The walls of the house: which floor may include which, and what must stand nowhere.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

#include "architecture/Source.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

namespace fs = std::filesystem;

// What stands in a folder, so that a rule about none of them fails.
int FilesIn(const std::string& folder) {
    int count = 0;
    for (const auto& file : Sources()) count += file.Folder == folder || file.Folder.starts_with(folder + "/");
    return count;
}

// The files of `folder` (and its sub-folders) include none of a folder of `above`.
void ExpectNoWay(const std::string& folder, const std::vector<std::string>& above) {
    EXPECT_GT(FilesIn(folder), 0) << folder;
    for (const auto& file : Sources()) {
        if (file.Folder != folder && !file.Folder.starts_with(folder + "/")) continue;
        for (const auto& name : Includes(file.Text))
            for (const auto& other : above)
                EXPECT_FALSE(name.starts_with(other + "/")) << file.Path << " includes " << name;
    }
}

TEST(Walls, AFileIncludesOnlyFromItsOwnFloorOrFloorsBelow) {
    ASSERT_GT(Sources().size(), 20u);
    for (const auto& file : Sources()) {
        for (const auto& name : Includes(file.Text)) {
            const auto floor = Floors().find(name.substr(0, name.find('/')));
            if (floor == Floors().end() || floor->first == file.Floor) continue;
            EXPECT_LT(floor->second, Floors().at(file.Floor)) << file.Path << " includes " << name;
        }
    }
}

TEST(Walls, TheDrawersOfTheServices) {
    ExpectNoWay("services/platform",
                {"base", "texts", "services/numerics", "services/texts", "services/storage", "services/host"});
    ExpectNoWay("services/numerics", {"texts", "services/texts", "services/storage", "services/host"});
    ExpectNoWay("services/texts", {"services/numerics", "services/storage", "services/host"});
    ExpectNoWay("services/storage", {"services/numerics", "services/host"});
    ExpectNoWay("services/host", {"services/numerics", "services/storage", "services/texts"});
    // The operations of the root put the drawers to work; no drawer knows them.
    for (const auto& file : Sources()) {
        if (!file.Folder.starts_with("services/")) continue;
        for (const auto& name : Includes(file.Text))
            EXPECT_FALSE(name.starts_with("services/") && name.find('/', 9) == std::string::npos)
                << file.Path << " includes " << name;
    }
}

// What differs between operating systems stands in services/platform, and in base what their error numbers are called,
// in files that bear their names.
bool IsOfOneSystem(const std::string& header) {
    static const std::regex ofOneSystem(
        R"(^(unistd|fcntl|pwd|poll|signal|spawn|dirent|dlfcn|termios|windows|winsock2|io|process|shlobj)\.h$|^sys/.*|^linux/.*)");
    return std::regex_match(header, ofOneSystem);
}

TEST(Walls, OnlyThePlatformKnowsTheOperatingSystem) {
    static const std::regex asked(
        R"(#\s*(if|ifdef|ifndef|elif)\b[^\n]*(_WIN32|_WIN64|__linux__|__unix__|__APPLE__|__MINGW\w*__|__GLIBC__|\bE[A-Z]{3,}\b))");
    static const std::regex named(R"(^(services/platform|base)/(Posix|Windows)\w+\.(cpp|h)$)");
    int ofSystems = 0;
    for (const auto& file : Sources()) {
        EXPECT_FALSE(std::regex_search(file.Text, asked)) << file.Path;
        if (std::regex_match(file.Path, named)) {
            ++ofSystems;
            continue;
        }
        for (const auto& name : Includes(file.Text))
            EXPECT_FALSE(IsOfOneSystem(name)) << file.Path << " includes " << name;
    }
    EXPECT_GE(ofSystems, 6);
}

// The tests that every system's command line is held to.
TEST(Walls, TestsOfTheCommandLineAskTheSystemInOnePlace) {
    int ofSystems = 0;
    for (const char* folder : {"base", "causes", "cli", "consolidation", "contour", "core", "files", "raft", "report",
                               "services", "stress", "study", "support", "texts", "timesettlement"})
        for (const auto& entry : fs::directory_iterator(SourceDir() / "tests" / folder)) {
            const std::string name = entry.path().filename().string();
            if (name.starts_with("Posix") || name.starts_with("Windows")) {
                ++ofSystems;
                continue;
            }
            for (const auto& header : Includes(TextOf(std::string("tests/") + folder + "/" + name)))
                EXPECT_FALSE(IsOfOneSystem(header)) << folder << "/" << name << " includes " << header;
        }
    EXPECT_GE(ofSystems, 2);
}

// No family of kernels knows another one; what several need stands in kernels/elastic, or lower.
TEST(Walls, KernelsStandOnTheElasticFormulasAlone) {
    const std::vector<std::string> families = {"stress", "raft", "consolidation", "timesettlement", "elastic"};
    for (const auto& family : families) {
        std::vector<std::string> others;
        for (const auto& other : families)
            if (other != family && other != "elastic") others.push_back("kernels/" + other);
        ExpectNoWay("kernels/" + family, others);
    }
    for (const auto& file : Sources()) {
        if (!file.Folder.starts_with("kernels/")) continue;
        for (const auto& name : Includes(file.Text))
            EXPECT_FALSE(name.starts_with("kernels/Run")) << file.Path << " includes " << name;
    }
}

// What forms are made of knows no form.
TEST(Walls, TheModelOfFormsKnowsNoForm) {
    EXPECT_GT(FilesIn("ui/model"), 0);
    for (const auto& file : Sources()) {
        if (file.Folder != "ui/model") continue;
        for (const auto& name : Includes(file.Text))
            EXPECT_TRUE(!name.starts_with("ui/") || name.starts_with("ui/model/")) << file.Path << " includes " << name;
    }
}

TEST(Walls, NothingBelowRenderIncludesAToolkitHeader) {
    static const std::regex toolkit(R"(^(Q[A-Z]\w*|Qt\w+/.*|qcustomplot\.h|xlsxwriter\.h)$)");
    for (const auto& file : Sources()) {
        if (Floors().at(file.Floor) >= Floors().at("render")) continue;
        for (const auto& name : Includes(file.Text))
            EXPECT_FALSE(std::regex_match(name, toolkit)) << file.Path << " includes " << name;
    }
}

TEST(Walls, OnlyTheNamedServicesUseALibraryBeyondTheStandardOne) {
    static const std::regex library(R"(^(Eigen/.*|zip\.h|nlohmann/.*|CLI/.*|gtest/.*|gmock/.*)$)");
    static const std::regex ofStudies(R"(^(boost/.*|Random123/.*)$)");
    for (const auto& file : Sources()) {
        if (Floors().at(file.Floor) >= Floors().at("render")) continue;
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
    for (const auto& entry : fs::recursive_directory_iterator(SourceDir())) {
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
}  // namespace lithmark::tests
