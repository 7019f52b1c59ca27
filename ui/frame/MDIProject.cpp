// The frame's project commands.
#include <algorithm>
#include <utility>

#include "base/Utf8.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "files/CommonStep.h"
#include "files/GloableVariable.h"
#include "files/ProjectCopy.h"
#include "files/ProjectFiles.h"
#include "services/FileDialogs.h"
#include "services/FileTools.h"
#include "services/ProjectStore.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"
#include "services/host/Host.h"
#include "services/platform/Files.h"
#include "services/storage/FileNames.h"
#include "ui/frame/MDITools.h"
#include "ui/frame/StartPage.h"
#include "ui/frmProblemType.h"
#include "ui/frmProjectCheck.h"
#include "ui/model/Hourglass.h"
#include "ui/model/ProjectFlags.h"
#include "ui/model/ProjectHeading.h"

namespace lithmark {

namespace {

const std::string kStandsForProject = ".po3";

std::string OpenProjectPath() {
    return Session.DataDir + Session.ProjectName;
}

bool IsProjectFile(const std::string& file) {
    return UpperAscii(file).ends_with("PO3");
}

// The extensions of the files that make a copy of the open project, its own file last: the heading where there is one,
// and the data of the problems that are ticked.
std::vector<std::string> FilesToCopy() {
    std::vector<std::string> extensions;
    const auto add = [&](const std::string& extension) {
        const bool listed = std::ranges::find(extensions, extension) != extensions.end();
        if (!listed && ProjectHasFile(extension)) extensions.push_back(extension);
    };
    for (const ProblemRow& problem : ProblemCatalogue())
        if (ProblemSaved(problem.MenuEntry)) add(problem.Extension);
    add("AUF");
    extensions.push_back("PO3");
    return extensions;
}

void PackLeftProject(const std::string& newFile) {
    if (!Session.ProjectName.empty())
        ProjectStore().PackProject(OpenProjectPath(), Session.CompressFlag, newFile, kStandsForProject);
}

// Settings, what the program brings along, and folders that only the system writes.
bool IsNoPlaceForProjects(const std::string& dir) {
    SharedServicesService& services = SharedServices();
    const bool own = dir == services.ExecutableDir() || dir.starts_with(services.ResourceDir());
    const bool settings = dir == Session.ProgramDir && dir != services.GetDirectories().DataDir;
    return own || settings || (PathExists(dir) && !platform::MayWrite(dir));
}

}  // namespace

std::string MDITools::Title(const std::string& name) {
    return Text(160030_text) + " - [" + name + "]";
}

void MDITools::ShowTitle(const std::string& name) {
    Caption = Title(name);
    Refresh();
}

bool MDITools::ProjectOpen() const {
    return !Session.ProjectName.empty();
}

void MDITools::NewProjectState() {
    Session.ProjectName.clear();
    Session.ProjectFile.clear();
    Session.ProblemType = Problem::SoilStress;
    Session.WorkName = Text(93_text);
    ClearHeading();
    for (int entry = 0; entry < kProblemEntries; ++entry) SetProblemSaved(entry, false);
    Menu["mnuMainProblem"].Enabled = false;
    Menu["mnuSaveProjectAs"].Enabled = false;
    Menu["mnuCloseProject"].Enabled = false;
    ProjectStore().LeaveProject();
    ShowTitle(Text(93_text));
}

void MDITools::SetProblemMenu() {
    Menu["mnuMainProblem"].Enabled = true;
    const ProblemRow* problem = FindProblem(Session.ProblemType);
    for (int entry = 1; entry < kProblemEntries; ++entry)
        Menu.At(kProblemArray, entry).Visible = problem != nullptr && entry == problem->MenuEntry;
    Menu.At(kProblemArray, 0).Visible = true;
    Refresh();
}

// Until everything that makes it a project has been read, no project is open: whatever is told in between is told over
// a frame that shows none, and a failure leaves it so.
void MDITools::OpenProject() {
    if (!IsProjectFile(Session.ProjectFile)) return;
    const std::string file = Session.ProjectFile, dir = Session.DataDir, name = Session.ProjectName;
    NewProjectState();
    bool taken = false;
    UnderCommonStep([&] {
        taken = ProjectStore().TakeProject(dir + name);
        if (!taken || !ProjectStore().UnpackProject(dir + name, kStandsForProject)) return;
        Integer problem;
        if (ReadProjectFile(dir, name, problem) != ReadOutcome::Read) return;
        Session.ProjectFile = file;
        Session.DataDir = dir;
        Session.ProjectName = name;
        Session.ProblemType = problem;
        ShowProject();
        ReadOrderFile();
        CheckProjectFiles();
    });
    if (taken && !ProjectOpen()) ProjectStore().LeaveProject();
    Refresh();
}

// Menu, ticks and title of the open project.
void MDITools::ShowProject() {
    SetProblemMenu();
    for (int entry = 0; entry < kProblemEntries; ++entry) SetProblemSaved(entry, Menu.At(kProblemArray, entry).Visible);
    if (!ProjectHasFile("AUF")) SetProblemSaved(kProjectEntry, false);
    const ProblemRow* problem = FindProblem(Session.ProblemType);
    if (problem != nullptr && !ProjectHasFile(problem->Extension)) SetProblemSaved(problem->MenuEntry, false);
    Menu["mnuSaveProjectAs"].Enabled = true;
    Menu["mnuCloseProject"].Enabled = true;
    ShowTitle(Session.ProjectName);
}

void MDITools::CheckProjectFiles() {
    SharedServices().SetPointer(PointerShape::Hourglass);
    ShowProject();
    bool ok = false;
    ProjectCheck(0, ok);
    EndHourglass();
}

std::vector<std::string> MDITools::MissingData() {
    std::vector<std::string> missing;
    for (int entry = 1; entry < kProblemEntries; ++entry) {
        if (const ProblemRow* problem = FirstProblemOf(entry)) SharedServices().SetCurrentTextId(problem->MenuText);
        if (Menu.At(kProblemArray, entry).Visible && !ProblemSaved(entry))
            missing.push_back(Text(SharedServices().GetCurrentTextId()));
    }
    return missing;
}

void MDITools::ProjectCheck(int ask, bool& ok) {
    SharedServices().SetPointer(PointerShape::Hourglass);
    std::string list;
    for (const std::string& text : MissingData()) list += text + "\r\n";
    EndHourglass();
    Session.DialogOk = false;
    if (!list.empty()) {
        frmProjectCheck form(Title(Session.ProjectName), list);
        CurrentHost().ShowForm(form);
    } else {
        Session.DialogOk = ask == 0 || SharedServices().ConfirmQuit();
    }
    if (Session.DialogOk && (!list.empty() || ask != 0)) AddToRecentFiles(OpenProjectPath() + ".PO3");
    ok = Session.DialogOk;
}

bool MDITools::MayLeaveProject() {
    if (!ProjectOpen()) return true;
    bool ok = false;
    ProjectCheck(0, ok);
    return ok;
}

void MDITools::mnuNewProject_Click() {
    BeginProject(Problem::SoilStress);
}

// Deliberate: packs nothing; the project that is left by a new one stays plain.
void MDITools::BeginProject(int problemType) {
    UnderCommonStep([&] {
        if (!MayLeaveProject()) return;
        NewProjectState();
        if (IsNoPlaceForProjects(Session.DataDir)) Session.DataDir = SharedServices().GetDirectories().DataDir;
        frmProblemType form([this] { ShowProject(); }, problemType);
        CurrentHost().ShowForm(form);
        if (Session.DialogOk) AddToRecentFiles(OpenProjectPath() + kStandsForProject);
    });
    Refresh();
}

void MDITools::mnuCloseProject_Click() {
    UnderCommonStep([&] {
        if (!ProjectOpen() || !MayLeaveProject()) return;
        PackLeftProject("");
        NewProjectState();
    });
    Refresh();
}

void MDITools::mnuOpenProject_Click() {
    UnderCommonStep([&] {
        if (!MayLeaveProject()) return;
        std::string file = Session.ProjectFile, dir = Session.DataDir, name = Session.ProjectName;
        if (FileDialogs().OpenFileDialog(file, Session.DataDir, dir, name, "*.PO3")) ChangeProject(file);
    });
    Refresh();
}

// Leaves the open project for another. A file that is no project changes nothing: the open project stays.
void MDITools::ChangeProject(const std::string& file) {
    if (!IsProjectFile(file)) return;
    PackLeftProject(file);
    Session.ProjectFile = file;
    FileDialogs().SplitProjectPath(file, Session.DataDir, Session.ProjectName);
    OpenProject();
    if (ProjectOpen()) AddToRecentFiles(OpenProjectPath() + ".PO3");
}

void MDITools::OpenExample(const std::string& name) {
    if (const auto example = FindExample(name)) OpenExample(*example);
}

void MDITools::mnuSaveProjectAs_Click() {
    if (!ProjectOpen()) return;
    UnderCommonStep([&] {
        std::string file = Session.ProjectFile, dir = Session.DataDir, name = Session.ProjectName;
        if (!FileDialogs().SaveFileDialog(file, Session.DataDir, dir, name, "PO3")) return;
        SharedServices().SetPointer(PointerShape::Hourglass);
        if (dir + name != OpenProjectPath()) {
            CopyProjectFiles(FilesToCopy(), dir, name);
            if (!ProjectStore().TakeProject(dir + name)) return;
        }
        Session.ProjectFile = file;
        Session.DataDir = dir;
        Session.ProjectName = name;
        AddToRecentFiles(file);
        ShowTitle(Session.ProjectName);
    });
    EndHourglass();
}

void MDITools::mnuFileList_Click() {
    UnderCommonStep([&] {
        FileTools().ShowFileList(Session.ProgramDir, Session.DataDir, "po3");
        if (ProjectOpen()) ProjectStore().UnpackProject(OpenProjectPath(), kStandsForProject);
    });
}

void MDITools::MnuRecentFile_Click(int index) {
    if (index == 0) return;
    const bool done = UnderCommonStep([&] {
        if (!MayLeaveProject()) return;
        SyncRecentFromMenu();
        const std::string path = ListTools().GetRecentFile(kApplicationTitle, index, RecentFiles);
        SyncRecentToMenu();
        if (!path.empty()) ChangeProject(path);
    });
    if (!done) {
        for (int i = 0; i < static_cast<int>(RecentFiles.size()); ++i) Menu.At(kRecentArray, i).Visible = false;
        SyncRecentFromMenu();  // the start page offers none of them either
    }
    Refresh();
}

void MDITools::AddToRecentFiles(const std::string& path) {
    SyncRecentFromMenu();
    ListTools().AddRecentFile(path, kApplicationTitle, RecentFiles);
    SyncRecentToMenu();
}

void MDITools::SyncRecentFromMenu() {
    for (int i = 0; i < static_cast<int>(RecentFiles.size()); ++i) {
        const MenuItem& item = Menu.At(kRecentArray, i);
        RecentFiles[static_cast<std::size_t>(i)] = {item.Caption, item.Visible};
    }
}

void MDITools::SyncRecentToMenu() {
    for (int i = 0; i < static_cast<int>(RecentFiles.size()); ++i) {
        MenuItem& item = Menu.At(kRecentArray, i);
        item.Caption = RecentFiles[static_cast<std::size_t>(i)].Caption;
        item.Visible = RecentFiles[static_cast<std::size_t>(i)].Visible;
    }
    Refresh();
}

ProjectSummary MDITools::Summary() {
    ProjectSummary summary;
    summary.Name = Session.ProjectName;
    summary.Directory = Session.DataDir;
    summary.ProblemType = Session.ProblemType;
    if (const ProblemRow* problem = FindProblem(Session.ProblemType)) {
        summary.Problem = Text(problem->MenuText);
        summary.ProblemEntry = problem->MenuEntry;
    }
    summary.Order = Session.Auftr;
    summary.Date = Session.Datum;
    summary.Project = Session.Proj;
    summary.MissingData = MissingData();
    return summary;
}

}  // namespace lithmark
