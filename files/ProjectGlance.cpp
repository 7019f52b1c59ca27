#include "files/ProjectGlance.h"

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <vector>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Utf8.h"
#include "core/Catalogue.h"
#include "services/platform/Process.h"
#include "services/storage/FileEncoding.h"
#include "services/storage/FileNames.h"
#include "services/storage/ProjectArchive.h"
#include "services/storage/ReadFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// A list must not wait for a project of many megabytes.
constexpr std::uint64_t kMostAtAGlance = std::uint64_t{4} << 20;

std::string LineOf(const std::vector<std::string>& lines, std::size_t index) {
    if (index >= lines.size()) return {};
    return Trim(lines[index].substr(0, lines[index].find('\r')));
}

std::vector<std::string> LinesOf(const std::string& bytes) {
    return Split(DecodeFileText(bytes, LanguageTexts().Current()), '\n');
}

int ProblemTypeIn(const std::string& projectFile) {
    const auto number = ParseNumber(LineOf(LinesOf(projectFile), 1));
    if (!number) return 0;
    for (const ProblemRow& problem : ProblemCatalogue())
        if (*number == problem.ProblemType) return problem.ProblemType;
    return 0;
}

void TakeHeading(ProjectGlance& glance, const std::string& orderFile) {
    const std::vector<std::string> lines = LinesOf(orderFile);
    glance.Order = LineOf(lines, 0);
    glance.Project = LineOf(lines, 2);
}

std::string DayOf(std::int64_t seconds) {
    const std::tm local = platform::LocalTime(static_cast<std::time_t>(seconds));
    char day[16];
    return std::string(day, std::strftime(day, sizeof day, "%Y-%m-%d", &local));
}

}  // namespace

ProjectGlance GlanceAt(const std::string& projectFile) {
    ProjectGlance glance;
    const std::string file = MappedFileName(projectFile);
    const auto mark = MarkOf(file);
    if (!mark) return glance;
    glance.There = true;
    std::int64_t changed = mark->Seconds;
    const std::string stem = file.substr(0, file.size() - ExtensionOf(file).size());
    try {
        if (IsArchiveFile(file)) {
            const ProjectFiles files = ReadArchive(ReadWholeFile(file, kMostAtAGlance), kMostAtAGlance);
            for (const auto& [extension, bytes] : files) {
                if (extension == "PO3") glance.ProblemType = ProblemTypeIn(bytes);
                if (extension == "AUF") TakeHeading(glance, bytes);
            }
        } else {
            glance.ProblemType = ProblemTypeIn(ReadWholeFile(file, kMostAtAGlance));
            const ProblemRow* problem = FindProblem(glance.ProblemType);
            for (const char* extension : {"AUF", problem != nullptr ? problem->Extension : "AUF"})
                if (const auto other = MarkOf(MappedFileName(stem + extension)))
                    changed = std::max(changed, other->Seconds);
            TakeHeading(glance, ReadWholeFile(MappedFileName(stem + "AUF"), kMostAtAGlance));
        }
    } catch (const Failure&) {
        // The list goes on with what has been read.
    }
    glance.Changed = DayOf(changed);
    return glance;
}

}  // namespace lithmark
