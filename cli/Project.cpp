#include "cli/Project.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include "base/Paths.h"
#include "base/Utf8.h"
#include "cli/Failures.h"
#include "cli/Output.h"
#include "core/Catalogue.h"
#include "core/FieldNames.h"
#include "core/SessionFields.h"
#include "core/StartSession.h"
#include "core/TimeUnits.h"
#include "files/GloableVariable.h"
#include "files/ProblemData.h"
#include "files/ProjectFiles.h"
#include "files/SettingsFiles.h"
#include "files/UnknownField.h"
#include "kernels/RunProject.h"
#include "report/Notices.h"
#include "services/FileDialogs.h"
#include "services/ProjectStore.h"
#include "services/SharedServices.h"
#include "services/storage/FileNames.h"
#include "services/storage/ProjectArchive.h"
#include "services/storage/ReadFile.h"
#include "services/texts/LanguageCodes.h"

namespace lithmark {

namespace {

const std::string kStandingExtension = ".po3";

void SetLanguage(const std::string& lang) {
    if (lang.empty()) {
        SharedServices().LoadLanguage();
        return;
    }
    LanguageTexts().SetCurrent(LanguageOfCode(lang));
}

// The project that ReadProject found packed, without its extension; empty when it found none.
std::string packedProject;

[[noreturn]] void FailFile(const std::string& path, TextId text) {
    throw CommandFailure(ExitStatus::FileTrouble, Text(text, {{"|1", path}}));
}

// The messages of a failed read are the line for standard error.
[[noreturn]] void FailRead(const std::string& path) {
    const auto& host = static_cast<const ConsoleHost&>(CurrentHost());
    if (host.Messages().empty()) FailFile(path, 902002_text);
    throw CommandFailure(ExitStatus::FileTrouble, host.Messages().back().Text);
}

}  // namespace

void StartCommand(const CommonOptions& options, ConsoleHost& host) {
    SetCurrentHost(&host);
    SharedServices().SetProgramNumber(6);
    if (!options.Settings.empty()) {
        std::error_code error;
        if (!std::filesystem::exists(PathOf(options.Settings), error)) FailFile(options.Settings, 190008_text);
        if (!std::filesystem::is_directory(PathOf(options.Settings), error)) FailFile(options.Settings, 902003_text);
        SharedServices().UseSettingsDirectory(options.Settings);
    }
    SetLanguage(options.Lang);
    StartSession();
    const Directories directories = SharedServices().GetDirectories();
    Session.ProgramDir = directories.ProgramDir;
    Session.DataDir = directories.DataDir;
    Session.CompressFlag = directories.CompressFlag;
    LoadUnits();
    LoadNumberFormats();
    const CompanyLines company = SharedServices().GetFirmaData();
    Session.FirmaLine1 = company.Line1;
    Session.FirmaLine2 = company.Line2;
    LoadPreferences();
    if (!host.Messages().empty()) FailRead(Session.ProgramDir);
}

namespace {

ConsoleHost& Console() {
    return static_cast<ConsoleHost&>(CurrentHost());
}

// Reads the files of a plain project into Session. True when its data file exists.
bool ReadPlainProject(const std::string& path) {
    switch (ReadProjectFile()) {
        case ReadOutcome::Missing:
            FailFile(path, 902005_text);
        case ReadOutcome::Failed:
            FailRead(path);
        case ReadOutcome::Read:
            break;
    }
    if (ReadOrderFile() == ReadOutcome::Failed) FailRead(path);
    const ProblemRow* problem = FindProblem(Session.ProblemType);
    if (!problem) FailFile(path, 902006_text);
    SetProblemDefaults();
    const ReadOutcome outcome = ReadProblemData();
    if (outcome == ReadOutcome::Failed) FailRead(path);
    return outcome == ReadOutcome::Read;
}

// Reads a project whose files another program may be packing or unpacking just now; nothing then, and Session holds
// whatever was read. CommandFailure for a failure that is the project's own.
std::optional<bool> TryReadProject(const std::string& path, const std::string& stem) {
    const std::string standing = MappedFileName(stem + kStandingExtension);
    const auto before = MarkOf(standing);
    if (IsArchiveFile(standing)) {
        if (!ProjectStore().TakeProject(stem)) return std::nullopt;
        packedProject = stem;
        if (!ProjectStore().UnpackProject(stem, kStandingExtension)) FailRead(path);
        return ReadPlainProject(path);
    }
    try {
        const bool hasData = ReadPlainProject(path);
        if (MarkOf(standing) == before) return hasData;
    } catch (const CommandFailure&) {
        if (MarkOf(standing) == before) throw;
    }
    return std::nullopt;
}

}  // namespace

bool ReadProject(const std::string& path) {
    if (UpperAscii(PathOf(path).extension().string()) != ".PO3") FailFile(path, 902004_text);
    RequireFolderOf(path);
    Session.ProjectFile = path;
    FileDialogs().SplitProjectPath(path, Session.DataDir, Session.ProjectName);
    Session.WorkDir = Session.DataDir;
    Session.WorkName = Session.ProjectName;
    // Another command that works on the packed project is through with it soon.
    constexpr int kTries = 40;
    constexpr std::chrono::milliseconds kPause(50);
    const std::size_t told = Console().Messages().size();
    for (int tries = 1;; ++tries) {
        if (const auto hasData = TryReadProject(path, Session.DataDir + Session.ProjectName)) return *hasData;
        if (tries == kTries) FailRead(path);
        Console().ForgetMessages(told);
        std::this_thread::sleep_for(kPause);
    }
}

bool PackProjectAgain() {
    constexpr long kPack = 1;
    const std::string stem = std::exchange(packedProject, {});
    const bool packed = stem.empty() || ProjectStore().PackProject(stem, kPack, {}, kStandingExtension);
    ProjectStore().LeaveProject();
    return packed;
}

void ApplySets(const std::vector<std::string>& sets) {
    for (const std::string& pair : sets) {
        const auto equals = pair.find('=');
        const std::string word = pair.substr(0, equals);
        const auto fail = [&](TextId text) {
            throw CommandFailure(ExitStatus::BadCommandLine, Text(text, {{"|1", pair}}));
        };
        if (equals == std::string::npos || word.empty()) fail(902007_text);
        const auto name = FieldNameOf(Session.ProblemType, word);
        if (!name) throw CommandFailure(ExitStatus::BadCommandLine, pair + ": " + UnknownFieldText(word));
        switch (SetSessionField(*name, pair.substr(equals + 1))) {
            case SetFieldOutcome::Done:
                if (*name == "TimeUnit") Session.TimeUnit = TimeUnitInForce(Session.TimeUnit);
                if (!FindProblem(Session.ProblemType)) fail(902010_text);
                break;
            case SetFieldOutcome::NoSuchField:
            case SetFieldOutcome::NoSuchElement:
                fail(902009_text);
                break;
            case SetFieldOutcome::BadValue:
                fail(902010_text);
                break;
        }
    }
}

void OpenProjectForRun(const CommonOptions& options) {
    if (!ReadProject(options.Project)) {
        const ProblemRow* problem = FindProblem(Session.ProblemType);
        FailFile(DataFileName(Session.WorkDir, Session.WorkName, problem->Extension), 902005_text);
    }
    RefuseProjectFile(options.Output);
    RequireFolderOf(options.Output);
    ApplySets(options.Sets);
    SetDerivedFields(Session);
}

void TellNotices(ConsoleHost& host) {
    host.PrintMessages();
    for (const Notice& notice : Notices().All()) host.PrintLine("notice: " + NoticeText(notice));
}

std::string AbortedLine(const ConsoleHost& host) {
    if (host.Messages().empty()) return Text(902011_text, {{"|1", Session.ProjectFile}});
    return Session.ProjectFile + ": " + host.Messages().back().Text;
}

}  // namespace lithmark
