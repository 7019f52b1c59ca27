// The frame's project commands.
#include <utility>

#include "base/Utf8.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "files/GloableVariable.h"
#include "files/ProjectFiles.h"
#include "services/FileDialogs.h"
#include "services/FileTools.h"
#include "services/ProjectStore.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"
#include "services/host/Host.h"
#include "services/storage/FileNames.h"
#include "services/storage/WrittenFile.h"
#include "ui/frame/MDITools.h"
#include "ui/frmProblemType.h"
#include "ui/frmProjectCheck.h"
#include "ui/model/CommonStep.h"
#include "ui/model/ProjectFlags.h"

namespace lithmark {

namespace {

const std::string kProblemArray = "mnuProblem", kRecentArray = "MnuRecentFile";
const std::string kStandsForProject = ".po3";

// The extensions of an entry's files.
std::vector<std::string> FilesOf(int entry) {
    if (entry == kProjectEntry) return {"PO3", "AUF"};
    const ProblemRow* problem = FirstProblemOf(entry);
    return problem == nullptr ? std::vector<std::string>{} : std::vector<std::string>{problem->Extension};
}

// Copies a file under the name that it gets in another project.
void CopyFile(const std::string& source, const std::string& target) {
    SharedServices().SetCurrentFile(source);
    const std::string content = ReadWholeFile(source);
    SharedServices().SetCurrentFile(target);
    WriteWholeFile(target, content);
}

std::string OpenProjectPath() {
    return Session.DataDir + Session.ProjectName;
}

bool IsProjectFile(const std::string& file) {
    return UpperAscii(file).ends_with("PO3");
}

void PackLeftProject(const std::string& dir, const std::string& name, const std::string& newFile) {
    if (!name.empty()) ProjectStore().PackProject(dir + name, Session.CompressFlag, newFile, kStandsForProject);
}

void EndHourglass() {
    SharedServices().SetPointer(PointerShape::Default);
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
    Session.ProblemType = Problem::SoilStress;
    Session.WorkName = Text(93_text);
    for (int entry = 0; entry < kProblemEntries; ++entry) SetProblemSaved(entry, false);
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

void MDITools::OpenProject() {
    UnderCommonStep([&] {
        if (!IsProjectFile(Session.ProjectFile)) return;
        if (!ProjectStore().UnpackProject(OpenProjectPath(), kStandsForProject)) return;
        if (ReadProjectFile() != ReadOutcome::Read) return;
        CheckProjectFiles();
        if (ProblemSaved(0)) {
            ReadOrderFile();
        } else {
            // The heading data of the project before are not those of this one.
            Session.Auftr.clear();
            Session.Datum = TextTools().LongDateOfToday();
            Session.Proj.clear();
        }
    });
    Refresh();
}

void MDITools::CheckProjectFiles() {
    SharedServices().SetPointer(PointerShape::Hourglass);
    SetProblemMenu();
    for (int entry = 0; entry < kProblemEntries; ++entry) SetProblemSaved(entry, Menu.At(kProblemArray, entry).Visible);
    if (!ProjectHasFile("AUF")) SetProblemSaved(0, false);
    const ProblemRow* problem = FindProblem(Session.ProblemType);
    if (problem != nullptr && !ProjectHasFile(problem->Extension)) SetProblemSaved(problem->MenuEntry, false);
    ShowTitle(Session.ProjectName);
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

// Deliberate: asks first and packs nothing; the project that is left by a new one stays plain.
void MDITools::mnuNewProject_Click() {
    UnderCommonStep([&] {
        Menu["mnuMainProblem"].Enabled = false;
        Menu["mnuSaveProjectAs"].Enabled = false;
        Refresh();
        if (ProjectOpen()) {
            bool ok = false;
            ProjectCheck(0, ok);
            if (!ok) return;
        }
        NewProjectState();
        frmProblemType form([this] { ProjectSaved(); });
        CurrentHost().ShowForm(form);
        if (Session.DialogOk) AddToRecentFiles(OpenProjectPath() + kStandsForProject);
    });
    Refresh();
}

void MDITools::ProjectSaved() {
    SetProblemMenu();
    ShowTitle(Session.WorkName);
    Menu["mnuSaveProjectAs"].Enabled = true;
}

void MDITools::mnuOpenProject_Click() {
    UnderCommonStep([&] {
        if (ProjectOpen()) {
            bool ok = false;
            ProjectCheck(0, ok);
            if (!ok) return;
        }
        std::string file = Session.ProjectFile, dir = Session.DataDir, name = Session.ProjectName;
        if (!FileDialogs().OpenFileDialog(file, Session.DataDir, dir, name, "*.PO3")) return;
        // A file that is no project changes nothing: the open project stays.
        if (!IsProjectFile(file)) return;
        PackLeftProject(Session.DataDir, Session.ProjectName, file);
        Session.ProjectFile = file;
        Session.DataDir = dir;
        Session.ProjectName = name;
        OpenProject();
        if (!ProjectOpen()) return NewProjectState();
        AddToRecentFiles(OpenProjectPath() + ".PO3");
        Menu["mnuSaveProjectAs"].Enabled = true;
    });
    Refresh();
}

void MDITools::mnuSaveProjectAs_Click() {
    if (!ProjectOpen()) return;
    UnderCommonStep([&] {
        std::string newDir = Session.DataDir, newName = Session.ProjectName;
        if (!FileDialogs().SaveFileDialog(Session.ProjectFile, Session.DataDir, newDir, newName, "PO3")) return;
        SharedServices().SetPointer(PointerShape::Hourglass);
        AddToRecentFiles(Session.ProjectFile);
        for (int entry = kProjectEntry; entry <= kLastProblemEntry; ++entry) {
            if (!ProblemSaved(entry)) continue;
            for (const std::string& extension : FilesOf(entry)) {
                const std::string source = DataFileName(Session.DataDir, Session.ProjectName, extension);
                const std::string target = DataFileName(newDir, newName, extension);
                // A file that cannot be copied is told, and the others are copied all the same.
                if (source != target) UnderCommonStep([&] { CopyFile(source, target); });
            }
        }
        Session.ProjectName = newName;
        Session.DataDir = newDir;
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
        if (ProjectOpen()) {
            bool ok = false;
            ProjectCheck(0, ok);
            if (!ok) return;
        }
        SyncRecentFromMenu();
        const std::string path = ListTools().GetRecentFile(kApplicationTitle, index, RecentFiles);
        SyncRecentToMenu();
        if (path.empty()) return;
        PackLeftProject(Session.DataDir, Session.ProjectName, path);
        Session.ProjectFile = path;
        FileDialogs().SplitProjectPath(path, Session.DataDir, Session.ProjectName);
        OpenProject();
        if (!ProjectOpen()) return NewProjectState();
        AddToRecentFiles(path);
        Menu["mnuSaveProjectAs"].Enabled = true;
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

StartPage MDITools::RecentProjects() const {
    StartPage page;
    for (int i = 1; i < static_cast<int>(RecentFiles.size()); ++i)
        if (const RecentFile& row = RecentFiles[static_cast<std::size_t>(i)]; row.Visible)
            page.RecentProjects.push_back({i, row.Caption});
    return page;
}

ProjectSummary MDITools::Summary() {
    ProjectSummary summary;
    summary.Name = Session.ProjectName;
    summary.Directory = Session.DataDir;
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
