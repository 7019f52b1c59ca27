// fault_saver KIND FOLDER: makes one save of a kind in a folder, as the program makes it. Exit status 0 when it was
// saved; otherwise 1, and the messages on standard error.
#include <cstdio>
#include <string>

#include "core/Catalogue.h"
#include "core/Session.h"
#include "core/StartSession.h"
#include "files/CommonStep.h"
#include "files/ProblemData.h"
#include "files/ProjectCopy.h"
#include "files/ProjectFiles.h"
#include "files/SettingsFiles.h"
#include "kernels/RunKernel.h"
#include "services/ProjectStore.h"
#include "services/SharedServices.h"
#include "services/host/ConsoleHost.h"
#include "services/storage/DraftStore.h"

using namespace lithmark;

namespace {

const std::string kProject = "Raft1";

bool SaveProblem(int problem) {
    Session.ProblemType = problem;
    SetProblemDefaults();
    Session.h = 77;
    WriteProblemData();
    return Session.FileSaved;
}

bool RunRaft() {
    Session.ProblemType = Problem::RaftDisplacement;
    SetProblemDefaults();
    Session.A0 = Session.A;
    RunProblemKernel();
    return !Session.CalcAborted;
}

bool SaveProject() {
    Session.Auftr = "new order";
    Session.Datum = "new date";
    Session.Proj = "new project";
    Session.ProblemType = Problem::RaftConsolidation;
    WriteProjectData();
    return Session.FileSaved;
}

// The commands of the frame tell what goes wrong in them.
bool Told(auto&& step) {
    return UnderCommonStep(step);
}

bool Save(const std::string& kind, const std::string& folder) {
    const std::string path = folder + kProject;
    if (kind == "project") return SaveProject();
    if (kind == "stress") return SaveProblem(Problem::SoilStress);
    if (kind == "timesettlement") return SaveProblem(Problem::TimeTheory);
    if (kind == "layers") return SaveProblem(Problem::LayerTable);
    if (kind == "raft") return RunRaft();
    if (kind == "pack") return ProjectStore().PackProject(path, 7, {}, ".po3");
    if (kind == "unpack") return ProjectStore().UnpackProject(path, ".po3");
    if (kind == "copy") return Told([&] { CopyProjectFiles({"SSD", "RDE", "AUF", "PO3"}, folder, "Copy"); });
    if (kind == "open") return ProjectStore().TakeProject(path) && SaveProblem(Problem::SoilStress);
    if (kind == "draft")
        return Told([&] { WriteDraft(folder, {path, "frmstress", "m", "2 May", {{"txt_z", "4.5"}}, {}}); });
    if (kind == "units") return WriteUnits();
    if (kind == "preferences") {
        Session.PrefND = 17;
        SavePreferences();
        return Session.FileSaved;
    }
    if (kind == "datadir") {
        WriteDataDirSettings("/new/");
        return Session.FileSaved;
    }
    if (kind == "setting") {
        SharedServices().SaveSetting(kApplicationTitle, "Settings", "Language", std::string("Deutsch"));
        return static_cast<ConsoleHost&>(CurrentHost()).Messages().empty();
    }
    std::fprintf(stderr, "no such kind: %s\n", kind.c_str());
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    const std::string folder = argv[2];
    ConsoleHost host;
    SetCurrentHost(&host);
    LanguageTexts().SetCurrent(Language::English);
    SharedServices().UseSettingsDirectory(folder);
    StartSession();
    Session.ProgramDir = Session.DataDir = Session.WorkDir = folder;
    Session.ProjectName = Session.WorkName = kProject;
    Session.Datum = "1 May 2026";
    const bool saved = Save(argv[1], folder);
    ProjectStore().LeaveProject();
    host.PrintMessages();
    return saved ? 0 : 1;
}
