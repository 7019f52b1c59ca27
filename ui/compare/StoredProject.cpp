#include "ui/compare/StoredProject.h"

#include <cerrno>
#include <chrono>
#include <fstream>
#include <thread>

#include "base/Failure.h"
#include "base/Utf8.h"
#include "core/Catalogue.h"
#include "core/KeptSession.h"
#include "files/ProjectFiles.h"
#include "files/ProjectGlance.h"
#include "services/FileDialogs.h"
#include "services/SharedServices.h"
#include "services/host/Host.h"
#include "services/storage/FileNames.h"
#include "services/storage/ProjectArchive.h"
#include "services/storage/ProjectLock.h"
#include "services/storage/ReadFile.h"
#include "services/storage/TemporaryFolder.h"
#include "services/texts/LanguageTexts.h"
#include "ui/ProblemForms.h"

namespace lithmark {

namespace {

const std::string kProject = "PO3", kHeading = "AUF";

// Keeps the last message in place of showing it.
class QuietHost : public Host {
  public:
    QuietHost() : before_(CurrentHost()) { SetCurrentHost(this); }
    ~QuietHost() override { SetCurrentHost(&before_); }
    QuietHost(const QuietHost&) = delete;
    QuietHost& operator=(const QuietHost&) = delete;

    void ShowMessage(const std::string&, const std::string& text, MessageIcon) override { Last = text; }
    bool AskYesNo(const std::string&, const std::string&) override { return false; }

    std::string Last;

  private:
    Host& before_;
};

std::string WithExtension(std::string stem, const std::string& extension) {
    return stem.append(".").append(extension);
}

// The files of a project in a folder of their own.
class ScratchFiles {
  public:
    ScratchFiles(const std::string& name, const ProjectFiles& files) {
        for (const auto& [extension, bytes] : files) {
            const std::string path = folder_.Announce(WithExtension(name, extension));
            std::ofstream file(path, std::ios::binary);
            file << bytes;
            file.close();
            if (!file) FailWithSystemError(errno, FailureKind::WriteError, path);
        }
    }
    const std::string& Dir() const noexcept { return folder_.Path(); }

  private:
    TemporaryFolder folder_;
};

// Of a plain project those that its problem has, as far as they are there.
ProjectFiles PlainFiles(const std::string& file, const std::string& stem) {
    ProjectFiles files{{kProject, ReadWholeFile(file)}};
    const ProblemRow* problem = FindProblem(GlanceAt(file).ProblemType);
    for (const std::string& extension : {kHeading, std::string(problem != nullptr ? problem->Extension : kHeading)}) {
        const std::string path = MappedFileName(WithExtension(stem, extension));
        SharedServices().SetCurrentFile(path);
        if (PathExists(path)) files[extension] = ReadWholeFile(path);
    }
    SharedServices().SetCurrentFile(file);
    return files;
}

// All of one state: a project that is packed or saved meanwhile is read again.
ProjectFiles FilesOf(const std::string& file, const std::string& stem) {
    constexpr int kTries = 20;
    constexpr std::chrono::milliseconds kPause(20);
    SharedServices().SetCurrentFile(file);
    for (int tries = 1;; ++tries) {
        const auto before = MarkOf(file);
        const bool last = tries == kTries;
        try {
            ProjectFiles files =
                IsArchiveFile(file) ? ReadArchive(ReadWholeFile(file, kMostArchiveFile)) : PlainFiles(file, stem);
            if (last || MarkOf(file) == before) return files;
        } catch (const Failure&) {
            if (last || MarkOf(file) == before) throw;
        }
        std::this_thread::sleep_for(kPause);
    }
}

[[noreturn]] void Refuse(const std::string& why) {
    Fail(FailureKind::BadInput, why);
}

// Session takes the files, and the dialog of their problem the data.
void Take(StoredProject& project, const std::string& scratch, const QuietHost& host) {
    const auto file = [&](TextId text) { return Text(text, {{"|1", project.File}}); };
    Session.DataDir = Session.WorkDir = scratch;
    Session.ProjectName = Session.WorkName = project.Name;
    if (ReadProjectFile() != ReadOutcome::Read) Refuse(host.Last);
    const auto form = MakeProblemForm(Session.ProblemType);
    if (FindProblem(Session.ProblemType) == nullptr || form == nullptr) Refuse(file(902006_text));
    SetProblemDefaults();
    if (ReadOrderFile() == ReadOutcome::Failed) Refuse(host.Last);
    const ReadOutcome data = ReadProblemData();
    if (data == ReadOutcome::Missing) Refuse(file(913534_text));
    if (data == ReadOutcome::Failed) Refuse(host.Last);
    form->ShowInForce();
    project.Inputs = InputsOf(*form);
    const FormDraft draft = form->Draft();
    if (!draft.Valid()) project.Stopped = draft.Faults.front().Reason;
    project.Record = draft.Valid() ? draft.Record : Session;
}

// What is said of a file in the folder is said of the project's own.
std::string ToldOf(const std::string& text, const std::string& scratch, const std::string& dir) {
    std::string told = text;
    if (scratch.empty()) return told;
    for (std::size_t at = told.find(scratch); at != std::string::npos; at = told.find(scratch, at + dir.size()))
        told.replace(at, scratch.size(), dir);
    return told;
}

}  // namespace

ProjectReading ReadStoredProject(const std::string& file) {
    ProjectReading reading;
    StoredProject project;
    std::string dir, scratchDir;
    FileDialogs().SplitProjectPath(file, dir, project.Name);
    project.File = file;
    const std::string stem = dir + project.Name;
    const bool own = stem == Session.DataDir + Session.ProjectName;
    const KeptSession kept;
    const QuietHost host;
    try {
        const std::string mapped = MappedFileName(file);
        if (UpperAscii(std::string(ExtensionOf(mapped))) != kProject) Refuse(Text(902004_text, {{"|1", file}}));
        if (!own) project.Holder = HolderOfProject(stem);
        const ScratchFiles scratch(project.Name, FilesOf(mapped, stem));
        scratchDir = scratch.Dir();
        Take(project, scratchDir, host);
        project.Record.DataDir = project.Record.WorkDir = dir;
        reading.Project = std::move(project);
    } catch (const Failure& failure) {
        reading.Fault =
            failure.Kind() == FailureKind::BadInput ? failure.Detail() : SharedServices().FailureText(failure);
        reading.Fault = ToldOf(reading.Fault, scratchDir, dir);
    }
    return reading;
}

}  // namespace lithmark
