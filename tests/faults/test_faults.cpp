// Every kind of save with a fault put into it: the n-th write, sync, rename, open, close or removal fails, or the
// process ends there, for n = 1, 2, 3, ... until the save goes through.
//
// What must hold whatever happens: each file is the old one or the new one, whole; a save that says it went through
// did; one that did not says so and names a file; nothing is left over, or, after the end of the process, nothing that
// the next opening does not take away. A packed project can be opened and has every file.
//
// LITHMARK_FAULTS=all takes every kind and every n; the usual run takes the first ones.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "services/ProjectStore.h"
#include "services/storage/DraftStore.h"
#include "services/storage/ProjectArchive.h"
#include "support/Files.h"
#include "support/Places.h"
#include "support/ScriptedHost.h"

namespace lithmark::tests {
namespace {

using Files = std::map<std::string, std::string>;

struct Outcome {
    bool Struck = false;  // the n-th operation came
    int Status = -1;      // of the exit; -1 when the process was ended
    std::string Errors;
};

struct Fault {
    std::string Kind, Call, How;
};

std::string NameOf(const testing::TestParamInfo<Fault>& info) {
    return info.param.Kind + "_" + info.param.Call + "_" + info.param.How;
}

bool Thorough() {
    const char* faults = std::getenv("LITHMARK_FAULTS");
    return faults != nullptr && std::string(faults) == "all";
}

std::vector<Fault> AllFaults() {
    std::vector<std::string> kinds = {"project", "timesettlement", "raft",   "pack",  "unpack",
                                      "copy",    "setting",        "report", "study", "draft"};
    if (Thorough()) kinds.insert(kinds.end(), {"stress", "layers", "open", "units", "preferences", "datadir"});
    std::vector<Fault> faults;
    for (const std::string& kind : kinds)
        for (const char* call : {"open", "write", "sync", "rename", "close", "unlink"})
            for (const char* how : {"fail", "end"}) faults.push_back({kind, call, how});
    return faults;
}

// The project that every kind of save begins with.
const Files& Before() {
    static const Files files = {
        {"Raft1.PO3", "Version 9\r\n9\r\n0\r\n"},
        {"Raft1.AUF", "old order\r\nold date\r\nold project\r\n"},
        {"Raft1.SSD", "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n.3\r\n9\r\n1\r\n"},
        {"Raft1.TST", "old"},
        {"Raft1.RDE", "1000\r\n5\r\n5\r\n5\r\n.3\r\n9\r\n2\r\n0\r\n0\r\n#FALSE#\r\n#FALSE#\r\n"},
        {"Raft1.SC1", "old"},
        {"Raft1.PC1", std::string(300, '\0')},
        {"Raft1.PO1", "old"},
        {"Units", "\"[m]\",1\r\n\"[cm]\",1\r\n\"[kN]\",1\r\n\"[MN]\",1\r\n\"[°C]\"\r\n"},
        {"Preferen.tol", "1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n"},
        {"STEU", "/old/\r\n0\r\n"},
        {"report.txt", "old"},
        {"rows.csv", "old"},
        {"settings.json", "{}\n"}};
    return files;
}

class Faults : public testing::TestWithParam<Fault> {
  protected:
    void SetUp() override { Prepare(); }

    void Prepare() {
        for (const std::string& name : folder.Names()) std::filesystem::remove_all(folder / name);
        for (const auto& [name, bytes] : Before()) WriteBytes(folder / name, bytes);
        if (GetParam().Kind == "unpack") {
            ASSERT_TRUE(ProjectStore().PackProject(folder / "Raft1", 7, {}, ".po3"));
        }
        // Preferences that cannot be opened are no failure: the defaults hold.
        if (IsCommand()) std::filesystem::remove(folder / "Preferen.tol");
        if (GetParam().Kind == "draft") WriteDraft(folder.Dir(), {folder / "Raft1", "frmstress", "m", "1 May", {}, {}});
        before_ = GetParam().Kind == "unpack" ? Before() : Content();
        std::filesystem::remove(other / "mark");
    }
    bool IsCommand() const { return GetParam().Kind == "report" || GetParam().Kind == "study"; }
    // The program that saves, with its arguments.
    std::string Saver() const {
        if (!IsCommand())
            return (BuildDir() / "tests/faults/fault_saver").string() + " " + GetParam().Kind + " " + folder.Dir();
        const std::string common = " --lang en --settings " + folder.Dir() + " -o " + folder.Dir();
        const std::string tool = CommandLineTool().string() + " " + GetParam().Kind + " " + (folder / "Raft1.PO3");
        // One worker: a second one may only just have been made when the study is ended, and for a moment hold its
        // files.
        return tool + (GetParam().Kind == "report" ? " --no-export" + common + "report.txt"
                                                   : " --jobs 1 --vary Q=100,200" + common + "rows.csv");
    }
    Files Content() const {
        Files files;
        for (const std::string& name : folder.Names()) files[name] = ReadBytes(folder / name);
        return files;
    }
    // Runs the save, without a fault for n = 0.
    Outcome Save(int n) const {
        const Fault& fault = GetParam();
        std::string line = "LITHMARK_FAULT=" + fault.Call + ":" + std::to_string(n) + ":" + fault.How +
                           " LITHMARK_FAULT_UNDER=" + folder.Dir() + " LITHMARK_FAULT_MARK=" + (other / "mark") +
                           " LD_PRELOAD=" + (BuildDir() / "tests/faults/liblithmark_faults.so").string() + " exec " +
                           Saver() + " 2>" + (other / "errors");
        const int status = std::system(("sh -c '" + line + "' 2>/dev/null").c_str());
        Outcome outcome;
        outcome.Struck = std::filesystem::exists(other / "mark");
        const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        outcome.Status = code > 128 ? -1 : code;  // the shell's word for a process that was killed
        outcome.Errors = ReadBytes(other / "errors");
        return outcome;
    }
    // The project as the next one who opens it finds it.
    Files Reopened() {
        EXPECT_TRUE(ProjectStore().UnpackProject(folder / "Raft1", ".po3")) << host.LastMessage().Text;
        return Content();
    }
    bool IsPacking() const { return GetParam().Kind == "pack" || GetParam().Kind == "unpack"; }

    void ExpectOldOrNew(const Files& found, const Files& after) {
        for (const auto& [name, bytes] : found) {
            const bool old = before_.contains(name) && before_.at(name) == bytes;
            // A study leaves the rows so far.
            const bool grows = name == "rows.csv";
            const bool now =
                after.contains(name) && (grows ? after.at(name).starts_with(bytes) : after.at(name) == bytes);
            EXPECT_TRUE(old || now) << name << " is neither the old file nor the new one:\n" << bytes;
        }
        for (const auto& [name, bytes] : before_) EXPECT_TRUE(found.contains(name)) << name << " is gone";
    }
    void Check(const Outcome& outcome, const Files& after) {
        const bool ended = GetParam().How == "end";
        if (ended) {
            EXPECT_EQ(outcome.Status, -1);
        } else {
            EXPECT_GE(outcome.Status, 0) << "the program broke down";
            for (const std::string& name : folder.Names())
                EXPECT_FALSE(name.starts_with(".lithmark-") && GetParam().Call != "unlink") << name << " was left";
            if (outcome.Status != 0) {
                EXPECT_THAT(outcome.Errors, testing::HasSubstr(folder.Dir()));
            }
        }
        if (outcome.Status == 0 && !IsPacking()) {
            Files found = Content();
            std::erase_if(found, [](const auto& file) { return file.first.starts_with(".lithmark-"); });
            EXPECT_EQ(found, after);
        }
        ExpectOldOrNew(Reopened(), after);
    }

    TestFolder folder, other;
    ScriptedHost host;
    Files before_;
};

TEST_P(Faults, NeverLoseOrBendAFile) {
    const Outcome clean = Save(0);
    ASSERT_EQ(clean.Status, 0) << clean.Errors;
    const Files after = IsPacking() ? before_ : Content();
    if (GetParam().Kind != "raft") {
        EXPECT_EQ(clean.Errors, "");
    }
    constexpr int kUsual = 6, kMost = 400;
    for (int n = 1; n <= (Thorough() ? kMost : kUsual); ++n) {
        SCOPED_TRACE("n = " + std::to_string(n));
        Prepare();
        const Outcome outcome = Save(n);
        if (!outcome.Struck) {
            EXPECT_EQ(outcome.Status, 0) << outcome.Errors;
            return;
        }
        Check(outcome, after);
        if (HasFailure()) return;
    }
    EXPECT_FALSE(Thorough()) << "no end of operations";
}

// All files of a raft's run are brought to the disk before the first takes its place: a disk that fails any one of them
// leaves the old ones, all of them.
class RaftFiles : public Faults {};

TEST_P(RaftFiles, AreAllOnTheDiskBeforeTheFirstTakesItsPlace) {
    ASSERT_EQ(Save(0).Status, 0);
    std::size_t written = 0;
    for (const auto& [name, bytes] : Content()) written += !before_.contains(name) || before_.at(name) != bytes;
    EXPECT_GE(written, 11u);
    for (std::size_t n = 1; n <= written; ++n) {
        SCOPED_TRACE("n = " + std::to_string(n));
        Prepare();
        const Outcome outcome = Save(static_cast<int>(n));
        EXPECT_TRUE(outcome.Struck);
        EXPECT_NE(outcome.Status, 0);
        EXPECT_EQ(Content(), before_);
    }
    Prepare();
    EXPECT_FALSE(Save(static_cast<int>(written) + 1).Struck) << "each file once";
}

INSTANTIATE_TEST_SUITE_P(OneSync, RaftFiles, testing::Values(Fault{"raft", "sync", "fail"}), NameOf);
INSTANTIATE_TEST_SUITE_P(EverySave, Faults, testing::ValuesIn(AllFaults()), NameOf);

}  // namespace
}  // namespace lithmark::tests
