// What the page of the frame holds while no project is open: projects to go on with, the problems as cards, examples.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lithmark {

// A project of a list.
struct ListedProject {
    int Index = 0;  // of MnuRecentFile; 0 for one of another list
    std::string Path;
    int ProblemType = 0;  // 0 where the file tells none
    std::string Changed;  // "2026-03-02"; empty for a file that is gone
    bool Pinned = false;

    bool operator==(const ListedProject&) const = default;
};

// New and open are the entries mnuNewProject and mnuOpenProject.
struct StartPage {
    std::vector<ListedProject> RecentProjects;  // the newest first, those pinned too
    std::vector<ListedProject> PinnedProjects;  // in the order in which they were pinned

    bool operator==(const StartPage&) const = default;
};

// A problem that a project can be begun with.
struct ProblemCard {
    int ProblemType;
    std::string Name;  // of the problem; of the method where an entry has several
};
std::vector<ProblemCard> ProblemCards();
// What a list of projects says of a problem: "[9] Settlements under a rigid raft"; empty for no problem.
std::string ProblemInShort(int problemType);

// A project that the program brings along.
struct ExampleProject {
    std::string Name;
    int ProblemType;
    std::string Line;    // what it shows
    std::string Folder;  // where its files lie, with a separator
};
// The examples whose files are there, in the order of the problems.
std::vector<ExampleProject> ExampleProjects(const std::string& folder);
// The folder of the examples that came with the program, and the one of them that bears a name.
std::string ExamplesDir();
std::optional<ExampleProject> FindExample(const std::string& name);
// Copies an example's files to a folder, which is made, and gives the copy's project file: the example's name, with a
// number behind it where a project of that name is there. Throws Failure; no copy is left then.
std::string CopyExample(const ExampleProject& example, const std::string& dir);

// Projects that stay in sight, in the settings store.
std::vector<std::string> PinnedPaths();
void PinPath(const std::string& path, bool pinned);

}  // namespace lithmark
