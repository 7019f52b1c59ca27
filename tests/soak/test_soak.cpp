// A soak: random events over the whole program, from the menu to the files, for as long as LITHMARK_SOAK_SECONDS says
// (10 otherwise). LITHMARK_SOAK_SEED takes a run up again; a broken law prints the seed and the last steps.
//
// What must hold: no exception leaves an event; frame, page and session agree about the open project; no file stays
// open and nothing temporary is left behind; every project file in the folder is one that can be read or was bad from
// the beginning.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "base/Utf8.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "core/StartSession.h"
#include "files/ProblemData.h"
#include "files/ProjectFiles.h"
#include "services/ProjectStore.h"
#include "services/SharedServices.h"
#include "services/storage/DataFile.h"
#include "soak/RandomHost.h"
#include "support/Files.h"
#include "support/Places.h"
#include "ui/frame/MDITools.h"

namespace lithmark::tests {
namespace {

namespace fs = std::filesystem;

long FromEnvironment(const char* name, long otherwise) {
    const char* text = std::getenv(name);
    return text != nullptr && *text != '\0' ? std::atol(text) : otherwise;
}

const std::string kBad = "PK\x03\x04 broken";

class Soak : public testing::Test {
  protected:
    Soak() : seed_(static_cast<unsigned>(FromEnvironment("LITHMARK_SOAK_SEED", 1))), host_(seed_, data_.Dir()) {
        SharedServices().UseSettingsDirectory(settings_.Dir());
        LanguageTexts().SetCurrent(Language::English);
        int number = 0;
        for (const auto& entry : fs::recursive_directory_iterator(SourceDir() / "examples"))
            if (entry.path().extension() == ".PO3") CopyProject(entry.path().parent_path(), ++number);
        WriteBytes(data_ / "bad.PO3", kBad);
        WriteBytes(settings_ / "STEU", data_.Dir() + "\r\n7\r\n");
        NewFrame();
    }
    ~Soak() override {
        ProjectStore().LeaveProject();
        SharedServices().UseSettingsDirectory("");
        LanguageTexts().SetCurrent(Language::English);
        ResetSession();
    }

    // An example as the project "P<number>".
    void CopyProject(const fs::path& from, int number) {
        for (const auto& entry : fs::directory_iterator(from))
            if (entry.is_regular_file())
                fs::copy_file(entry.path(), data_ / ("P" + std::to_string(number) + entry.path().extension().string()));
    }
    void NewFrame() {
        frame_ = std::make_unique<MDITools>();
        long long now = 0;
        frame_->SetClock([now]() mutable { return now += 1000; });
        frame_->Start("");
    }
    // An entry can be clicked when all menus that it stands in can be opened.
    bool IsReachable(const MenuItem& item) {
        if (!item.Enabled || !item.Visible) return false;
        const MenuItem* parent = item.Parent.empty() ? nullptr : frame_->Menu.Find(item.Parent);
        return parent == nullptr || IsReachable(*parent);
    }
    void AnyCommand() {
        std::vector<std::string> keys;
        for (const MenuItem& item : frame_->Menu.Items())
            if (IsReachable(item) && !item.Separator()) keys.push_back(item.Key);
        const std::string key = keys[static_cast<std::size_t>(host_.Below(static_cast<int>(keys.size())))];
        host_.Note("menu " + key);
        frame_->m_cMenu_Click(key);
        if (frame_->Ended) NewFrame();
    }
    void ExpectOrder() {
        EXPECT_FALSE(IsNumberedFileOpen(1));
        const bool open = frame_->ProjectOpen();
        if (open) {
            EXPECT_TRUE(frame_->Caption.ends_with("- [" + Session.ProjectName + "]")) << frame_->Caption;
        }
        EXPECT_EQ(frame_->Menu["mnuMainProblem"].Enabled, open);
        EXPECT_EQ(frame_->Menu["mnuSaveProjectAs"].Enabled, open);
        EXPECT_EQ(frame_->Summary().Name, Session.ProjectName);
        for (const std::string& file : data_.Names()) EXPECT_FALSE(file.ends_with(".tmp")) << file;
    }
    // Every project in the folder can be opened, but for the file that was bad from the beginning.
    void ExpectProjects() {
        ProjectStore().LeaveProject();
        for (const std::string& file : data_.Names()) {
            if (!UpperAscii(file).ends_with(".PO3") || ReadBytes(data_ / file) == kBad) continue;
            SCOPED_TRACE(file);
            const std::string name = file.substr(0, file.size() - 4);
            EXPECT_TRUE(ProjectStore().UnpackProject(data_ / name, ".po3"));
            Integer problem;
            EXPECT_EQ(ReadProjectFile(data_.Dir(), name, problem), ReadOutcome::Read);
            Session.WorkDir = data_.Dir();
            Session.WorkName = name;
            Session.ProblemType = problem;
            SetProblemDefaults();
            EXPECT_NE(ReadProblemData(), ReadOutcome::Failed);
        }
    }
    std::string Story() const {
        std::string story = "LITHMARK_SOAK_SEED=" + std::to_string(seed_) + ", the last steps:\n";
        for (const std::string& step : host_.Steps()) story += "  " + step + "\n";
        return story;
    }

    TestFolder data_, settings_;
    unsigned seed_;
    RandomHost host_;
    std::unique_ptr<MDITools> frame_;
};

TEST_F(Soak, RandomEventsBreakNothing) {
    const auto end =
        std::chrono::steady_clock::now() + std::chrono::seconds(FromEnvironment("LITHMARK_SOAK_SECONDS", 10));
    while (std::chrono::steady_clock::now() < end && !HasFailure()) {
        try {
            AnyCommand();
        } catch (const std::exception& error) {
            ADD_FAILURE() << "an exception left a command: " << error.what();
        }
        ExpectOrder();
    }
    ExpectProjects();
    if (HasFailure()) {
        ADD_FAILURE() << Story();
    }
    EXPECT_GT(host_.Events(), 100);
    RecordProperty("events", static_cast<int>(host_.Events()));
}

}  // namespace
}  // namespace lithmark::tests
