// What a command does to files: its project's, its output, those of others.
#include <thread>

#include "cli/CliCase.h"
#include "services/ProjectStore.h"
#include "services/storage/ProjectArchive.h"
#include "support/Matchers.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

class CliStorage : public CliTest {};

// --- output ---

TEST_F(CliStorage, AnOutputThatIsAFileOfTheProjectIsRefused) {
    LITHMARK_NEEDS(SymbolicLinks);
    const std::string project = New("Raft1", 9, {"LoadType=2", "A=4", "B=4", "h=5"});
    const std::vector<std::string> before = work.Names();
    const std::string data = ReadBytes(work / "Raft1.RDE");
    std::filesystem::create_directory(work / "sub");
    std::filesystem::create_symlink(work / "Raft1.RDE", work / "sub/link.txt");
    for (const char* name : {"Raft1.PO3", "Raft1.RDE", "Raft1.rde", "Raft1.AUF", "Raft1.TO1", "Raft1.SSD",
                             "sub/../Raft1.RDE", "sub/link.txt"}) {
        SCOPED_TRACE(name);
        ExpectFailure(Run({"report", project, "--format", "txt", "--output", work / name}), 2,
                      {"would replace a file of the project"});
        ExpectFailure(Run({"report", project, "--format", "json", "--output", work / name}), 2, {"replace"});
    }
    EXPECT_EQ(ReadBytes(work / "Raft1.RDE"), data);
    EXPECT_FALSE(std::filesystem::exists(work / "Raft1.TO1"));  // told before the run
    EXPECT_EQ(Run({"report", project, "--format", "txt", "--output", work / "Raft2.RDE"}).Status, 0);
}

TEST_F(CliStorage, APackedProjectIsNotReplacedByItsReport) {
    const std::string project = New("Footing", 1);
    ASSERT_TRUE(ProjectStore().PackProject(work / "Footing", 1, "", ".po3"));
    ExpectFailure(Run({"report", project, "--format", "txt", "--output", project}), 2, {"replace"});
    EXPECT_TRUE(IsArchiveFile(project));
}

TEST_F(CliStorage, WhatAStudyReadsIsNotWhatItWrites) {
    LITHMARK_NEEDS(SymbolicLinks);
    const std::string project = New("Footing", 1);
    const std::string rows = work / "rows.csv", part = work / "part.csv", link = work / "link.csv";
    WriteBytes(rows, "z\n1\n2\n");
    std::filesystem::create_symlink(rows, link);
    ExpectFailure(Run({"study", project, "--rows", rows, "--output", rows}), 2, {"--rows, --output"});
    ExpectFailure(Run({"study", project, "--rows", rows, "--output", link}), 2, {"--rows, --output"});
    ExpectFailure(Run({"study", project, "--rows", rows, "--summary", rows}), 2, {"--rows, --summary"});
    EXPECT_EQ(ReadBytes(rows), "z\n1\n2\n");
    ASSERT_EQ(Run({"study", project, "--rows", rows, "--output", part}).Status, 0);
    ExpectFailure(Run({"study", project, "--rows", rows, "--join", part, "--summary", part}), 2, {"--join, --summary"});
}

// --- scratch ---

TEST_F(CliStorage, AScratchFolderThatIsMissingIsNamed) {
    LITHMARK_NEEDS(PosixShell);
    const std::string project = New("Raft1", 9, {"LoadType=2", "A=4", "B=4", "h=5"});
    runner = "TMPDIR=" + (work / "none") + " ";
    for (const char* lang : {"de", "en", "ar"}) {
        const CliResult result = Run({"contour", project, "--no-export", "--lang", lang});
        ExpectFailure(result, 1, {work / "none"});
        EXPECT_THAT(result.Err, Not(HasSubstr("Raft1.")));
    }
}

// --- time units ---

TEST_F(CliStorage, AProjectMadeUnderOneLanguageRunsUnderEveryOther) {
    for (const int problem : {5, 8}) {
        const std::string name = "P" + std::to_string(problem);
        ASSERT_EQ(Run({"new", work / name, "--problem", std::to_string(problem), "--lang", "de"}).Status, 0);
        ASSERT_TRUE(ProjectStore().PackProject(work / name, 1, "", ".po3"));
        for (const char* lang : {"de", "en", "ar", "ids"}) {
            const CliResult result = Run({"report", work / (name + ".PO3"), "--lang", lang});
            EXPECT_EQ(result.Status, 0) << lang << result.Err;
        }
        // And a unit may be set by the word of any language.
        EXPECT_EQ(Run({"report", work / (name + ".PO3"), "--set", "TimeUnit=Wochen"}).Status, 0);
        ExpectFailure(Run({"report", work / (name + ".PO3"), "--set", "TimeUnit=moons"}), 3, {"moons"});
    }
}

// --- other programs ---

TEST_F(CliStorage, CommandsAtTheSameTimeOnAPackedProjectWaitForEachOther) {
    LITHMARK_NEEDS(PosixShell);
    const std::string project = New("Raft1", 9, {"LoadType=2", "A=4", "B=4", "h=5"});
    ASSERT_TRUE(ProjectStore().PackProject(work / "Raft1", 1, "", ".po3"));
    const std::string tool = CommandLineTool().string();
    const std::string script = "for i in 1 2 3 4 5 6; do '" + tool + "' report '" + project +
                               "' --set Q=$((1000 * i)) > '" + (work / "out") + "'$i 2> '" + (work / "err") +
                               "'$i || echo failed >> '" + (work / "failed") + "' & done; wait";
    ASSERT_EQ(std::system(script.c_str()), 0);
    std::string errors;
    for (int i = 1; i <= 6; ++i) {
        EXPECT_THAT(ReadBytes(work / ("out" + std::to_string(i))), HasSubstr("Raft1"));
        errors += ReadBytes(work / ("err" + std::to_string(i)));
    }
    EXPECT_FALSE(std::filesystem::exists(work / "failed")) << errors;
    // Whoever came last has left it packed, or plain with everything in place; it opens either way.
    EXPECT_THAT(Run({"show", project}).Out, HasSubstr("LoadType = 2\n"));
}

TEST_F(CliStorage, AProjectThatAnotherProgramHasPackedAndOpenIsToldWithWho) {
    const std::string project = New("Footing", 1);
    ASSERT_TRUE(ProjectStore().PackProject(work / "Footing", 1, "", ".po3"));
    const ProjectLock lock(work / "Footing");
    const CliResult result = Run({"show", project});
    ExpectFailure(result, 1, {"is open already", "process " + std::to_string(OwnProcess())});
    EXPECT_TRUE(IsArchiveFile(project));
}

TEST_F(CliStorage, AProjectThatIsOpenInTheWindowCanBeReported) {
    const std::string project = New("Footing", 1);
    const ProjectLock lock(work / "Footing");
    EXPECT_EQ(Run({"report", project}).Status, 0);
    ExpectFailure(Run({"new", work / "Footing", "--problem", "2"}), 1, {"Footing"});
}

TEST_F(CliStorage, ASignalThatEndsTheProgramLeavesNothingBehind) {
    LITHMARK_NEEDS(PosixShell);
    const std::string project = New("Raft1", 9, {"LoadType=3", "A=5", "h=5", "AnalysisType=false"});
    ASSERT_TRUE(ProjectStore().PackProject(work / "Raft1", 1, "", ".po3"));
    runner = "timeout -s TERM 0.3 env ";
    const CliResult result = RunPlain({"report", project, "--set", "PrefND=180"});  // many seconds, were it left alone
    EXPECT_EQ(result.Status, 124) << result.Err;
    for (const std::string& name : work.Names()) EXPECT_THAT(name, Not(testing::StartsWith(".lithmark")));
    runner.clear();
    EXPECT_EQ(Run({"show", project}).Status, 0);
}

TEST_F(CliStorage, ASignalThatEndsTheProgramLeavesNoScratchBehind) {
    LITHMARK_NEEDS(PosixShell);
    const std::string project = New("Raft1", 9, {"LoadType=3", "A=5", "h=5", "AnalysisType=false"});
    const TestFolder scratch;
    for (const char* signal : {"TERM", "HUP"}) {
        runner = std::string("timeout -s ") + signal + " 0.3 env TMPDIR=" + scratch.Dir() + " ";
        const CliResult result = RunPlain({"contour", project, "--no-export", "--set", "PrefND=180"});
        EXPECT_EQ(result.Status, 124) << result.Err;
        EXPECT_THAT(scratch.Names(), IsEmpty()) << signal;
    }
}

TEST_F(CliStorage, WhatACrashLeftInAFolderThatIsWrittenToGoes) {
    const std::string project = New("Footing", 1);
    const TestFolder out;
    WriteBytes(out / ".lithmark-99999-1.tmp", "half");
    WriteBytes(out / "mine.tmp", "the user's own");
    EXPECT_EQ(Run({"report", project, "--output", out / "report.txt"}).Status, 0);
    EXPECT_THAT(out.Names(), ElementsAre("mine.tmp", "report.txt"));
}

// Nothing is in the table's place before the first row; whoever tidies up meanwhile leaves what is being written.
TEST_F(CliStorage, AStudyThatHasNoRowYetIsLeftAloneByOthersAndLeavesNothing) {
    LITHMARK_NEEDS(PosixShell);
    const std::string project = New("Raft1", 9, {"LoadType=3", "A=5", "h=5", "AnalysisType=false", "Q=1000"});
    const std::string table = work / "rows.csv";
    WriteBytes(table, "old");
    const std::string tool = CommandLineTool().string();
    const std::string study = "'" + tool + "' study '" + project + "' --vary Q=1,2 --set PrefND=180 -o '" + table + "'";
    const auto hidden = [this] {
        std::vector<std::string> names = work.Names();
        std::erase_if(names, [](const std::string& name) { return !name.starts_with(".lithmark"); });
        return names;
    };
    ASSERT_EQ(std::system((study + " 2>/dev/null & echo $! >'" + (work / "pid") + "'").c_str()), 0);
    const auto awaitHidden = [&] {
        for (int tries = 0; hidden().empty() && tries < 1000; ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    };
    awaitHidden();
    ASSERT_EQ(hidden().size(), 1u);
    EXPECT_TRUE(ProjectStore().UnpackProject(work / "Raft1", ".po3"));  // tidies up
    awaitHidden();  // one that was gone before its lock was on it is made again
    EXPECT_EQ(hidden().size(), 1u);
    KillProcess(std::stoi(ReadBytes(work / "pid")));
    EXPECT_EQ(ReadBytes(table), "old");
    // The workers hold it until they have seen that their study is gone.
    for (int tries = 0; !hidden().empty() && tries < 1000; ++tries) {
        EXPECT_TRUE(ProjectStore().UnpackProject(work / "Raft1", ".po3"));
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_THAT(hidden(), IsEmpty());
}

// --- files that no command should read ---

TEST_F(CliStorage, HugeFilesPipesAndDevicesAreRefusedAtOnce) {
    LITHMARK_NEEDS(NamedPipes);
    const std::string project = New("Footing", 1);
    runner = "timeout 10 env ";
    std::filesystem::resize_file(work / "Footing.SSD", std::uintmax_t{600} << 20);
    ExpectFailure(Run({"report", project}), 1, {"Footing.SSD", "larger than 32 MB"});
    std::filesystem::remove(work / "Footing.SSD");
    MakePipe(work / "Footing.SSD");
    ExpectFailure(Run({"report", project}), 1, {"Footing.SSD is not a file"});
    MakePipe(work / "Pipe.PO3");
    ExpectFailure(Run({"report", work / "Pipe.PO3"}), 1, {"Pipe.PO3 is not a file"});
    std::filesystem::create_symlink("/dev/zero", work / "Zero.PO3");
    ExpectFailure(Run({"report", work / "Zero.PO3"}), 1, {"Zero.PO3 is not a file"});
}

TEST_F(CliStorage, ControlCharactersDoNotReachTheTerminal) {
    const std::string project = New("Footing", 1, {"Proj=a\x1B]0;owned\x07z"});
    for (const char* command : {"report", "show"}) {
        const CliResult result = Run({command, project});
        EXPECT_EQ(result.Status, 0) << result.Err;
        EXPECT_THAT(result.Out, HasSubstr("a\uFFFD]0;owned\uFFFDz"));
        EXPECT_THAT(result.Out, Not(HasSubstr("\x1B")));
    }
    EXPECT_THAT(Run({"report", work / "no\x1B[2Jne.PO3"}).Err, Not(HasSubstr("\x1B")));
}

// --- no words of libraries ---

TEST_F(CliStorage, MessagesHaveNoWordsOfALibraryInThem) {
    const std::string project = New("Footing", 1);
    const std::string unreachable = work / std::string(5000, 'x');
    for (const char* lang : {"de", "ar"})
        for (const std::vector<std::string>& words :
             {std::vector<std::string>{"report", project, "--output", "/nowhere/report.txt"},
              {"report", project, "--settings", unreachable},
              {"report", unreachable + ".PO3"},
              {"new", unreachable + "/P", "--problem", "1"}}) {
            std::vector<std::string> line = words;
            line.insert(line.end(), {"--lang", lang});
            const CliResult result = RunPlain(line);
            EXPECT_NE(result.Status, 0);
            for (const char* word : {"filesystem", "error", "cannot", "No such", "Permission", "too long", "What"})
                EXPECT_THAT(result.Err, Not(HasSubstr(word)));
        }
}

}  // namespace
}  // namespace lithmark::tests
