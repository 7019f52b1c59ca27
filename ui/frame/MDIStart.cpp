// The start and the end of the program.
#include <chrono>

#include "base/Utf8.h"
#include "core/Session.h"
#include "core/StartSession.h"
#include "files/CommonStep.h"
#include "files/SettingsFiles.h"
#include "services/FileDialogs.h"
#include "services/ProjectStore.h"
#include "services/SharedServices.h"
#include "services/host/Host.h"
#include "ui/frame/MDITools.h"
#include "ui/frmSplash.h"

namespace lithmark {

namespace {

constexpr int kProgramNumber = 6;
constexpr int kProjectFile = 6;

long long MachineMilliseconds() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

std::string TrimBlanks(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

void MDITools::Start(const std::string& commandLine, Language otherwise) {
    const bool prepared = UnderCommonStep([&] {
        SharedServices().SetProgramNumber(kProgramNumber);
        SharedServices().LoadLanguage(otherwise);
        StartSession();
        ShowSplash();
        const Directories directories = SharedServices().GetDirectories();
        Session.ProgramDir = directories.ProgramDir;
        Session.DataDir = directories.DataDir;
        Session.WorkDir = directories.DataDir;
        Session.CompressFlag = directories.CompressFlag;
        HelpFile = SharedServices().GetHelpFile("verda");
    });
    if (!prepared) {
        // The user gets a frame that can be worked with, and no splash in front of it.
        PassingOverErrors([&] { TakeSplashAway(); });
        PassingOverErrors([&] { Load(); });
        Shown = true;
        ShowTitle(Text(93_text));
        return;
    }

    // From here on nothing keeps the program from starting.
    PassingOverErrors([&] { LoadTheme(); });
    PassingOverErrors([&] { Load(); });
    PassingOverErrors([&] { ShowTitle(Text(93_text)); });
    PassingOverErrors([] { LoadUnits(); });
    PassingOverErrors([] { LoadNumberFormats(); });
    PassingOverErrors([] {
        const CompanyLines lines = SharedServices().GetFirmaData();
        Session.FirmaLine1 = lines.Line1;
        Session.FirmaLine2 = lines.Line2;
    });
    PassingOverErrors([] { LoadPreferences(); });
    PassingOverErrors([&] {
        SyncRecentFromMenu();
        ListTools().LoadRecentFiles(kApplicationTitle, RecentFiles);
        SyncRecentToMenu();
    });
    PassingOverErrors([&] { LayoutToolbars(); });
    PassingOverErrors([&] { LoadBarSettings(); });
    PassingOverErrors([&] {
        if (window_ == nullptr) return;
        if (const auto position = ListTools().LoadFormPosition(Name, kApplicationTitle, kSettings))
            window_->SetPosition(*position);
    });
    Session.SymbolSuffix = Text(123_text);
    PassingOverErrors([&] { CloseSplash(); });
    Shown = true;
    NewProjectState();
    OpenFromCommandLine(commandLine);
}

void MDITools::ShowSplash() {
    auto splash = std::make_unique<frmSplash>(clock_ ? clock_ : MachineMilliseconds);
    splash->Load();
    CurrentHost().ShowSplash(*splash);
    splash_ = std::move(splash);
    CurrentHost().RunEvents();
    SharedServices().SetPointer(PointerShape::Hourglass);
}

void MDITools::CloseSplash() {
    if (splash_ != nullptr) splash_->Tag = frmSplash::kMayEnd;
    TakeSplashAway();
}

void MDITools::TakeSplashAway() {
    if (splash_ == nullptr) return;
    splash_->Unload();
    CurrentHost().CloseSplash(*splash_);
    splash_.reset();
    SharedServices().SetPointer(PointerShape::Default);
}

void MDITools::OpenFromCommandLine(std::string text) {
    UnderCommonStep([&] {
        if (text.empty()) return;
        text = TrimBlanks(text);
        if (text.starts_with('"')) text.erase(0, 1);
        if (text.ends_with('"')) text.pop_back();
        if (!FileDialogs().ResolveProjectPath(text, Session.ProjectFile, Session.DataDir, Session.ProjectName, "",
                                              kProjectFile))
            return;
        SharedServices().SetPointer(PointerShape::Hourglass);
        OpenProject();
        if (ProjectOpen()) AddToRecentFiles(Session.DataDir + Session.ProjectName + ".PO3");
    });
    SharedServices().SetPointer(PointerShape::Default);
    Refresh();
}

void MDITools::mnuFileExit_Click() {
    UnderCommonStep([&] {
        if (SharedServices().ConfirmQuit()) ExitProgram();
    });
}

bool MDITools::QueryUnload() {
    if (!Ended) mnuFileExit_Click();
    return !Ended;
}

void MDITools::ExitProgram() {
    if (Ended) return;
    PassingOverErrors([&] {
        const auto position = window_ != nullptr ? window_->Position() : std::nullopt;
        if (position) ListTools().SaveFormPosition(Name, *position, kApplicationTitle, kSettings);
    });
    SaveTBar();
    PassingOverErrors([&] {
        if (ProjectOpen())
            ProjectStore().PackProject(Session.DataDir + Session.ProjectName, Session.CompressFlag, "", ".po3");
        ProjectStore().LeaveProject();
    });
    PassingOverErrors([] { SharedServices().CloseServices(); });
    Ended = true;
    if (window_ != nullptr) window_->EndProcess();
}

}  // namespace lithmark
