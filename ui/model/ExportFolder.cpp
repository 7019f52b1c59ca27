#include "ui/model/ExportFolder.h"

#include <filesystem>
#include <string>
#include <vector>

#include "base/Utf8.h"
#include "core/Session.h"
#include "services/SharedServices.h"
#include "services/storage/FileNames.h"

namespace lithmark {

namespace {

namespace fs = std::filesystem;

const std::string kExportSection = "Export", kKey = "Folders";
// Of so many projects, the ones that exported last.
constexpr std::size_t kProjects = 50;

struct Row {
    std::string Project, Folder;
};

std::string OpenProject() {
    return Session.ProjectName.empty() ? std::string() : Session.WorkDir + Session.ProjectName;
}

// A line for the project, and one for its folder.
std::vector<Row> StoredRows() {
    const std::vector<std::string> lines =
        Split(SharedServices().GetSetting(kApplicationTitle, kExportSection, kKey, ""), '\n');
    std::vector<Row> rows;
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2) rows.push_back({lines[i], lines[i + 1]});
    return rows;
}

bool IsFolder(const std::string& folder) {
    std::error_code error;
    return fs::is_directory(folder, error);
}

}  // namespace

std::string ExportFolder() {
    if (const std::string project = OpenProject(); !project.empty())
        for (const Row& row : StoredRows())
            if (row.Project == project && IsFolder(row.Folder)) return row.Folder;
    return Session.WorkDir;
}

void RememberExportFolder(const std::string& folder) {
    const std::string project = OpenProject();
    if (project.empty() || (project + folder).find('\n') != std::string::npos) return;
    std::vector<Row> rows = StoredRows();
    std::erase_if(rows, [&](const Row& row) { return row.Project == project; });
    // The project's own folder is offered anyway.
    if (WithSeparator(folder) != Session.WorkDir) rows.insert(rows.begin(), {project, WithSeparator(folder)});
    if (rows.size() > kProjects) rows.resize(kProjects);
    std::string list;
    for (const Row& row : rows) list += (list.empty() ? "" : "\n") + row.Project + "\n" + row.Folder;
    if (list != SharedServices().GetSetting(kApplicationTitle, kExportSection, kKey, ""))
        SharedServices().SaveSetting(kApplicationTitle, kExportSection, kKey, list);
}

}  // namespace lithmark
