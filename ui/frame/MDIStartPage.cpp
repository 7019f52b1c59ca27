// The frame's page without a project.
#include <algorithm>

#include "base/Utf8.h"
#include "core/Session.h"
#include "files/CommonStep.h"
#include "files/ProjectGlance.h"
#include "services/SharedServices.h"
#include "services/storage/UserFolders.h"
#include "ui/frame/MDITools.h"

namespace lithmark {

namespace {

ListedProject Listed(int index, const std::string& path, const std::vector<std::string>& pinned) {
    const ProjectGlance glance = GlanceAt(path);
    return {index, path, glance.ProblemType, glance.Changed, std::ranges::find(pinned, path) != pinned.end()};
}

}  // namespace

StartPage MDITools::RecentProjects() const {
    const std::vector<std::string> pinned = PinnedPaths();
    StartPage page;
    for (const std::string& path : pinned) page.PinnedProjects.push_back(Listed(0, path, pinned));
    for (int i = 1; i < static_cast<int>(RecentFiles.size()); ++i)
        if (const RecentFile& row = RecentFiles[static_cast<std::size_t>(i)]; row.Visible)
            page.RecentProjects.push_back(Listed(i, row.Caption, pinned));
    return page;
}

void MDITools::OpenListed(const std::string& path) {
    UnderCommonStep([&] {
        if (!MayLeaveProject()) return;
        if (!SharedServices().FileMissing(path, false)) return ChangeProject(path);
        SharedServices().ShowMessageBox(Text(160030_text), Text(901007_text, {{"|1", PathExcerpt(path)}}),
                                        MessageIcon::Information);
        PinPath(path, false);
    });
    Refresh();
}

void MDITools::OpenExample(const ExampleProject& example) {
    UnderCommonStep([&] {
        if (!MayLeaveProject()) return;
        const std::string projects = UserProjectsDir();
        ChangeProject(CopyExample(example, projects.empty() ? Session.DataDir : projects));
    });
    Refresh();
}

void MDITools::PinProject(const std::string& path, bool pinned) {
    PinPath(path, pinned);
    Refresh();
}

}  // namespace lithmark
