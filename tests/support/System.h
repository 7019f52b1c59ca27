// What the tests ask of the operating system beside what the program itself needs; the one place where they differ by
// it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lithmark::tests {

// What a system has or has not.
enum class Ability {
    CopyOfAProcess,    // a running process is copied, with limits of its own
    SymbolicLinks,     // anybody may make one
    NamedPipes,        // in a folder, under a path
    DeviceFiles,       // /dev/null, /dev/zero, /dev/full
    FilePermissions,   // for the owner, the group and others
    FoldersOfHome,     // the user's folders follow the variable HOME
    NamesByCase,       // names that differ by letter case alone are different files
    OpenFilesGo,       // a file that is open can be taken away, and its folder
    TimesOfFolders,    // the standard library can set them
    PosixShell,        // with its tools: timeout, script, kill
    WorkersByCopying,  // a study's worker is a copy of the program; else the program is started anew
};
bool SystemHas(Ability ability);
const char* ReasonWithout(Ability ability);

// Skips a test that is about what this system has not.
#define LITHMARK_NEEDS(ability)                                             \
    if (!::lithmark::tests::SystemHas(::lithmark::tests::Ability::ability)) \
    GTEST_SKIP() << ::lithmark::tests::ReasonWithout(::lithmark::tests::Ability::ability)

// Whether the user may do everything with every file.
bool IsRoot();

// Nothing takes the variable away. The program sees it as its users' shells would set it.
void SetVariable(const char* name, const std::optional<std::string>& value);

// Makes a file so large; nothing is written to the disk.
void MakeLarge(const std::string& path, std::uint64_t bytes);

// A pipe in a folder; it has no reader and no writer. Fails the test where there is none.
void MakePipe(const std::string& path);

// Runs an action in a copy of this process, in which no file grows beyond so many bytes where they are given; its exit
// status is what the action says. Nothing when it ended in another way.
std::optional<int> RunInACopy(const std::function<int()>& action, std::optional<std::uint64_t> largestFile = {});
// Ends this process without a further step.
[[noreturn]] void EndAtOnce(int status);

// As long as it lives this process gets so little memory, where the system can limit it.
class LittleMemory {
  public:
    explicit LittleMemory(std::uint64_t bytes);
    ~LittleMemory();
    LittleMemory(const LittleMemory&) = delete;
    LittleMemory& operator=(const LittleMemory&) = delete;

  private:
    std::uint64_t before_ = 0;
};

// A process by the number that it has in the system.
int OwnProcess();
void KillProcess(int process);
bool ProcessRuns(int process);

struct ProgramRun {
    std::string Program;
    std::vector<std::string> Words;
    std::vector<std::pair<std::string, std::string>> Variables;
    std::string Out, Err;        // the files of its two streams; its input is empty
    std::string Runner;          // a shell's command that runs the program, with a blank at its end
    bool WithoutRights = false;  // root is held to the permissions of files
};
// The exit status; -1 when the program was ended by a signal.
int RunProgram(const ProgramRun& run);

}  // namespace lithmark::tests
