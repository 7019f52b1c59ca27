#include "ui/frame/StartPage.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "base/Failure.h"
#include "base/Utf8.h"
#include "core/Catalogue.h"
#include "files/ProjectGlance.h"
#include "services/SharedServices.h"
#include "services/storage/FileNames.h"
#include "services/storage/ReadFile.h"
#include "services/storage/WrittenFile.h"

namespace lithmark {

namespace {

namespace fs = std::filesystem;

const std::string kSection = "Recent Files", kPinned = "Pinned";

struct ExampleRow {
    const char* Name;
    TextId Line;
};
// In the order of their problems.
constexpr ExampleRow kExamples[] = {
    {"PointLoad", 913430_text},     {"RectangularFooting", 913431_text}, {"BridgePier", 913432_text},
    {"CircularTank", 913433_text},  {"ClayUnderFooting", 913434_text},   {"ClayUnderTank", 913435_text},
    {"OneClayLayer", 913436_text},  {"TwoClayLayers", 913437_text},      {"OfficeBuilding", 913438_text},
    {"GrainStore", 913439_text},    {"WaterTower", 913440_text},         {"SquareRaft", 913441_text},
    {"EccentricRaft", 913442_text}, {"SiloRaft", 913443_text},           {"RaftOnPunch", 913444_text},
    {"RaftOnClayEs", 913445_text},  {"RaftOnThinClay", 913446_text},     {"RaftOnThickClay", 913447_text},
};

// The methods of the time-settlement curve are told apart by short names.
std::string NameOfCard(const ProblemRow& problem) {
    switch (problem.ProblemType) {
        case Problem::TimeDirect:
            return Text(913410_text);
        case Problem::TimeOedometer:
            return Text(913411_text);
        case Problem::TimeTheory:
            return Text(913412_text);
        default:
            return Text(problem.MenuText);
    }
}

// Nothing where the files of the example are not there.
std::optional<ExampleProject> ExampleIn(const std::string& folder, const ExampleRow& row) {
    const std::string own = WithSeparator(folder) + row.Name + "/";
    const ProjectGlance glance = GlanceAt(own + row.Name + ".PO3");
    if (glance.ProblemType == 0) return std::nullopt;
    return ExampleProject{row.Name, glance.ProblemType, Text(row.Line), own};
}

// A stem that no file of a project has yet.
std::string FreeStem(const std::string& dir, const std::string& name) {
    const auto taken = [&](const std::string& stem) {
        return std::ranges::any_of(ProjectExtensions(), [&](std::string_view extension) {
            return PathExists(MappedFileName(stem + "." + std::string(extension)));
        });
    };
    std::string stem = dir + name;
    for (int number = 2; taken(stem); ++number) stem = dir + name + " " + std::to_string(number);
    return stem;
}

}  // namespace

std::vector<ProblemCard> ProblemCards() {
    std::vector<ProblemCard> cards;
    for (const ProblemRow& problem : ProblemCatalogue())
        if (problem.Calculated) cards.push_back({problem.ProblemType, NameOfCard(problem)});
    return cards;
}

std::string ProblemInShort(int problemType) {
    const ProblemRow* problem = FindProblem(problemType);
    return problem == nullptr ? "" : "[" + std::to_string(problemType) + "] " + NameOfCard(*problem);
}

std::string ExamplesDir() {
    return SharedServices().ResourceDir() + "examples/";
}

std::vector<ExampleProject> ExampleProjects(const std::string& folder) {
    std::vector<ExampleProject> examples;
    for (const ExampleRow& row : kExamples)
        if (auto example = ExampleIn(folder, row)) examples.push_back(*std::move(example));
    return examples;
}

std::optional<ExampleProject> FindExample(const std::string& name) {
    const auto* row = std::ranges::find(kExamples, name, &ExampleRow::Name);
    return row == std::end(kExamples) ? std::nullopt : ExampleIn(ExamplesDir(), *row);
}

std::string CopyExample(const ExampleProject& example, const std::string& dir) {
    std::error_code error;
    fs::create_directories(dir, error);
    if (error) FailInFile(FailureKind::WriteError, dir);
    const std::string stem = FreeStem(WithSeparator(dir), example.Name);
    std::vector<std::unique_ptr<WrittenFile>> files;
    const auto add = [&](const std::string& extension) {
        const std::string from = example.Folder + example.Name + "." + extension;
        if (!PathExists(from)) return;
        const std::string bytes = ReadWholeFile(from);
        files.push_back(std::make_unique<WrittenFile>(stem + "." + extension));
        files.back()->Append(bytes);
    };
    // The project file last: a copy that can be opened is whole.
    for (const std::string_view extension : ProjectExtensions())
        if (extension != "PO3") add(std::string(extension));
    add("PO3");
    WrittenFile::CommitTogether(files, [](std::size_t) {});
    return stem + ".PO3";
}

std::vector<std::string> PinnedPaths() {
    std::vector<std::string> paths = Split(SharedServices().GetSetting(kApplicationTitle, kSection, kPinned, ""), '\n');
    std::erase(paths, "");
    return paths;
}

void PinPath(const std::string& path, bool pinned) {
    std::vector<std::string> paths = PinnedPaths();
    std::erase(paths, path);
    if (pinned) paths.push_back(path);
    std::string list;
    for (const std::string& row : paths) list += (list.empty() ? "" : "\n") + row;
    SharedServices().SaveSetting(kApplicationTitle, kSection, kPinned, list);
}

}  // namespace lithmark
